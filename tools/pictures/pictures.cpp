// Poses the running program for the guide's pictures. Needs a shell stand-in that shows wallpapers (--adopt).
// For each picture, saves the whole screen and prints "picture NAME WIDTHxHEIGHT+X+Y" with the part to show.
// The environment variable VT_PACK names the folder of the theme pack.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdio>

namespace {

constexpr const char *events = R"("1/12/2027=Rent, electricity"
"2/12/2027=Dentist 10:30"
"4/12/9999=Barbara's birthday"
"6/12/2027=Piano lesson"
"8/12/2027=Market, then lunch with Ann"
"10/12/2027=Swimming with Léa & Zoë, 17:00"
"11/12/2027=Concert: Brahms, Requiem"
"13/12/2027=Piano lesson"
"15/12/2027=Car to garage: brakes, winter tyres, oil change and the strange noise at the left front wheel that comes at 70 km/h and goes away at 90; take the papers along"
"17/12/9999=Jürgen's birthday"
"18/12/2027=Book club, chapter 7"
"20/12/2027=忘年会、19:00"
"22/12/2027=Train to Bath, 14:05"
"24/12/9999=Carols, 18:00"
"25/12/9999=Christmas Day"
"26/12/9999=Boxing Day"
"31/12/2027=Fireworks at the river"
)";

class Pictures : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        Set_Clock(2027, 12, 8, 10, 30, 0);
        Write_Data(events);
        Set_Setting("Settings", "Show Alerts", "0");
        wchar_t pack[MAX_PATH] = L"";
        GetEnvironmentVariableW(L"VT_PACK", pack, std::size(pack));
        CreateDirectoryW(Path_Of(L"Default").c_str(), nullptr);
        for (int month = 0; month <= 12; ++month) {
            const std::wstring name = month ? L"\\" + std::to_wstring(month) + L".jpg" : L"\\settings.ini";
            ASSERT_TRUE(CopyFileW((pack + name).c_str(), Path_Of(L"Default" + name).c_str(), FALSE));
        }
    }

    static void Take(const std::string &name, const RECT &part) {
        Save_Picture(name);
        std::printf("picture %s %ldx%ld+%ld+%ld\n", name.c_str(), part.right - part.left,
                    part.bottom - part.top, part.left, part.top);
    }
    static RECT Place(HWND window) {
        RECT place{};
        GetWindowRect(window, &place);
        return place;
    }
    static RECT Screen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }
    /// Returns the part, widened by `margin` on each side and limited to the screen.
    static RECT Around(const RECT &part, LONG margin) {
        const RECT wider{part.left - margin, part.top - margin, part.right + margin, part.bottom + margin};
        RECT seen{};
        const RECT screen = Screen();
        IntersectRect(&seen, &wider, &screen);
        return seen;
    }
    static void Put_Mouse_Away() { Send_Mouse({1, GetSystemMetrics(SM_CYSCREEN) - 2}, 0); }

    static void Take_Menu(const Program &program, const std::string &name, const RECT &place) {
        RECT menu{};
        const auto at_the_mouse = [&] {
            const RECT around = Around(menu, 2);
            return PtInRect(&around, Middle(place)) != FALSE;
        };
        for (int i = 0; i < 5 && !at_the_mouse(); ++i) { // at times Wine moves the mouse late
            if (menu.right > 0)
                program.Choose({VK_ESCAPE});
            Send_Mouse(Middle(place), 0);
            Sleep(500);
            program.Click(place, MOUSEEVENTF_RIGHTDOWN);
            ASSERT_TRUE(Wait_Until([&] { return program.Window("#32768") != nullptr; }));
            menu = Place(program.Window("#32768"));
        }
        ASSERT_TRUE(at_the_mouse());
        Put_Mouse_Away();
        Take(name, {menu.left - 80, menu.top - 20, menu.left + 250, menu.top + 310});
        program.Choose({VK_ESCAPE});
    }
    void Take_Pages(std::initializer_list<std::pair<int, std::string>> pages) {
        const HWND dialog = Start_Calendar().Open_Settings();
        const HWND tabs = FindWindowExA(dialog, nullptr, "SysTabControl32", nullptr);
        for (const auto &[page, name] : pages) {
            SendMessageA(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(page), 0);
            const HWND loading = FindWindowExA(dialog, nullptr, nullptr, "Loading...");
            ASSERT_TRUE(Wait_Until([&] { return !IsWindowVisible(loading); }, 20000));
            Take("settings-" + name, Place(dialog));
        }
    }
};

TEST_F(Pictures, Calendar_And_Menus) {
    const Program &program = Start_Calendar();
    Put_Mouse_Away();
    Take("calendar", Screen());
    const RECT title = program.Named(program.Title()).place;
    const LONG middle = Middle(title).x;
    Take_Menu(program, "menus-1", {title.left, title.top, middle, title.bottom});
    Take_Menu(program, "menus-2", {middle, title.top, title.right, title.bottom});
    Take_Menu(program, "menus-3", program.Named("Thursday 2nd December 2027").place);
}

TEST_F(Pictures, Compact) {
    const Program &program = Start_Calendar();
    program.Double_Click(program.Title());
    ASSERT_TRUE(Becomes(0L, [&] { return program.Named("Saturday 11th December 2027").role; }));
    Put_Mouse_Away();
    Take("compact", Around(program.Named(program.Title()).place, 40));
}

TEST_F(Pictures, Editor) {
    const Program &program = Start_Calendar();
    program.Double_Click("Saturday 18th December 2027");
    // The picture shows the caret.
    ASSERT_TRUE(
        Wait_Until([&] { return Has_Keyboard(GetDlgItem(program.Window("Vellatro_Edit_Frm"), 102)); }));
    Put_Mouse_Away();
    Take("editor", Around(Place(program.Window("Vellatro_Edit_Frm")), 60));
}

TEST_F(Pictures, Balloon) {
    Set_Setting("Settings", "Tooltips", "2");
    const Program &program = Start_Calendar();
    const RECT day = program.Named("Wednesday 15th December 2027").place;
    ASSERT_TRUE(program.Raise_Calendar(Middle(day)));
    Send_Mouse(Middle(day), MOUSEEVENTF_LEFTDOWN);
    ASSERT_TRUE(Wait_Until([&] { return program.Window("Vellatro_Balloon") != nullptr; }));
    Take("balloon", Around(Place(program.Window("Vellatro_Balloon")), 40));
    Send_Mouse(Middle(day), MOUSEEVENTF_LEFTUP);
}

TEST_F(Pictures, Settings) {
    Take_Pages({{0, "events"},
                {1, "colours"},
                {2, "general"},
                {3, "style"},
                {4, "tooltips"},
                {6, "transfer"},
                {7, "about"}});
}

// This must be the last test: it leaves the pack's picture on the desktop.
TEST_F(Pictures, Theme) {
    Set_Setting("Settings", "Use Themes", "1");
    {
        Start_Calendar();
        Put_Mouse_Away();
        // The program sets the wallpaper on another thread.
        ASSERT_TRUE(Wait_Until([] { return Picture().At(0, 0) != Bare_Screen->At(0, 0); }));
        Take("theme", Screen());
    }
    Stop_All();
    Take_Pages({{5, "wallpaper"}});
}

} // namespace

// Uses the running program at random for VT_MINUTES minutes, with the seed VT_SEED or a new one: the
// calendar, its menus, editor and settings, files, jumps of the clock and changes of the screen size. The
// program must not crash, hang or leak objects, and must still be able to read its file.
#include "tests/contract/small_jpeg.h"
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <random>
#include <sstream>

namespace {

/// Returns the program's private memory in KB, or -1 if it is unknown.
long Private_Memory(const Program &program) {
    const std::string rollup = program.Host_File(L"\\smaps_rollup");
    long sum = 0;
    for (const char *name : {"Private_Clean:", "Private_Dirty:"}) {
        const std::size_t place = rollup.find(name);
        if (place == std::string::npos)
            return -1;
        sum += std::atol(rollup.c_str() + place + std::strlen(name));
    }
    return sum;
}

class Random_Use : public Desktop_Test {
protected:
    int Upto(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    WORD One_Of(std::initializer_list<int> keys) {
        return static_cast<WORD>(keys.begin()[Upto(static_cast<int>(keys.size()))]);
    }
    HWND Editor() const { return program_->Window("Vellatro_Edit_Frm"); }
    HWND Settings() const { return program_->Window("Vellatro_Settings_Frm"); }
    HWND Menu() const { return program_->Window("#32768"); }

    /// Waits until the program answers a message.
    void Sync() const {
        DWORD_PTR answer = 0;
        const HWND calendar = program_->Calendar();
        EXPECT_TRUE(SendMessageTimeoutW(calendar, WM_NULL, 0, 0, SMTO_NORMAL, 30000, &answer) ||
                    !IsWindow(calendar))
            << "the program hangs";
    }

    /// Posts a key to the calendar, wherever the keyboard focus is.
    void Post(WPARAM key) const {
        PostMessageW(program_->Calendar(), WM_KEYDOWN, key, 1);
        PostMessageW(program_->Calendar(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    /// Chooses one of the first items of a menu. The item that ends the program is further down.
    void Use_Menu() {
        if (!Wait_Until([this] { return Menu() != nullptr; }, 2000))
            return;
        ++did_["menus"];
        for (int down = Upto(3); down > 0; --down)
            Send_Key(VK_DOWN);
        Send_Key(VK_RETURN);
        if (!Wait_Until([this] { return !Menu(); }, 500)) // no item was chosen
            program_->Choose({VK_ESCAPE});
    }

    void Answer_Box() {
        const HWND box = program_->Box_Window();
        constexpr int file_name = 0x47C;
        if (GetDlgItem(box, file_name)) {
            ++did_["file dialogs"];
            // Leave out configuration files: the program could not load one that it has imported as data.
            const char *names[] = {"in.csv", "none.dat", "out.dat", "out", "calendar.dat"};
            SetDlgItemTextA(box, file_name, names[Upto(5)]);
            PostMessageW(box, WM_COMMAND, One_Of({IDOK, IDOK, IDCANCEL}), 0);
            Wait_Until([box] { return !IsWindow(box) || !IsWindowEnabled(box); }, 500);
            return;
        }
        ++did_["boxes"];
        WORD button = One_Of({IDYES, IDNO, IDCANCEL});
        if (!GetDlgItem(box, button)) // the least consequential of the existing buttons
            button = GetDlgItem(box, IDOK) ? IDOK : IDNO;
        PostMessageW(box, WM_COMMAND, button, 0); // posted: an earlier key press may close the box first
        // A jump of the clock may open another box on top, which must be answered first.
        EXPECT_TRUE(Wait_Until([&] { return !IsWindow(box) || program_->Box_Window() != box; }));
    }

    void Use_Editor() {
        ++did_["editors"];
        if (Has_Keyboard(GetDlgItem(Editor(), 102)))
            Send_Text(Upto(8) == 0 ? "\"" : "text" + std::to_string(Upto(100)));
        Send_Key(One_Of({'Y', 'A'}), true);
        Send_Key(One_Of({VK_RETURN, VK_RETURN, VK_ESCAPE, VK_TAB, VK_BACK}));
    }

    void Open_Menu(bool title, bool settings = false) {
        const std::vector<Item> items = program_->Items(title ? ROLE_SYSTEM_STATICTEXT : ROLE_SYSTEM_CELL);
        if (items.empty())
            return Post(VK_F12);
        RECT place = items[static_cast<std::size_t>(Upto(static_cast<int>(items.size())))].place;
        (Upto(2) == 0 ? place.left : place.right) = Middle(place).x; // the months or the years
        if (!program_->Open_Menu(Middle(place)))
            return;
        if (!settings)
            return Use_Menu();
        // Start at the top, because the mouse may already have selected an item, and "Exit" follows
        // "Settings".
        for (const int key : {VK_HOME, VK_DOWN, VK_DOWN, VK_RETURN})
            Post(static_cast<WPARAM>(key));
        Wait_Until([this] { return !Menu(); }, 500);
    }

    /// Uses a control on the visible settings page. Posts the messages, because a message box or file dialog
    /// may open.
    void Use_Settings() {
        ++did_["settings"];
        if (Upto(12) == 0)
            PostMessageW(Settings(), WM_CLOSE, 0, 0);
        std::vector<HWND> parts;
        for (HWND part = GetWindow(Settings(), GW_CHILD); part; part = GetWindow(part, GW_HWNDNEXT)) {
            const std::string text = Text_Of(part);
            // Leave out manual positions, which could put the calendar off the screen, and links, which would
            // open a browser.
            if (IsWindowVisible(part) && IsWindowEnabled(part) && text.find("anual") == std::string::npos &&
                !text.starts_with("https:"))
                parts.push_back(part);
        }
        if (parts.empty())
            return;
        const HWND part = parts[static_cast<std::size_t>(Upto(static_cast<int>(parts.size())))];
        const auto post = [part](UINT message, int wide, LPARAM place = 0) {
            PostMessageW(part, message, static_cast<WPARAM>(wide), place);
        };
        wchar_t name[40] = L"";
        GetClassNameW(part, name, std::size(name));
        if (Upto(5) == 0)
            PostMessageW(FindWindowExW(Settings(), nullptr, WC_TABCONTROLW, nullptr), TCM_SETCURFOCUS,
                         static_cast<WPARAM>(Upto(8)), 0);
        if (std::wstring(name) == L"ComboBox") {
            post(CB_SETCURSEL, Upto(12));
            PostMessageW(Settings(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(part), CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(part));
            return;
        }
        RECT size{};
        GetClientRect(part, &size);
        const LPARAM place = MAKELPARAM(Upto(std::max(1L, size.right)), Upto(std::max(1L, size.bottom)));
        for (const int message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
            if (message != WM_LBUTTONDBLCLK || Upto(3) == 0)
                post(static_cast<UINT>(message), 0, place);
        post(WM_KEYDOWN, One_Of({VK_RIGHT, VK_DOWN, VK_HOME, VK_END, VK_PRIOR}), 1);
        post(WM_CHAR, One_Of({'d', 'm', 'y', ' ', '7'}), 1);
    }

    /// Sets the clock, also beyond the calendar's years, or changes the screen size.
    void Use_Surroundings() {
        ++did_["jumps"];
        if (Upto(3) > 0)
            return Set_Clock(static_cast<WORD>(Upto(4) == 0 ? 1900 + Upto(300) : 2027),
                             static_cast<WORD>(1 + Upto(12)), static_cast<WORD>(1 + Upto(28)), 23, 59, 58);
        Set_Screen(One_Of({800, 1024, 1024}));
        SendNotifyMessageW(HWND_BROADCAST, WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    }
    static void Set_Screen(DWORD width) {
        DEVMODEW mode{};
        mode.dmSize = sizeof mode;
        mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
        mode.dmPelsWidth = width;
        mode.dmPelsHeight = width * 3 / 4;
        ChangeDisplaySettingsW(&mode, 0);
    }

    void Use_Mouse() {
        RECT place{};
        GetWindowRect(program_->Calendar(), &place);
        const bool title = Upto(3) == 0;
        const POINT point{place.left + 30 + Upto(place.right - place.left - 60),
                          place.top + (title ? 5 + Upto(16) : Upto(place.bottom - place.top))};
        if (WindowFromPoint(point) != program_->Calendar())
            return;
        const int kind = Upto(8);
        if (kind == 0) // not with the mouse: a button released over the menu may choose the item that ends
                       // the program
            return Open_Menu(title);
        Send_Mouse(point, MOUSEEVENTF_LEFTDOWN);
        if (kind == 1 && Wait_Until([this] { return program_->Window("Vellatro_Balloon") != nullptr; }, 500))
            ++did_["balloons"];
        Send_Mouse(point, MOUSEEVENTF_LEFTUP);
        if (kind < 5)
            return;
        Send_Mouse(point, MOUSEEVENTF_LEFTDOWN); // the second click of a double click
        Send_Mouse(point, MOUSEEVENTF_LEFTUP);
    }

    void Use_Key() {
        if (!Has_Keyboard(program_->Calendar()))
            return Use_Mouse();
        const WORD key = One_Of({VK_F1,   VK_F2,     VK_F3,     VK_F4, VK_F5,   VK_F8,    VK_F9,
                                 VK_F12,  VK_LEFT,   VK_RIGHT,  VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT,
                                 VK_HOME, VK_RETURN, VK_DELETE, 'M',   'Y',     VK_APPS});
        const bool menu = key == 'M' || key == 'Y' || key == VK_APPS;
        // A menu that opens under the mouse has an item selected already, so the keys that follow could reach
        // the item that ends the program.
        if (menu)
            Send_Mouse({GetSystemMetrics(SM_CXSCREEN) - 2, 2}, 0);
        Send_Key(key);
        if (menu)
            Use_Menu();
    }

    void Act() {
        Sync();
        if (program_->Box_Window())
            Answer_Box();
        else if (Menu())
            program_->Choose({VK_ESCAPE});
        else if (Upto(40) == 0)
            Use_Surroundings();
        else if (Settings() && Upto(8) > 0)
            Use_Settings();
        else if (Upto(20) == 0)
            PostMessageW(Editor(), WM_CLOSE, 0, 0);
        else if (Editor() && Upto(3) > 0)
            Use_Editor();
        else if (!Settings() && Upto(8) == 0)
            Open_Menu(false, true);
        else if (Upto(3) == 0)
            Use_Key();
        else
            Use_Mouse();
    }

    void Close_All() {
        EXPECT_TRUE(Wait_Until(
            [this] {
                Sync();
                if (program_->Exit_Code(0))
                    return true;
                if (program_->Box_Window())
                    Answer_Box();
                else if (Menu())
                    program_->Choose({VK_ESCAPE});
                else if (Editor() || Settings())
                    PostMessageW(Editor() ? Editor() : Settings(), WM_CLOSE, 0, 0);
                else
                    return !Wait_Until([this] { return program_->Windows(true) != 1; }, 300);
                return false;
            },
            20000))
            << "a window stays open";
    }

    std::mt19937 random_;
    std::map<std::string, int> did_;
    const Program *program_ = nullptr;
};

TEST_F(Random_Use, Goes_On) {
    const char *minutes = std::getenv("VT_MINUTES");
    const int end = minutes ? std::atoi(minutes) : 1;
    const DWORD begin = GetTickCount();
    const char *given = std::getenv("VT_SEED");
    const auto seed = given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : unsigned{begin};
    random_.seed(seed);
    std::printf("seed %u\n", seed);
    CreateDirectoryW(Path_Of(L"Default").c_str(), nullptr);
    Write_File(L"Default\\settings.ini", "1=0-3-1\r\n5=1-0-1\r\n6=0-6-0\r\n");
    for (int month = 1; month <= 12; ++month)
        Write_File(L"Default\\" + std::to_wstring(month) + L".jpg", Small_Jpeg(month));
    Write_File(L"in.csv",
               "\"Subject\",\"Start Date\",\"Description\"\r\n\"Vellatro\",\"5/6/2027\",\"New\"\r\n");
    Write_Data("\"12/5/9999=Always\"\r\n\"6/5/2027=Once\"\r\n");
    const auto minute = [begin] { return static_cast<int>((GetTickCount() - begin) / 60000); };
    std::ptrdiff_t most = 0; // objects, in the first ten minutes
    int starts = 0, told = 0;
    while (minute() < end) {
        if (starts == 0 || program_->Exit_Code(0)) {
            ASSERT_TRUE(starts == 0 || program_->Exit_Code(0) == 0U) << "the program has crashed";
            std::printf("minute %d: start %d\n", minute(), ++starts);
            program_ = &Start();
            ASSERT_TRUE(Wait_Until([this] { return program_->Calendar() || program_->Box_Window(); }, 30000));
        }
        Act();
        ASSERT_FALSE(HasFailure());
        if (minute() < told)
            continue;
        Close_All();
        if (program_->Exit_Code(0))
            continue;
        ++told;
        const std::ptrdiff_t objects = program_->Gdi_Objects() + program_->Windows(false);
        std::printf("minute %d: %d GDI objects, %d windows, %d handles, %ld KB;", minute(),
                    static_cast<int>(program_->Gdi_Objects()), static_cast<int>(program_->Windows(false)),
                    static_cast<int>(program_->Handles()), Private_Memory(*program_));
        for (const auto &[what, times] : did_)
            std::printf(" %d %s", times, what.c_str());
        std::printf("; data file %u bytes\n", static_cast<unsigned>(Data().size()));
        std::fflush(stdout);
        most = std::max(most, told <= 10 ? objects : 0);
        EXPECT_LE(objects, most + 50);
    }
    EXPECT_EQ(program_->Exit_Code(0).value_or(0), 0U);
    Stop_All();
    Clear_Store();
    Set_Setting("Settings", "Show Alerts", "0");
    Set_Screen(1024);
    ASSERT_TRUE(Wait_Until([] { return Picture().pixels == Bare_Screen->pixels; }));
    Start_Calendar(); // fails if a box reports a damaged file
}

} // namespace

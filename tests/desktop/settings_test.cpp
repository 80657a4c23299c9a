// The settings dialog: what its kinds of controls store, what the calendar then shows, and what assistive
// technology finds. Other tests cover the pages for themes and files.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>

namespace {

constexpr const wchar_t *run_key = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char *saturday = "Saturday 15th May 2027";
constexpr const char *alert = "A&lert me when a date Comes up";
constexpr const char *use_system = "Use System Colours";
constexpr int normal_swatch = -7; // the swatch's identifier, relative to that of the option

/// Returns a control's name. Lists and text boxes take it from the label directly before them, as on Windows,
/// since Wine's accessible objects do not.
std::string Name_Of(HWND control) {
    wchar_t class_name[40] = L"";
    GetClassNameW(control, class_name, std::size(class_name));
    const std::wstring kind = class_name;
    if (kind != L"ComboBox" && kind != L"Edit")
        return Item_Of(control).name;
    const HWND label = GetWindow(control, GW_HWNDPREV);
    GetClassNameW(label, class_name, std::size(class_name));
    return std::wstring(class_name) == L"Static" ? Text_Of(label) : "";
}

class Settings_Dialog : public Desktop_Test {
protected:
    static HWND Dialog() {
        const HWND window = FindWindowA("Vellatro_Settings_Frm", nullptr);
        return IsWindowVisible(window) ? window : nullptr;
    }
    /// Returns the button with the caption, or the control whose identifier is `further` higher.
    static HWND Part(const char *caption, int further = 0) {
        const HWND part = FindWindowExA(Dialog(), nullptr, "Button", caption);
        EXPECT_TRUE(part) << caption;
        return further == 0 ? part : GetDlgItem(Dialog(), GetDlgCtrlID(part) + further);
    }
    static HWND Tabs() { return FindWindowExA(Dialog(), nullptr, "SysTabControl32", nullptr); }
    static LRESULT Tab() { return SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0) + 1; }
    static void Turn_To(int tab) { SendMessageA(Tabs(), TCM_SETCURFOCUS, static_cast<WPARAM>(tab - 1), 0); }
    static void Push(const char *caption) { SendMessageA(Part(caption), BM_CLICK, 0, 0); }
    static void Choose(HWND combo, const char *item) {
        ASSERT_GE(
            SendMessageA(combo, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(item)), 0);
        SendMessageA(Dialog(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(combo));
    }
    static void Click_At(HWND part, int right, int down) { // in percent of its size
        RECT place{};
        GetClientRect(part, &place);
        for (const UINT message : {UINT{WM_LBUTTONDOWN}, UINT{WM_LBUTTONUP}})
            SendMessageA(part, message, 0, MAKELPARAM(place.right * right / 100, place.bottom * down / 100));
    }
    static bool Holds(const std::string &line) { return Store().find(line + "\n") != std::string::npos; }
    /// Clicks Apply, and expects it to add the line to the registry.
    static void Apply(const std::string &line) {
        EXPECT_FALSE(Holds(line)) << line;
        Click_On(Part("&Apply"), [&] { return Holds(line); });
    }
    static std::wstring Run() {
        wchar_t text[MAX_PATH + 1] = L"";
        DWORD size = sizeof text;
        RegGetValueW(HKEY_LOCAL_MACHINE, run_key, L"Vellatro", RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }
};

TEST_F(Settings_Dialog, Each_Kind_Of_Control_Reaches_The_Store_And_The_Calendar) {
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, run_key, L"Vellatro");
    const Program &program = Start_Calendar();
    // A whole repaint, before those of single boxes. Keys could arrive only after the menu has opened.
    program.Do_Default("Next month");
    program.Do_Default("Previous month");
    program.Open_Settings();
    Turn_To(2);
    Click_At(Part(use_system, normal_swatch), 50, 50);
    Choose(Part(use_system, 17), "Yellow");
    Apply("Normal=65535");
    EXPECT_TRUE(Becomes(0xFFFF00U, [&] {
        const RECT place = program.Named(saturday).place;
        return Picture().At(place.right - 6, place.bottom - 6);
    }));
    Click_At(Part(use_system, 8), 40, 60); // the palette
    Apply("Normal=" + Text_Of(Part(use_system, 11)));
    Push(use_system);
    Apply("Menu Colour Source=0");

    Turn_To(3);
    Push(alert);
    Push("Run at &Startup");
    Apply("Show Alerts=0");
    EXPECT_TRUE(Becomes(Path_Of(L"vellatro.exe"), Run)); // written after the line that Apply waits for
    Push("Run at &Startup");
    const HWND date = FindWindowExA(Part("&Time:", 4), nullptr, "Edit", nullptr);
    SendMessageA(date, EM_SETSEL, 0, -1);
    for (const char letter : std::string("mm/yyyy"))
        SendMessageA(date, WM_CHAR, static_cast<WPARAM>(letter), 0);
    Apply("Bar Date Format=mm/yyyy");
    EXPECT_EQ(Run(), L"");
    EXPECT_TRUE(Becomes(std::string("05/2027"), [&] { return program.Title(); }));

    Turn_To(4);
    const RECT before = program.Named(saturday).place;
    Push("Thin Box");
    Apply("Style=0");
    EXPECT_TRUE(Wait_Until([&] {
        const RECT place = program.Named(saturday).place;
        return place.bottom > place.top && place.bottom - place.top < before.bottom - before.top;
    }));
    Click_At(Part("&Manual position", 2), 10, 10); // the miniature of the screen
    Apply("Alignment=6");
    EXPECT_TRUE(Becomes(0L, [&] { return program.Items().at(0).place.left; }));

    Turn_To(3);
    Push(alert);
    Send_Key(VK_ESCAPE);
    ASSERT_TRUE(Wait_Until([] { return !Dialog(); }));
    EXPECT_TRUE(Holds("Show Alerts=0") && Holds("Settings Tab=3")) << Store();
    program.Open_Settings();
    EXPECT_FALSE(SendMessageA(Part(alert), BM_GETCHECK, 0, 0));
}

TEST_F(Settings_Dialog, Every_Control_Has_A_Name_And_The_Painted_Ones_More) {
    Set_Setting("Settings", "Settings Tab", "1");
    Set_Setting("Settings", "Show Alerts", "0");
    Set_Setting("Colours", "Menu Colour Source", "0");
    const Program &program = Start_Calendar();
    const HWND dialog = program.Open_Settings();
    EXPECT_EQ(Item_Of(Tabs()).name, "Settings pages");

    const struct {
        int page;
        const char *name, *value, *action;
        long role, state;
    } rows[] = {
        {1, "Today's box colour, red 192, green 192, blue 255", "", "Select", ROLE_SYSTEM_RADIOBUTTON,
         STATE_SYSTEM_CHECKED},
        {1, "Text colour, red 255, green 255, blue 255", "", "Select", ROLE_SYSTEM_RADIOBUTTON,
         STATE_SYSTEM_UNAVAILABLE},
        {1, "Palette", "red ", "Pick", ROLE_SYSTEM_PUSHBUTTON, 0},
        {3, "Position on the screen, Bottom Right", "", "", ROLE_SYSTEM_PUSHBUTTON, 0},
    };
    std::size_t described = 0;
    for (int page = 0; page < 8; ++page) {
        const auto shows = [&] { return Tab() == page + 1; };
        for (int i = 0; i < 3 && !shows(); ++i) { // a key is lost while X changes the focus
            Send_Key(VK_RIGHT);
            Wait_Until(shows, 2000);
        }
        ASSERT_TRUE(shows()) << page;
        for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
            if (!IsWindowVisible(control) || (GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) == 0)
                continue;
            EXPECT_NE(Name_Of(control), "") << "page " << page << ", control " << GetDlgCtrlID(control);
            const Item item = Item_Of(control);
            for (const auto &row : rows) {
                if (item.name != row.name)
                    continue;
                ++described;
                EXPECT_EQ(page, row.page);
                EXPECT_EQ(item.role, row.role) << row.name;
                EXPECT_EQ(item.state, row.state | STATE_SYSTEM_FOCUSABLE) << row.name;
                EXPECT_EQ(item.value.substr(0, 4) + item.action, std::string(row.value) + row.action);
            }
            if (!item.name.starts_with("Day numbers colour"))
                continue;
            Item_Of(control, true);
            EXPECT_TRUE(Wait_Until([&] { return (Item_Of(control).state & STATE_SYSTEM_CHECKED) != 0; }));
        }
    }
    EXPECT_EQ(described, std::size(rows));
}

} // namespace

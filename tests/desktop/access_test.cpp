// The settings dialog as assistive technology and the keyboard find it: every control that can be reached has
// a name, and those that paint themselves a role, a state and a default action.
#include "tests/desktop/driver.h"

#include <commctrl.h>
#include <oleacc.h>

namespace {

/// The name that a control is given by the label directly before it: Wine's own objects of lists and text
/// boxes do not look there, as those of Windows do.
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

TEST_F(Desktop_Test, Every_Control_Of_The_Settings_Has_A_Name_And_The_Painted_Ones_More) {
    Set_Setting("Settings", "Settings Tab", "1");
    Set_Setting("Settings", "Show Alerts", "0");
    Set_Setting("Colours", "Menu Colour Source", "0");
    const Program &program = Start_Calendar();
    program.Click(program.Named("Wednesday 12th May 2027, today").place, MOUSEEVENTF_RIGHTDOWN);
    ASSERT_TRUE(Wait_Until([&] { return program.Window("#32768") != nullptr; }));
    program.Choose({VK_UP, VK_UP, VK_RETURN});
    const auto dialog = [&] { return program.Window("Vellatro_Settings_Frm"); };
    ASSERT_TRUE(Wait_Until([&] { return dialog() != nullptr; }));
    const HWND tabs = FindWindowExW(dialog(), nullptr, WC_TABCONTROLW, nullptr);
    EXPECT_EQ(Item_Of(tabs).name, "Settings pages");

    const auto reached = [&] {
        std::vector<HWND> controls;
        for (HWND control = GetWindow(dialog(), GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT))
            if (IsWindowVisible(control) && (GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) != 0)
                controls.push_back(control);
        return controls;
    };
    const auto painted = [&](const std::string &name) {
        for (const HWND control : reached())
            if (Item_Of(control).name == name)
                return control;
        return HWND{};
    };
    const struct {
        int page;
        const char *name;
        long role, state;
        const char *value, *action;
    } rows[] = {
        {1, "Today's box colour, red 192, green 192, blue 255", ROLE_SYSTEM_RADIOBUTTON, STATE_SYSTEM_CHECKED,
         "", "Select"},
        {1, "Day numbers colour, red 0, green 0, blue 0", ROLE_SYSTEM_RADIOBUTTON, 0, "", "Select"},
        {1, "Text colour, red 255, green 255, blue 255", ROLE_SYSTEM_RADIOBUTTON, STATE_SYSTEM_UNAVAILABLE,
         "", "Select"},
        {1, "Palette", ROLE_SYSTEM_PUSHBUTTON, 0, "red ", "Pick"},
        {3, "Position on the screen, Bottom Right", ROLE_SYSTEM_PUSHBUTTON, 0, "", ""},
        {7, "https://vellatro.example/", ROLE_SYSTEM_LINK, STATE_SYSTEM_LINKED, "", "Open"},
    };
    std::size_t seen = 0;
    for (int page = 0; page < 8; ++page) {
        for (int i = 0; i < 3 && page > 0 && SendMessageW(tabs, TCM_GETCURSEL, 0, 0) != page; ++i) {
            Send_Key(VK_RIGHT); // a key is lost while X changes the focus
            Wait_Until([&] { return SendMessageW(tabs, TCM_GETCURSEL, 0, 0) == page; }, 2000);
        }
        ASSERT_EQ(SendMessageW(tabs, TCM_GETCURSEL, 0, 0), page);
        for (const HWND control : reached()) {
            EXPECT_NE(Name_Of(control), "") << "page " << page << ", control " << GetDlgCtrlID(control);
            ++seen;
        }
        for (const auto &row : rows) {
            if (row.page != page)
                continue;
            const Item item = Item_Of(painted(row.name));
            EXPECT_EQ(item.role, row.role) << row.name;
            EXPECT_EQ(item.state, row.state | STATE_SYSTEM_FOCUSABLE) << row.name;
            EXPECT_EQ(item.value.substr(0, 4), row.value) << row.name;
            EXPECT_EQ(item.action, row.action);
        }
        if (page != 1)
            continue;
        const HWND numbers = painted(rows[1].name);
        Item_Of(numbers, true);
        EXPECT_TRUE(Wait_Until([&] { return (Item_Of(numbers).state & STATE_SYSTEM_CHECKED) != 0; }));
        EXPECT_EQ(Item_Of(painted(rows[0].name)).state & STATE_SYSTEM_CHECKED, 0);
    }
    EXPECT_GT(seen, 50U);
}

} // namespace

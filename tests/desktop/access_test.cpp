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
    const HWND dialog = program.Open_Settings();
    const HWND tabs = FindWindowExW(dialog, nullptr, WC_TABCONTROLW, nullptr);
    EXPECT_EQ(Item_Of(tabs).name, "Settings pages");

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
        const auto shows = [&] { return SendMessageW(tabs, TCM_GETCURSEL, 0, 0) == page; };
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

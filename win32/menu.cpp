// Native popup menus.
#include "platform/menu.h"

#include "win32/menu_images.h"
#include "win32/mirror.h"
#include "win32/units.h"
#include "win32/wide_text.h"

namespace platform {

namespace {

/// No item is ever checked: without the column for check marks the images stand at the edge.
void Leave_Check_Column_Out(HMENU menu) {
    MENUINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIM_STYLE;
    info.dwStyle = MNS_NOCHECK;
    SetMenuInfo(menu, &info);
}

void Insert_Item(HMENU menu, UINT position, const Menu_Item &item) {
    std::wstring text = win32::To_Wide(item.text);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_STRING | MIIM_STATE;
    info.fState = item.enabled ? MFS_ENABLED : MFS_GRAYED;
    info.wID = static_cast<UINT>(item.id);
    info.dwTypeData = text.data();
    win32::Set_Menu_Image(info, item.image);
    InsertMenuItemW(menu, position, TRUE, &info);
}

} // namespace

int Track_Popup_Menu(Form_Model &owner, const std::vector<Menu_Item> &items, const Point *at) {
    const HWND window = win32::Window_Of_Form(owner);
    const win32::Unique_Menu menu(CreatePopupMenu());
    if (window == nullptr || !menu)
        return 0;
    Leave_Check_Column_Out(menu.Get());
    UINT position = 0;
    for (const Menu_Item &item : items)
        Insert_Item(menu.Get(), position++, item);
    POINT place = {};
    GetCursorPos(&place);
    if (at != nullptr) {
        place = {win32::To_Pixels(at->x), win32::To_Pixels(at->y)};
        ClientToScreen(window, &place);
    }
    // Without the foreground a click elsewhere would not close the menu, and without a message after it the
    // next menu would close at once.
    SetForegroundWindow(window);
    constexpr UINT flags = TPM_RETURNCMD | TPM_NONOTIFY | TPM_CENTERALIGN | TPM_RIGHTBUTTON;
    static_assert(flags == 390);
    const BOOL chosen = TrackPopupMenu(menu.Get(), flags, place.x, place.y, 0, window, nullptr);
    PostMessageW(window, WM_NULL, 0, 0);
    return static_cast<int>(chosen);
}

} // namespace platform

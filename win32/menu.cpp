// Native popup menus.
#include "platform/menu.h"

#include "win32/menu_images.h"
#include "win32/mirror.h"
#include "win32/units.h"
#include "win32/wide_text.h"

namespace platform {

namespace {

/// The images take the place of the check marks, so that there is no empty column before them.
void Share_Check_Column(HMENU menu) {
    MENUINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIM_STYLE;
    info.dwStyle = MNS_CHECKORBMP;
    SetMenuInfo(menu, &info);
}

void Insert_Item(HMENU menu, UINT position, const Menu_Item &item, HBITMAP image) {
    std::wstring text = win32::To_Wide(item.text);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_STRING | MIIM_STATE | (image != nullptr ? MIIM_BITMAP : 0U);
    info.fState = item.enabled ? MFS_ENABLED : MFS_GRAYED;
    info.wID = static_cast<UINT>(item.id);
    info.dwTypeData = text.data();
    info.hbmpItem = image;
    InsertMenuItemW(menu, position, TRUE, &info);
}

} // namespace

int Track_Popup_Menu(Form_Model &owner, const std::vector<Menu_Item> &items, const Point *at) {
    const HWND window = win32::Window_Of_Form(owner);
    // A menu does not own its bitmaps: they are declared first, to go after it.
    std::vector<win32::Unique_Bitmap> images;
    const win32::Unique_Menu menu(CreatePopupMenu());
    if (window == nullptr || !menu)
        return 0;
    Share_Check_Column(menu.Get());
    for (const Menu_Item &item : items) {
        images.push_back(win32::Draw_Menu_Image(item.image));
        Insert_Item(menu.Get(), static_cast<UINT>(images.size() - 1), item, images.back().Get());
    }
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

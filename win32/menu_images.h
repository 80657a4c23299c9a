// The small pictures of menu items, drawn for the screen's dots per inch.
#pragma once

#include "platform/menu.h"
#include "win32/handles.h"

#include <vector>

namespace win32 {

/// The pictures of a menu's items. This object must live as long as the menu. On Windows Vista and newer, the
/// pictures are bitmaps with transparency, because owner-drawn pictures would make the system draw the whole
/// menu in the old style. Older systems ask the menu's owner, which must be a form's window, to draw the
/// pictures.
class Menu_Images {
public:
    /// Gives an item its picture, a paler one if the item is disabled. Does nothing for Menu_Image::None.
    void Set(MENUITEMINFOW &item, platform::Menu_Image image);
    /// Returns whether the system's menus draw transparent pictures themselves.
    static bool Show_Transparency();

private:
    std::vector<Unique_Bitmap> bitmaps_;
};

/// Answers WM_MEASUREITEM or WM_DRAWITEM for a menu item's picture. Returns whether it answered `message`.
bool Answer_Menu_Image(UINT message, LPARAM lparam);

} // namespace win32

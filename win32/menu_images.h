// The small pictures of menu items, drawn at the size that the screen's dots per inch ask for.
#pragma once

#include "platform/menu.h"
#include "win32/handles.h"

#include <vector>

namespace win32 {

/// The pictures of a menu's items, which live as long as the menu. Windows Vista and newer lay a picture over
/// the item as its transparency says. Before, the menu's owner, which has to be a form's window, is asked to
/// draw it; the newer ones would draw the whole menu in the old way then.
class Menu_Images {
public:
    /// Gives an item its picture, a paler one where the item cannot be chosen; nothing with Menu_Image::None.
    void Set(MENUITEMINFOW &item, platform::Menu_Image image);
    /// Returns whether the system's menus lay pictures over their items by themselves.
    static bool Show_Transparency();

private:
    std::vector<Unique_Bitmap> bitmaps_;
};

/// Whether `message` is a menu's question for the size or the drawing of such a picture. It is then answered.
bool Answer_Menu_Image(UINT message, LPARAM lparam);

} // namespace win32

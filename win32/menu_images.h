// The small pictures of menu items, drawn at the size that the screen's dots per inch ask for.
#pragma once

#include "platform/menu.h"
#include "win32/handles.h"

namespace win32 {

/// Gives a menu item its picture; does nothing with Menu_Image::None. The menu's owner, which has to be a
/// form's window, is asked to draw it: not all systems' menus show a bitmap's transparency.
void Set_Menu_Image(MENUITEMINFOW &item, platform::Menu_Image image);

/// Whether `message` is a menu's question for the size or the drawing of such a picture. It is then answered.
bool Answer_Menu_Image(UINT message, LPARAM lparam);

} // namespace win32

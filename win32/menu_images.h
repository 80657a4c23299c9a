// The small pictures of menu items, drawn at the size that the screen's dots per inch ask for.
#pragma once

#include "platform/menu.h"
#include "win32/handles.h"

namespace win32 {

/// A new 32-bit bitmap of the picture with smooth edges; null for Menu_Image::None. It lies on the menu's
/// colour, since not all systems' menus know transparency.
Unique_Bitmap Draw_Menu_Image(platform::Menu_Image image);

} // namespace win32

// Native popup menus.
#pragma once

#include "platform/forms.h"

#include <string>
#include <vector>

namespace platform {

/// The small pictures of menu items. The platform draws them in the size that the screen needs.
enum class Menu_Image : std::uint8_t { None, Clear, Edit, Settings, Exit, Undo };

struct Menu_Item {
    int id = 0; ///< 1 or more
    std::string text;
    Menu_Image image = Menu_Image::None;
    bool enabled = true;           ///< false: grey, and the user cannot choose it
    bool separator_before = false; ///< a line separates the item from the preceding one
};

/// Shows the items as a popup menu and waits for the user's choice. The form `owner` owns the menu. Centres
/// the top edge of the menu on the mouse, or on `at` (twips on the owner). Returns the id of the chosen item,
/// or 0 if the user dismissed the menu.
int Track_Popup_Menu(const Form_Model &owner, const std::vector<Menu_Item> &items, const Point *at = nullptr);

} // namespace platform

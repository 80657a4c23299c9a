// Native popup menus.
#pragma once

#include "platform/forms.h"

#include <string>
#include <vector>

namespace platform {

/// The small pictures that menu items can bear; drawn by the platform at the size the screen wants.
enum class Menu_Image : std::uint8_t { None, Clear, Edit, Settings, Exit, Undo };

struct Menu_Item {
    int id = 0; ///< 1 or more
    std::string text;
    Menu_Image image = Menu_Image::None;
    bool enabled = true;           ///< else greyed, and not to be chosen
    bool separator_before = false; ///< a line stands between it and the item before
};

/// Shows the items as a popup menu centred on the mouse and returns the id of the chosen one, 0 when it was
/// dismissed. `owner` is the form that the menu belongs to. With `at`, in twips on the owner, the menu opens
/// there instead.
int Track_Popup_Menu(const Form_Model &owner, const std::vector<Menu_Item> &items, const Point *at = nullptr);

} // namespace platform

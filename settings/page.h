// What the pages of the settings dialog have in common: their includes, and distances in twips, of which 15
// are a pixel at 96 dots per inch.
#pragma once

#include "calendar/main_frm.h"
#include "toolkit/form.h"
#include "toolkit/list_controls.h"

#include <initializer_list>

namespace layout {

constexpr int page_width = 5280;
constexpr int page_height = 5400;
constexpr int margin = 11 * 15; ///< inside of a group box
constexpr int gap = 7 * 15;
constexpr int small_gap = 4 * 15;
constexpr int group_top = 18 * 15; ///< from the top of a group box to its first row
constexpr int row_height = 21 * 15;
constexpr int check_height = 18 * 15;
constexpr int inner_width = page_width - 2 * margin; ///< of a group box as wide as the page

constexpr int backdrop = 6 * 15; ///< of desktop around boxes of the calendar

} // namespace layout

/// The system's colour of the desktop, which boxes of the calendar are shown on.
constexpr platform::Colour desktop_colour = platform::System_Colour(1);

/// Puts controls into a frame.
inline void Put_Into(const Frame &frame, std::initializer_list<Control *> controls) {
    for (Control *control : controls)
        control->Set_Container(frame);
}

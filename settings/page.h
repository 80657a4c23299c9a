// What the pages of the settings dialog have in common: their includes, their colours, the examples of boxes
// on them, and distances in twips, of which 15 are a pixel at 96 dots per inch. The pages' constructors are
// not to be inlined: all in one, in that of the dialog, they take more code.
#pragma once

#include "calendar/main_frm.h"
#include "toolkit/form.h"
#include "toolkit/list_controls.h"

class Box_Layout;

namespace layout {

constexpr int one_pixel = 15;
constexpr int page_width = 5280;
constexpr int page_height = 5400;
constexpr int margin = 11 * 15; ///< inside of a group box
constexpr int gap = 7 * 15;
constexpr int small_gap = 4 * 15;
constexpr int group_top = 18 * 15; ///< from the top of a group box to its first row
constexpr int group_gap = 5 * 15;  ///< between group boxes, which have room at their tops
constexpr int row_height = 21 * 15;
constexpr int check_height = 18 * 15;
constexpr int button_height = 23 * 15;
constexpr int inner_width = page_width - 2 * margin; ///< of a group box as wide as the page

constexpr int backdrop = 6 * 15; ///< of desktop around boxes of the calendar

} // namespace layout

// The system's colours. Boxes of the calendar are shown on that of the desktop.
constexpr Colour desktop_colour = System_Colour(1);
constexpr Colour face_colour = System_Colour(15);
constexpr Colour shadow_colour = System_Colour(16);
constexpr Colour grey_text_colour = System_Colour(17);
constexpr Colour text_colour = System_Colour(18);

/// Gives a control without a caption the name that is read aloud.
void Name_Aloud(Control &control, const char *name);

/// A rectangle of the calendar's layout in twips, moved as `from` (pixels) must be for its left top corner to
/// be at `left` and `top` (twips).
Rect Moved(Rect pixels, const Rect &from, int left, int top);

/// Gives a box and the text in it their look, and their places with the box at `left` and `top`.
void Place_Example(const Box_Layout &style, Label &number, Label &text, int left, int top);

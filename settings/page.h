// What the pages of the settings dialog have in common: their includes, their colours, the examples of boxes
// on them, and how they show settings and take what is chosen.
#pragma once

#include "calendar/main_frm.h"
#include "toolkit/form.h"
#include "toolkit/list_controls.h"
#include "toolkit/rows.h"

#include <vector>

class Box_Layout;

namespace layout {

constexpr int page_width = 5280;
constexpr int page_height = 5400;
constexpr int group_gap = 5 * 15;                    ///< between group boxes, which have room at their tops
constexpr int inner_width = page_width - 2 * margin; ///< of a group box as wide as the page

constexpr int backdrop = 6 * 15; ///< of desktop around boxes of the calendar

} // namespace layout

// The system's colours. Boxes of the calendar are shown on that of the desktop.
constexpr Colour desktop_colour = System_Colour(1);
constexpr Colour face_colour = System_Colour(15);
constexpr Colour shadow_colour = System_Colour(16);
constexpr Colour grey_text_colour = System_Colour(17);
constexpr Colour text_colour = System_Colour(18);

/// A page: its controls are made in its frame, in the order of the Tab key.
class Page {
public:
    Page(const Page &) = delete;
    Page &operator=(const Page &) = delete;

    /// Shows the settings.
    virtual void Show(const Settings &settings);
    /// Puts what is chosen into the settings. What is no choice leaves its setting as it is.
    virtual void Write_To(Settings &settings) const;
    /// Places the controls, also after a change of the dots per inch.
    virtual void Lay_Out() = 0;

protected:
    explicit Page(Frame &frame) : frame_(frame), dialog_(frame.Owner()) {}
    ~Page() = default;

    /// A control that holds a setting as it stands: a check box a flag, an editable combo box a text, another
    /// one a number.
    struct Choice {
        Control *control;
        Setting_Member setting;
    };
    std::vector<Choice> choices_;

    Frame &frame_;
    Form &dialog_;
};

/// Rows over the whole width of a page, and of a group box on it.
inline Rows Page_Rows() {
    return {0, 0, layout::page_width};
}
inline Rows Group_Rows() {
    return {layout::margin, layout::group_top, layout::inner_width};
}

/// Gives a control without a caption the name that is read aloud.
void Set_Access_Name(Control &control, const char *name);

/// A rectangle of the calendar's layout in twips, moved as `from` (pixels) must be for its left top corner to
/// be at `left` and `top` (twips).
Rect Translate_Rect(Rect pixels, const Rect &from, int left, int top);

/// Gives a box and the text in it their look, and their places with the box at `left` and `top`.
void Place_Example(const Box_Layout &style, Label &number, Label &text, int left, int top);

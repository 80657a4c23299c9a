// The base class of the settings dialog's pages, and the includes, colours, example boxes and procedures that
// the pages share.
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
constexpr int group_gap = 5 * 15; ///< between group boxes, in addition to the space at the top of each
constexpr int inner_width = page_width - 2 * margin; ///< of a group box as wide as the page

constexpr int backdrop = 6 * 15; ///< width of the desktop's margin around example boxes

} // namespace layout

// The system's colours. Example boxes lie on the colour of the desktop.
constexpr Colour desktop_colour = System_Colour(1);
constexpr Colour face_colour = System_Colour(15);
constexpr Colour shadow_colour = System_Colour(16);
constexpr Colour grey_text_colour = System_Colour(17);
constexpr Colour text_colour = System_Colour(18);

/// A page of the dialog. It creates its controls in its frame, in tab order.
class Page {
public:
    Page(const Page &) = delete;
    Page &operator=(const Page &) = delete;

    /// Shows the settings in the controls.
    virtual void Show(const Settings &settings);
    /// Writes the choices into the settings. A combo box that holds a number leaves its setting unchanged
    /// while it has no selection.
    virtual void Write_To(Settings &settings) const;
    /// Places the controls, also after a change of the DPI.
    virtual void Lay_Out() = 0;

protected:
    explicit Page(Frame &frame) : frame_(frame), dialog_(frame.Owner()) {}
    ~Page() = default;

    /// A control that holds one setting directly: a check box holds a flag, an editable combo box a text, any
    /// other combo box a number.
    struct Choice {
        Control *control;
        Setting_Member setting;
    };
    std::vector<Choice> choices_;

    Frame &frame_;
    Form &dialog_;
};

/// Returns empty rows: Page_Rows for a page, Group_Rows for the inside of a group box on a page.
inline Rows Page_Rows() {
    return {0, 0, layout::page_width};
}
inline Rows Group_Rows() {
    return {layout::margin, layout::group_top, layout::inner_width};
}

/// Gives a control without a caption a name for assistive technology.
void Set_Access_Name(Control &control, const char *name);

/// Returns a rectangle of the calendar's layout (pixels) in twips, moved so that the top left corner of
/// `from` (pixels) would be at `left` and `top` (twips).
Rect Translate_Rect(Rect pixels, const Rect &from, int left, int top);

/// Sets the look of an example box and its text. Places both, the box at `left` and `top` (twips).
void Place_Example(const Box_Layout &style, Label &number, Label &text, int left, int top);

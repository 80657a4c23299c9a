// The distances in dialogs, and the placement of controls in rows. Forms place all other controls
// themselves.
#pragma once

#include "toolkit/control.h"

#include <initializer_list>

/// Lengths in twips. 15 twips are one pixel at 96 dots per inch.
namespace layout {

constexpr int one_pixel = 15;
constexpr int margin = 11 * 15; ///< inside a dialog or a group box
constexpr int gap = 7 * 15;
constexpr int small_gap = 4 * 15;
constexpr int group_top = 18 * 15; ///< from the top of a group box to its first row
constexpr int row_height = 21 * 15;
constexpr int check_height = 18 * 15;
constexpr int check_mark = 18 * 15; ///< space before the caption of a check box or an option button
constexpr int button_width = 75 * 15;
constexpr int button_height = 23 * 15;

} // namespace layout

/// Returns the width of the control's caption plus the space that its kind of control needs around it.
int Usual_Width(const Control &control);

/// A column of rows of controls. A height of 0 means the usual height of that kind of control: one line for a
/// label.
class Rows {
public:
    Rows(int left, int top, int width) : left_(left), top_(top), width_(width) {}

    /// Places a control in a row of its own, with `distance` below it.
    void Add(Control &control, int distance = layout::gap, int height = 0);
    /// Places two controls side by side. Centres the first vertically on the second, and extends the second
    /// to the right edge. `height` is the second's.
    void Add_Pair(Control &first, int first_width, Control &second, int distance = layout::gap,
                  int height = 0);
    /// Places a text below the caption of the preceding check box or option button.
    void Add_Note(Label &note, int distance = layout::gap, int height = 0);
    /// Places all controls of a frame, each in a row of its own. Places labels as notes.
    void Add_All(const Frame &frame, int distance = layout::small_gap);

    /// Return the top of the next row and the bottom of the last one.
    int Top() const { return top_; }
    int Bottom() const { return top_ - distance_; }

private:
    int left_, top_, width_;
    int distance_ = 0; ///< below the last row
};

/// Places buttons side by side. The last one ends at `right`.
void Place_Buttons(std::initializer_list<Button *> buttons, int right, int top);

// The distances of dialogs, and the placing of their controls in rows. What stands in no row is placed by
// hand.
#pragma once

#include "toolkit/control.h"

#include <initializer_list>

/// In twips, of which 15 are a pixel at 96 dots per inch.
namespace layout {

constexpr int one_pixel = 15;
constexpr int margin = 11 * 15; ///< inside of a dialog or of a group box
constexpr int gap = 7 * 15;
constexpr int small_gap = 4 * 15;
constexpr int group_top = 18 * 15; ///< from the top of a group box to its first row
constexpr int row_height = 21 * 15;
constexpr int check_height = 18 * 15;
constexpr int check_mark = 18 * 15; ///< before the caption of a check box or an option button
constexpr int button_width = 75 * 15;
constexpr int button_height = 23 * 15;

} // namespace layout

/// Returns the width of a caption, with the room around it that its kind of control needs.
int Usual_Width(const Control &control);

/// Places controls below each other. A height of 0 is the usual one of the kind: of a label one line.
class Rows {
public:
    Rows(int left, int top, int width) : left_(left), top_(top), width_(width) {}

    /// Places a control in a row of its own.
    void Add(Control &control, int distance = layout::gap, int height = 0);
    /// Places two controls beside each other, the first in the middle of the second one's height. The second
    /// ends at the right edge.
    void Add_Pair(Control &first, int first_width, Control &second, int distance = layout::gap,
                  int height = 0);
    /// Places a text below the caption of the check box or option button before it.
    void Add_Note(Label &note, int distance = layout::gap, int height = 0);
    /// Places all that a frame holds, each in a row of its own; labels are notes.
    void Add_All(const Frame &frame, int distance = layout::small_gap);

    /// Returns where the next row begins, or the last one ends.
    int Top() const { return top_; }
    int Bottom() const { return top_ - distance_; }

private:
    int left_, top_, width_;
    int distance_ = 0; ///< below the last row
};

/// Places buttons beside each other, the last one's right edge at `right`.
void Place_Buttons(std::initializer_list<Button *> buttons, int right, int top);

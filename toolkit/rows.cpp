#include "toolkit/rows.h"

#include "toolkit/form.h"
#include "toolkit/list_controls.h"

using namespace layout;
using platform::Control_Kind;

namespace {

int Height_Of(const Control &control, int height = 0) {
    if (height != 0)
        return height;
    switch (control.State().kind) {
    case Control_Kind::Label:
        return platform::Line_Height(control.Font());
    case Control_Kind::Check_Box:
    case Control_Kind::Option_Button:
        return check_height;
    case Control_Kind::Button:
        return button_height;
    default:
        return row_height;
    }
}

} // namespace

int Usual_Width(const Control &control) {
    const Control_Kind kind = control.State().kind;
    const int text = platform::Text_Width(control.Caption(), control.Font());
    return text + (kind == Control_Kind::Label    ? small_gap
                   : kind == Control_Kind::Button ? 2 * margin
                                                  : check_mark + 2 * small_gap);
}

void Rows::Add(Control &control, int distance, int height) {
    height = Height_Of(control, height);
    control.Move({left_, top_, width_, height});
    top_ += height + distance;
    distance_ = distance;
}

void Rows::Add_Pair(Control &first, int first_width, Control &second, int distance, int height) {
    const int top = top_;
    Add(second, distance, height);
    const int second_left = left_ + first_width + gap;
    second.Move({second_left, top, width_ - first_width - gap, second.Height()});
    const int first_height = Height_Of(first);
    first.Move({left_, top + (second.Height() - first_height) / 2, first_width, first_height});
}

void Rows::Add_Note(Label &note, int distance, int height) {
    top_ = Bottom();
    Add(note, distance, height);
    note.Move({left_ + check_mark, note.Top(), width_ - check_mark, note.Height()});
}

void Rows::Add_All(const Frame &frame, int distance) {
    for (Control *control : frame.Owner().Controls()) {
        if (control->State().container != frame.State().index)
            continue;
        if (control->State().kind == Control_Kind::Label)
            Add_Note(static_cast<Label &>(*control), distance);
        else
            Add(*control, distance);
    }
}

void Place_Buttons(std::initializer_list<Button *> buttons, int right, int top) {
    int left = right + gap - static_cast<int>(buttons.size()) * (button_width + gap);
    for (Button *button : buttons) {
        button->Move({left, top, button_width, button_height});
        left += button_width + gap;
    }
}

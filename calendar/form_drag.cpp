#include "calendar/form_drag.h"

#include "core/settings.h"
#include "desktop/position.h"
#include "toolkit/keys.h"
#include "toolkit/units.h"

#include <utility>

using platform::Mouse_Button;

namespace {

constexpr int big_step = 10; ///< pixels by which an arrow key moves the calendar

bool May_Drag() {
    return Cur_Settings.Alignment == Manual_Position || Cur_Settings.Allow_Dragging != 0;
}

} // namespace

void Form_Drag::Begin(Mouse_Button button, Point mouse) {
    if (button != Mouse_Button::Left || !May_Drag())
        return;
    form_.Set_Pointer(platform::Pointer_Shape::Move);
    drag_ = Drag{mouse, {form_.Left(), form_.Top()}};
}

void Form_Drag::Continue(Mouse_Button held, Point mouse) {
    if (held != Mouse_Button::Left)
        return End(); // another window, such as a message box, got the release
    if (drag_ && May_Drag())
        form_.Move(form_.Left() - (drag_->mouse.x - mouse.x), form_.Top() - (drag_->mouse.y - mouse.y));
}

void Form_Drag::Drop(Mouse_Button button) {
    std::optional<Point> from;
    if (drag_)
        from = drag_->form;
    if (button == Mouse_Button::Left)
        End();
    if (button == Mouse_Button::Right || !May_Drag())
        return;
    // The guard reports a failing store once, instead of at each click on the title.
    guard_.Run([&] { keep_(from); });
}

void Form_Drag::End() {
    drag_.reset();
    form_.Set_Pointer(platform::Pointer_Shape::Arrow);
}

bool Form_Drag::Nudge(int key, bool fine) {
    const Point step = Arrow_Step(key);
    if (!May_Drag() || step == Point{})
        return false;
    if (!nudged_from_)
        nudged_from_ = Point{form_.Left(), form_.Top()};
    const int length = Pixels_To_Twips(fine ? 1 : big_step);
    form_.Move(form_.Left() + length * step.x, form_.Top() + length * step.y);
    return true;
}

void Form_Drag::End_Nudge() {
    const std::optional<Point> from = std::exchange(nudged_from_, std::nullopt);
    if (from)
        guard_.Run([&] { keep_(from); });
}

// Dragging the calendar by its title, and moving it by keys.
#include "calendar/main_frm.h"
#include "core/convert.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "platform/message_box.h"
#include "toolkit/keys.h"
#include "toolkit/units.h"

#include <utility>

using platform::Mouse_Button;

namespace {

constexpr const char *manual_question =
    "Manual Positioning is not selected. This means that next time the program is started or the month is "
    "changed the program will revert back to the set position. Do you want to change the positioning mode to "
    "manual positioning?";

constexpr int big_step = 10; ///< pixels by which a key moves the calendar

bool May_Drag() {
    return Cur_Settings.Alignment == Manual_Position || Cur_Settings.Allow_Dragging != 0;
}

/// Whether the next placement would leave the calendar where it was dropped.
bool Stays_Where_Dropped() {
    return Cur_Settings.Alignment == Manual_Position && Cur_Settings.Use_Theme_Pos != 1;
}

} // namespace

void Main_Frm::Begin_Drag(Mouse_Button button, Point mouse) {
    if (button != Mouse_Button::Left || !May_Drag())
        return;
    Set_Pointer(platform::Pointer_Shape::Move);
    drag_ = Drag{mouse, {Left(), Top()}};
}

void Main_Frm::Drag_Along(Mouse_Button held, Point mouse) {
    if (held != Mouse_Button::Left) {
        End_Drag(); // the release went elsewhere: into a message box that came in between
        return;
    }
    if (!drag_ || !May_Drag())
        return;
    Move(Left() - (drag_->mouse.x - mouse.x), Top() - (drag_->mouse.y - mouse.y));
}

void Main_Frm::Drop(Mouse_Button button) {
    const std::optional<Drag> drag = drag_;
    if (button == Mouse_Button::Left)
        End_Drag();
    if (button == Mouse_Button::Right || !May_Drag())
        return;
    // A store that refuses is told once, and not with every click on the title.
    drop_guard_.Run([&] { Keep_Place(drag); });
}

void Main_Frm::End_Drag() {
    drag_.reset();
    Set_Pointer(platform::Pointer_Shape::Arrow);
}

void Main_Frm::Nudge(int key, bool fine) {
    const bool across = key == Key_Left || key == Key_Right;
    if (!May_Drag() || (!across && key != Key_Up && key != Key_Down))
        return;
    Hide_Balloon();
    if (!nudge_)
        nudge_ = Drag{{}, {Left(), Top()}};
    const int step = Pixels_To_Twips(fine ? 1 : big_step) * (key == Key_Left || key == Key_Up ? -1 : 1);
    Move(Left() + (across ? step : 0), Top() + (across ? 0 : step));
}

void Main_Frm::End_Nudge() {
    const std::optional<Drag> from = std::exchange(nudge_, std::nullopt);
    if (from)
        drop_guard_.Run([&] { Keep_Place(from); });
}

void Main_Frm::Keep_Place(const std::optional<Drag> &drag) {
    manual_ = {Left(), Top()};
    Change_Setting(&Settings::Manual_PosX, Nearest_Int16(manual_.x));
    Change_Setting(&Settings::Manual_PosY, Nearest_Int16(manual_.y));
    // Only a move in both directions asks; a push along one edge is taken for a passing one.
    if (!drag || Left() == drag->form.x || Top() == drag->form.y || Stays_Where_Dropped())
        return;
    if (platform::Message_Box(manual_question, "Vellatro", platform::Box_Icon::Question,
                              platform::Box_Buttons::Yes_No) != platform::Box_Answer::Yes)
        return;
    const Settings before = Cur_Settings;
    Change_Setting(&Settings::Alignment, Manual_Position);
    Change_Setting(&Settings::Use_Theme_Pos, 0);
    Follow(before, true);
}

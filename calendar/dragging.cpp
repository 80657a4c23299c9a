// Stores the place to which the user moved the calendar (form_drag.h).
#include "calendar/main_frm.h"
#include "core/convert.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "platform/message_box.h"

namespace {

constexpr const char *manual_question =
    "Manual Positioning is not selected. This means that next time the program is started or the month is "
    "changed the program will revert back to the set position. Do you want to change the positioning mode to "
    "manual positioning?";

/// Returns whether the next placement leaves the calendar where the user dropped it.
bool Stays_Where_Dropped() {
    return Cur_Settings.Alignment == Manual_Position && Cur_Settings.Use_Theme_Pos != 1;
}

} // namespace

void Main_Frm::Save_Manual_Place(const std::optional<Point> &from) {
    if (place_.Is_Displaced())
        return; // not dragged: the window waits at a substitute place until a monitor shows its own
    const Point manual{Left(), Top()};
    place_.Set_Manual(manual);
    Change_Setting(&Settings::Manual_PosX, Nearest_Int16(manual.x));
    Change_Setting(&Settings::Manual_PosY, Nearest_Int16(manual.y));
    // Ask only after a move along both axes: a move along one axis counts as temporary.
    if (!from || manual.x == from->x || manual.y == from->y || Stays_Where_Dropped())
        return;
    if (platform::Message_Box(manual_question, platform::Box_Icon::Question, platform::Box_Buttons::Yes_No) !=
        platform::Box_Answer::Yes)
        return;
    const Settings before = Cur_Settings;
    Change_Setting(&Settings::Alignment, Manual_Position);
    Change_Setting(&Settings::Use_Theme_Pos, 0);
    Follow(before, true);
}

// The calendar's place on the screen and the shape of its window.
#include "calendar/main_frm.h"
#include "core/convert.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "platform/joined.h"

#include <string>
#include <vector>

void Main_Frm::Position_Form(std::int16_t code) {
    Label &lowest = Box_Lbl[35].Visible() ? Box_Lbl[35] : Box_Lbl[28];
    Placement placement;
    placement.work_area = GetDesktopRect(true);
    placement.form = {Width(), Height()};
    placement.lowest_box_bottom = lowest.Top() + lowest.Height();
    placement.manual = {Cur_Settings.Manual_PosX, Cur_Settings.Manual_PosY};
    if (const auto place = Position_Of(code, placement)) {
        Move(place->x, place->y);
        placed_ = {Left(), Top()};
    }
}

void Main_Frm::Remember_Height(int twips) {
    // Kept whole before its conversion may fail: else every tick would find another height and place the
    // window anew, also one that is being dragged.
    desktop_height_ = twips;
    try {
        Fit_Int16(twips);
    } catch (const Conversion_Error &) {
        throw Conversion_Error(platform::Joined(
            {"The height of the desktop's work area, ", std::to_string(twips),
             " twips, is beyond the 32767 that are allowed for. The calendar is placed all the same."}));
    }
}

void Main_Frm::Set_Repos() {
    Remember_Height(GetDesktopRect(true).height);
}

void Main_Frm::RePosition() {
    const int height = GetDesktopRect(true).height;
    if (height == desktop_height_)
        return;
    Position_Form(Effective_Position());
    Remember_Height(height);
}

void Main_Frm::TransparentForm() {
    std::vector<platform::Rect> seen;
    for (const platform::Control_State *control : Model().controls)
        if (control->visible)
            seen.push_back(control->bounds);
    Clip(std::move(seen));
}

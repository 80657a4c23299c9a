// The calendar's place on the screen and the shape of its window.
#include "calendar/main_frm.h"
#include "core/convert.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "platform/screen.h"
#include "toolkit/units.h"

#include <utility>
#include <vector>

namespace {

/// Returns whether anything of a place on the screen (twips) can be seen: its monitor may be gone.
bool Is_On_A_Monitor(const Rect &place) {
    const Rect pixels = Twips_To_Pixels(place);
    const Point middle{pixels.left + pixels.width / 2, pixels.top + pixels.height / 2};
    return platform::Work_Area_Around(middle).Intersects(pixels);
}

} // namespace

void Main_Frm::Position_Form(std::int16_t code) {
    Label &lowest = Box_Lbl[35].Visible() ? Box_Lbl[35] : Box_Lbl[28];
    Placement placement;
    placement.work_area = GetDesktopRect(true);
    placement.form = {Width(), Height()};
    placement.lowest_box_bottom = lowest.Top() + lowest.Height();
    const Point kept{Cur_Settings.Manual_PosX, Cur_Settings.Manual_PosY};
    const Point manual{Nearest_Int16(manual_.x), Nearest_Int16(manual_.y)};
    placement.manual = manual == kept ? manual_ : kept;
    if (const auto place = Position_Of(code, placement)) {
        Move(place->x, place->y);
        placed_ = *place;
    }
}

void Main_Frm::Set_Repos() {
    desktop_height_ = GetDesktopRect(true).height;
}

void Main_Frm::RePosition() {
    const int height = GetDesktopRect(true).height;
    if (std::exchange(desktop_height_, height) != height)
        Position_Form(Effective_Position());
    else if (!drag_ && Is_On_A_Monitor(Model().bounds))
        Put_Back();
}

void Main_Frm::TransparentForm() {
    std::vector<Rect> seen;
    for (const platform::Control_State *control : Model().controls)
        if (control->visible)
            seen.push_back(control->bounds);
    Clip(std::move(seen));
}

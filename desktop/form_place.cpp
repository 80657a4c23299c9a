#include "desktop/form_place.h"

#include "core/convert.h"
#include "desktop/position.h"
#include "platform/screen.h"
#include "toolkit/units.h"

#include <utility>

void Form_Place::Move_To(std::int16_t code, int lowest_box_bottom, Point kept) {
    Placement placement;
    placement.work_area = GetDesktopRect(true);
    placement.form = {form_.Width(), form_.Height()};
    placement.lowest_box_bottom = lowest_box_bottom;
    const Point manual{Nearest_Int16(manual_.x), Nearest_Int16(manual_.y)};
    placement.manual = manual == kept ? manual_ : kept;
    if (const auto place = Position_Of(code, placement)) {
        placed_ = home_ = *place;
        shown_ = Visible_Place();
        form_.Move(shown_.x, shown_.y);
    }
}

void Form_Place::Restore_Position() {
    if (form_.Requested_Position() != shown_) // the user has moved the form
        home_ = shown_ = form_.Requested_Position();
    const Point seen = Visible_Place();
    if (seen == shown_)
        return form_.Restore_Position();
    shown_ = seen;
    form_.Move(seen.x, seen.y);
}

/// Returns the form's place, or the nearest one that a monitor shows.
Point Form_Place::Visible_Place() const {
    const Rect home{home_.x, home_.y, form_.Width(), form_.Height()};
    return Place_In_Sight(home, Pixels_To_Twips(platform::Work_Area_Of(Twips_To_Pixels(home))));
}

bool Form_Place::Update_Work_Area_Height() {
    const int height = GetDesktopRect(true).height;
    return std::exchange(desktop_height_, height) != height;
}

// Placing a form, and bringing it back.
#include "desktop/form_place.h"

#include "core/convert.h"
#include "desktop/position.h"
#include "platform/screen.h"
#include "toolkit/units.h"

#include <utility>

void Form_Place::Put(std::int16_t code, int lowest_box_bottom, Point kept) {
    Placement placement;
    placement.work_area = GetDesktopRect(true);
    placement.form = {form_.Width(), form_.Height()};
    placement.lowest_box_bottom = lowest_box_bottom;
    const Point manual{Nearest_Int16(manual_.x), Nearest_Int16(manual_.y)};
    placement.manual = manual == kept ? manual_ : kept;
    if (const auto place = Position_Of(code, placement)) {
        form_.Move(place->x, place->y);
        placed_ = *place;
    }
}

void Form_Place::Put_Back() {
    const Rect pixels = Twips_To_Pixels(form_.Model().bounds);
    const Point middle{pixels.left + pixels.width / 2, pixels.top + pixels.height / 2};
    if (platform::Work_Area_Around(middle).Intersects(pixels))
        form_.Put_Back();
}

bool Form_Place::Take_Height() {
    const int height = GetDesktopRect(true).height;
    return std::exchange(desktop_height_, height) != height;
}

#include "desktop/position.h"

#include "core/convert.h"
#include "platform/screen.h"
#include "toolkit/units.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int64_t bottom_margin = 75; // twips: five pixels at 96 DPI
constexpr int whole = 100;

int Fit_Int32(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
        throw Conversion_Error("The position of the calendar does not fit into a 32-bit number.");
    return static_cast<int>(value);
}

/// Returns one coordinate of a calendar that occupies `taken` of the work area's `length`. Rounds the offset
/// from `begin` towards zero, even the negative offset of a calendar that is larger than the work area.
int Coordinate(std::int64_t begin, std::int64_t length, std::int64_t taken, int hundredths) {
    const std::int64_t free = Fit_Int32(length - taken);
    return Fit_Int32(begin + free * hundredths / whole);
}

} // namespace

std::optional<Point> Position_Of(std::int16_t code, const Placement &placement) {
    if (!Is_Position(code))
        return std::nullopt;
    if (code == Manual_Position)
        return placement.manual;
    const Position &position = Positions[code];
    const Rect &work = placement.work_area;
    // At the bottom, the lowest row of boxes counts: the window's own lower edge is below it in most months.
    const std::int64_t height =
        position.above == whole ? bottom_margin + placement.lowest_box_bottom : placement.form.height;
    return Point{Coordinate(work.left, work.width, placement.form.width, position.left),
                 Coordinate(work.top, work.height, height, position.above)};
}

Point Place_In_Sight(const Rect &place, const Rect &work_area) {
    if (work_area.Intersects(place))
        return {place.left, place.top};
    // If the window is larger than the work area, its left and top edges stay visible.
    return {std::max(work_area.left, std::min(place.left, work_area.Right() - place.width)),
            std::max(work_area.top, std::min(place.top, work_area.Bottom() - place.height))};
}

Rect GetDesktopRect(bool in_twips) {
    const Rect pixels = platform::Work_Area();
    if (!in_twips)
        return pixels;
    return {Pixels_To_Twips(pixels.left), Pixels_To_Twips(pixels.top), Pixels_To_Twips(pixels.width),
            Pixels_To_Twips(pixels.height)};
}

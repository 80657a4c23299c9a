// The arithmetic of the position codes.
#include "desktop/position.h"

#include "core/convert.h"
#include "platform/screen.h"
#include "toolkit/units.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int64_t bottom_margin = 75; // twips: five pixels at 96 dots per inch

enum class Rule { Near, Centre, Far, Bottom, Manual };

struct Code_Row {
    Rule horizontal;
    Rule vertical;
};

// In the order of the codes.
constexpr Code_Row code_rows[] = {
    {Rule::Far, Rule::Bottom},    {Rule::Centre, Rule::Bottom}, {Rule::Near, Rule::Bottom},
    {Rule::Centre, Rule::Centre}, {Rule::Far, Rule::Near},      {Rule::Centre, Rule::Near},
    {Rule::Near, Rule::Near},     {Rule::Manual, Rule::Manual}, {Rule::Far, Rule::Centre},
    {Rule::Near, Rule::Centre},
};

int Fit_Int32(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
        throw Conversion_Error("The place of the calendar on the screen does not fit a 32-bit number.");
    return static_cast<int>(value);
}

/// One coordinate. The halving drops the fraction, also of a window larger than the work area.
int Coordinate(Rule rule, std::int64_t work_begin, std::int64_t work_length, std::int64_t length,
               std::int64_t lowest_box_bottom, int manual) {
    switch (rule) {
    case Rule::Near:
        return Fit_Int32(work_begin);
    case Rule::Centre:
        return Fit_Int32(Fit_Int32(work_length - length) / 2 + work_begin);
    case Rule::Far:
        return Fit_Int32(work_length - length + work_begin);
    case Rule::Bottom:
        // The window's own lower edge lies below the last week of most months, where nothing is seen of it.
        return Fit_Int32(work_length - (bottom_margin + lowest_box_bottom) + work_begin);
    case Rule::Manual:
        break;
    }
    return manual;
}

} // namespace

bool Is_Position(std::int16_t code) {
    return code >= 0 && code < static_cast<std::int16_t>(std::size(code_rows));
}

std::optional<Point> Position_Of(std::int16_t code, const Placement &placement) {
    if (!Is_Position(code))
        return std::nullopt;
    const Code_Row row = code_rows[code];
    const Rect &work = placement.work_area;
    return Point{
        Coordinate(row.horizontal, work.left, work.width, placement.form.width, 0, placement.manual.x),
        Coordinate(row.vertical, work.top, work.height, placement.form.height, placement.lowest_box_bottom,
                   placement.manual.y)};
}

Point Place_In_Sight(const Rect &place, const Rect &work_area) {
    if (work_area.Intersects(place))
        return {place.left, place.top};
    // Of a window larger than the work area the beginning counts.
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

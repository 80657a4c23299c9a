#include "ui/balloon_shape.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int radius = 150;
constexpr int tail_half_width = 120;

// The extent of the mouse pointer's arrow: to the right of its tip, and below it.
constexpr int arrow_width = 180;
constexpr int arrow_height = 300;

Point Tip_Of(Balloon_Side side, Point pointer) {
    switch (side) {
    case Balloon_Side::Below:
        return {pointer.x, pointer.y + arrow_height};
    case Balloon_Side::Right:
        return {pointer.x + arrow_width, pointer.y};
    default:
        return pointer;
    }
}

/// Returns the room for a body on one side of the pointer, from the tail to the edge of the work area.
int Room_On_Side(Balloon_Side side, Point pointer, const Rect &work) {
    const Point tip = Tip_Of(side, pointer);
    switch (side) {
    case Balloon_Side::Above:
        return tip.y - tail_length - work.top;
    case Balloon_Side::Below:
        return work.Bottom() - tip.y - tail_length;
    case Balloon_Side::Right:
        return work.Right() - tip.x - tail_length;
    case Balloon_Side::Left:
        break;
    }
    return tip.x - tail_length - work.left;
}

/// Returns the beginning of a span of `length`, moved from `begin` into the range. A span longer than the
/// range begins where the range does.
int Shift_Into_Range(int begin, int length, int range_begin, int range_end) {
    return std::max(range_begin, std::min(begin, range_end - length));
}

bool Is_Vertical(Balloon_Side side) {
    return side == Balloon_Side::Above || side == Balloon_Side::Below;
}

/// Adds a quarter of a circle, clockwise. Quarter 0 begins on the right.
void Add_Arc(std::vector<Point> &outline, Point centre, int quarter) {
    constexpr int steps = 6;
    for (int i = 0; i <= steps; ++i) {
        const double angle = (quarter + static_cast<double>(i) / steps) * std::numbers::pi / 2;
        outline.push_back({centre.x + static_cast<int>(std::lround(radius * std::cos(angle))),
                           centre.y + static_cast<int>(std::lround(radius * std::sin(angle)))});
    }
}

} // namespace

Balloon_Place Place_Balloon(Point pointer, const Rect &work, Size size) {
    Balloon_Place place;
    const auto fits = [&](Balloon_Side side) {
        return Room_On_Side(side, pointer, work) >= (Is_Vertical(side) ? size.height : size.width);
    };
    for (const Balloon_Side side :
         {Balloon_Side::Left, Balloon_Side::Right, Balloon_Side::Below, Balloon_Side::Above}) {
        if (fits(side))
            place.side = side;
    }
    place.tip = Tip_Of(place.side, pointer);
    // The tail leaves the body a quarter of the way along one side, unless an edge of the work area shifts
    // the body.
    Point corner{place.tip.x - size.width / 4, place.tip.y - size.height / 4};
    if (place.side == Balloon_Side::Above)
        corner.y = place.tip.y - tail_length - size.height;
    else if (place.side == Balloon_Side::Below)
        corner.y = place.tip.y + tail_length;
    else if (place.side == Balloon_Side::Right)
        corner.x = place.tip.x + tail_length;
    else
        corner.x = place.tip.x - tail_length - size.width;
    place.body = {Shift_Into_Range(corner.x, size.width, work.left, work.Right()),
                  Shift_Into_Range(corner.y, size.height, work.top, work.Bottom()), size.width, size.height};
    return place;
}

Rect Window_Of(const Balloon_Place &place) {
    const int left = std::min(place.body.left, place.tip.x);
    const int top = std::min(place.body.top, place.tip.y);
    return {left, top, std::max(place.body.Right(), place.tip.x) - left,
            std::max(place.body.Bottom(), place.tip.y) - top};
}

std::vector<Point> Balloon_Outline(const Balloon_Place &place) {
    const Rect &body = place.body;
    const Point tip = place.tip;
    // Keep the foot of the tail off the round corners.
    constexpr int clear = radius + tail_half_width;
    const int foot_x =
        std::clamp(tip.x, body.left + clear, std::max(body.Right() - clear, body.left + clear));
    const int foot_y = std::clamp(tip.y, body.top + clear, std::max(body.Bottom() - clear, body.top + clear));
    constexpr int half = tail_half_width;
    std::vector<Point> outline;
    const auto add = [&](Point a, Point b, Point c) {
        // A tail inside the body would cover the text.
        if (!body.Contains(tip))
            outline.insert(outline.end(), {a, b, c});
    };
    Add_Arc(outline, {body.left + radius, body.top + radius}, 2);
    if (place.side == Balloon_Side::Below)
        add({foot_x - half, body.top}, tip, {foot_x + half, body.top});
    Add_Arc(outline, {body.Right() - radius, body.top + radius}, 3);
    if (place.side == Balloon_Side::Left)
        add({body.Right(), foot_y - half}, tip, {body.Right(), foot_y + half});
    Add_Arc(outline, {body.Right() - radius, body.Bottom() - radius}, 0);
    if (place.side == Balloon_Side::Above)
        add({foot_x + half, body.Bottom()}, tip, {foot_x - half, body.Bottom()});
    Add_Arc(outline, {body.left + radius, body.Bottom() - radius}, 1);
    if (place.side == Balloon_Side::Right)
        add({body.left, foot_y + half}, tip, {body.left, foot_y - half});
    return outline;
}

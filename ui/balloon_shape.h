// The position of a balloon next to the mouse pointer, and its outline. All lengths are in twips.
#pragma once

#include "base/geometry.h"

#include <vector>

/// The side of the pointer on which the balloon's body lies. The tail points the other way.
enum class Balloon_Side { Above, Below, Right, Left };

struct Balloon_Place {
    Balloon_Side side = Balloon_Side::Above;
    Rect body; ///< on the screen; entirely within the work area if it fits
    Point tip; ///< of the tail, on the screen
};

/// From the body to the tip.
constexpr int tail_length = 240;

/// Places a body of this size above the pointer if there is room, otherwise below, right or left of it. If
/// there is no room on any side, the body covers the pointer.
Balloon_Place Place_Balloon(Point pointer, const Rect &work, Size size);

/// Returns the smallest rectangle that contains body and tip.
Rect Window_Of(const Balloon_Place &place);

/// Returns the outline of body and tail, clockwise, in the coordinates of `place`. A body that covers the
/// pointer has no tail.
std::vector<Point> Balloon_Outline(const Balloon_Place &place);

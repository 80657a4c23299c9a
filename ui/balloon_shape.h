// The position of a balloon next to the mouse pointer, and its outline. All lengths are in twips.
#pragma once

#include "base/geometry.h"

#include <vector>

/// The side of the pointer on which the balloon's body lies. The tail points the other way.
enum class Balloon_Side { Above, Below, Right, Left };

struct Balloon_Place {
    Balloon_Side side = Balloon_Side::Above;
    Rect body; ///< on the screen; entirely within the work area if it fits
    Point tip; ///< the tip of the tail, on the screen
};

/// The distance from the body to the tip of the tail.
constexpr int tail_length = 240;

/// Returns the place of a body of this size: above the pointer if there is room, otherwise below, to the
/// right or to the left of it. If there is no room on any side, the body may cover the pointer.
Balloon_Place Place_Balloon(Point pointer, const Rect &work, Size size);

/// Returns the smallest rectangle that contains the body and the tip.
Rect Window_Of(const Balloon_Place &place);

/// Returns the outline of the body and its tail, clockwise, in the coordinates of `place`. A body that covers
/// the tip has no tail.
std::vector<Point> Balloon_Outline(const Balloon_Place &place);

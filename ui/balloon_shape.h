// Where a balloon stands beside the mouse, and its outline. Pure arithmetic in twips; painting is not here.
#pragma once

#include "base/geometry.h"

#include <vector>

/// Where the balloon's body is, seen from the pointer. The tail points the other way.
enum class Balloon_Side { Above, Below, Right, Left };

struct Balloon_Place {
    Balloon_Side side = Balloon_Side::Above;
    Rect body; ///< on the screen, whole inside of the work area when that is large enough
    Point tip; ///< of the tail, on the screen
};

/// Length of the tail between the body and its tip.
constexpr int tail_length = 240;

/// Places a body of this size beside the pointer: above it where there is room, else below, right or left of
/// it. Where there is room on no side, the body covers the pointer.
Balloon_Place Place_Balloon(Point pointer, const Rect &work, Size size);

/// The smallest rectangle that holds body and tip.
Rect Window_Of(const Balloon_Place &place);

/// The outline of body and tail, clockwise, on the same plane as `place`. A body that covers the pointer has
/// no tail.
std::vector<Point> Balloon_Outline(const Balloon_Place &place);

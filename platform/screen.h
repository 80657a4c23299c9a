// The screen: its dots per inch, the work area and the mouse.
#pragma once

#include "platform/geometry.h"

namespace platform {

/// Dots per inch of the screen that shows the calendar, 96 at normal size.
int Dots_Per_Inch();

/// The work area of the primary monitor in pixels: the screen less the task bar.
Rect Work_Area();

/// The mouse position in screen pixels.
Point Mouse_Position();

} // namespace platform

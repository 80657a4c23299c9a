// The screen: its dots per inch, its size, the work area and the mouse.
#pragma once

#include "base/geometry.h"

namespace platform {

/// Dots per inch of the screen that shows the calendar, 96 at normal size.
int Dots_Per_Inch();

/// The size of the primary monitor in pixels. Its left top corner is (0, 0).
Size Screen_Size();

/// The work area of the primary monitor in pixels: the screen less the task bar.
Rect Work_Area();

/// The work area of the monitor that `point` (screen pixels) is on, or is nearest to, in pixels.
Rect Work_Area_Around(Point point);
/// The same for the monitor that most of `place` is on.
Rect Work_Area_Of(const Rect &place);

/// Whether the user has Windows show everything in high contrast.
bool High_Contrast();

/// Whether any mouse button is held now, over whichever window.
bool Mouse_Button_Held();

} // namespace platform

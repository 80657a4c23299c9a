// The screen: its dots per inch, its size, its work area and the mouse.
#pragma once

#include "base/geometry.h"

namespace platform {

/// Returns the dots per inch (96 at a scale of 100 per cent) of the dialog's screen while a dialog's window
/// handles a message, else of the screen that shows the calendar.
int Dots_Per_Inch();

/// Returns the size of the primary monitor in pixels. Its top left corner is (0, 0).
Size Screen_Size();

/// Returns the work area of the primary monitor in pixels: the screen without the task bar.
Rect Work_Area();

/// Returns the work area, in pixels, of the monitor at or nearest to `point` (screen pixels).
Rect Work_Area_Around(Point point);

/// Returns the work area, in pixels, of the monitor that shows most of `place` (screen pixels), else of the
/// monitor nearest to it.
Rect Work_Area_Of(const Rect &place);

/// Returns whether the user has turned on high contrast.
bool High_Contrast();

/// Returns whether any mouse button is held now, over any window.
bool Mouse_Button_Held();

} // namespace platform

// Scales pictures into a pixel buffer. All lengths are in pixels.
#pragma once

#include "base/geometry.h"
#include "platform/pictures.h"
#include "win32/smooth_polygon.h"

namespace win32 {

/// Fills the buffer's rectangle `to` with the whole picture. Averages pixels to shrink the picture, and
/// repeats pixels to enlarge it. Skips pixels outside the buffer.
void Scale_Picture(const Pixel_Buffer &buffer, const Picture &picture, const Rect &to);

} // namespace win32

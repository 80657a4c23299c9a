// Scaling pictures into a buffer of pixels. It knows no device and no unit but the pixel.
#pragma once

#include "base/geometry.h"
#include "platform/pictures.h"
#include "win32/smooth_polygon.h"

namespace win32 {

/// Fills the rectangle `to` (pixels in the buffer) with the whole picture: smaller by the means of what falls
/// together, larger by repeating. What lies outside of the buffer is left out.
void Scale_Picture(const Pixel_Buffer &buffer, const Picture &picture, const Rect &to);

} // namespace win32

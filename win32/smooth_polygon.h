// Filling polygons with smooth edges in a buffer of pixels. It knows no device and no unit but the pixel.
#pragma once

#include <cstdint>
#include <vector>

namespace win32 {

/// Pixels row by row from the top, each 0xAARRGGBB with the colours multiplied by the alpha.
struct Pixel_Buffer {
    std::uint32_t *pixels = nullptr;
    int width = 0;
    int height = 0;
};

/// A place in pixels; whole numbers are the corners of pixels.
struct Smooth_Point {
    double x = 0;
    double y = 0;
};

/// Fills the polygon (crossing parts even-odd) with an opaque 0x00RRGGBB, each pixel by the part of it that
/// is covered. What lies outside of the buffer is left out.
void Fill_Smooth_Polygon(const Pixel_Buffer &buffer, const std::vector<Smooth_Point> &corners,
                         std::uint32_t colour);

} // namespace win32

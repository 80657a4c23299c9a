// Filling of polygons with smooth edges in a pixel buffer. All lengths are in pixels.
#pragma once

#include <cstdint>
#include <vector>

namespace win32 {

/// Pixels in rows from the top, each 0xAARRGGBB with its colours multiplied by the alpha.
struct Pixel_Buffer {
    std::uint32_t *pixels = nullptr;
    int width = 0;
    int height = 0;
};

/// A point in pixels. Whole coordinates are the corners of pixels.
struct Smooth_Point {
    double x = 0;
    double y = 0;
};

/// Fills the polygon with an opaque 0x00RRGGBB, each pixel in proportion to its covered part. Crossing parts
/// follow the even-odd rule. Skips pixels outside the buffer.
void Fill_Smooth_Polygon(const Pixel_Buffer &buffer, const std::vector<Smooth_Point> &corners,
                         std::uint32_t colour);

} // namespace win32

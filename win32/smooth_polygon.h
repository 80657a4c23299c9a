// Fills polygons with smooth edges in a pixel buffer. All lengths are in pixels.
#pragma once

#include <cstdint>
#include <vector>

namespace win32 {

/// Rows of pixels, from the top down. Each pixel is 0xAARRGGBB, with its colours multiplied by the alpha.
struct Pixel_Buffer {
    std::uint32_t *pixels = nullptr;
    int width = 0;
    int height = 0;
};

/// A point in pixels. The corners of pixels have whole coordinates.
struct Smooth_Point {
    double x = 0;
    double y = 0;
};

/// Fills the polygon with an opaque colour, 0x00RRGGBB. Blends the colour into each pixel in proportion to
/// the covered part. Applies the even-odd rule where edges cross. Skips pixels outside the buffer.
void Fill_Smooth_Polygon(const Pixel_Buffer &buffer, const std::vector<Smooth_Point> &corners,
                         std::uint32_t colour);

} // namespace win32

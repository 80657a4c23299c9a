// Smooths edges by sampling: cuts each pixel row into thin slices. Along a slice, the coverage is exact.
#include "win32/smooth_polygon.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace win32 {

namespace {

constexpr int slices = 8;

/// Sets `crossings` to the x coordinates at which the slice at height `y` crosses the polygon's edges, from
/// left to right.
void Find_Crossings(const std::vector<Smooth_Point> &corners, double y, std::vector<double> &crossings) {
    crossings.clear();
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Smooth_Point &a = corners[i];
        const Smooth_Point &b = corners[(i + 1) % corners.size()];
        if ((a.y <= y) == (b.y <= y))
            continue;
        const double x = a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y);
        // Insert each crossing in order: the crossings are few, and sorting them later would need more code.
        crossings.insert(std::upper_bound(crossings.begin(), crossings.end(), x), x);
    }
}

/// Adds to the row the coverage of one slice between `from` and `to`.
void Add_Span(std::vector<double> &cover, double from, double to) {
    from = std::clamp(from, 0.0, static_cast<double>(cover.size()));
    to = std::clamp(to, 0.0, static_cast<double>(cover.size()));
    for (auto x = static_cast<std::size_t>(from); x < cover.size() && static_cast<double>(x) < to; ++x) {
        const double left = std::max(from, static_cast<double>(x));
        const double right = std::min(to, static_cast<double>(x + 1));
        cover[x] += (right - left) / slices;
    }
}

std::uint32_t Blend(std::uint32_t below, std::uint32_t colour, double cover) {
    const auto alpha = static_cast<std::uint32_t>(std::lround(std::min(cover, 1.0) * 255));
    const std::uint32_t above = colour | 0xFF000000U;
    std::uint32_t mixed = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        const std::uint32_t a = (above >> shift) & 0xFF;
        const std::uint32_t b = (below >> shift) & 0xFF;
        mixed |= ((a * alpha + b * (255 - alpha) + 127) / 255) << shift;
    }
    return mixed;
}

} // namespace

void Fill_Smooth_Polygon(const Pixel_Buffer &buffer, const std::vector<Smooth_Point> &corners,
                         std::uint32_t colour) {
    if (corners.size() < 3 || buffer.width <= 0)
        return;
    const auto [highest, lowest] =
        std::minmax_element(corners.begin(), corners.end(),
                            [](const Smooth_Point &a, const Smooth_Point &b) { return a.y < b.y; });
    const int first = std::max(0, static_cast<int>(std::floor(highest->y)));
    const int last = std::min(buffer.height, static_cast<int>(std::ceil(lowest->y)));
    std::vector<double> cover(static_cast<std::size_t>(buffer.width));
    std::vector<double> crossings;
    for (int row = first; row < last; ++row) {
        std::fill(cover.begin(), cover.end(), 0.0);
        for (int slice = 0; slice < slices; ++slice) {
            Find_Crossings(corners, row + (slice + 0.5) / slices, crossings);
            for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
                Add_Span(cover, crossings[i], crossings[i + 1]);
        }
        std::uint32_t *pixels = buffer.pixels + static_cast<std::ptrdiff_t>(row) * buffer.width;
        for (std::size_t x = 0; x < cover.size(); ++x) {
            if (cover[x] > 0)
                pixels[x] = Blend(pixels[x], colour, cover[x]);
        }
    }
}

} // namespace win32

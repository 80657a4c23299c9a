// Scales by averages, because the system's own scaling differs from version to version and drops pixels for
// speed.
#include "win32/picture_scaling.h"

#include "base/mean_colour.h"

#include <algorithm>
#include <cstddef>

namespace win32 {

void Scale_Picture(const Pixel_Buffer &buffer, const Picture &picture, const Rect &to) {
    if (picture.width <= 0 || picture.height <= 0 || !picture.pixels)
        return;
    for (int y = std::max(to.top, 0); y < std::min(to.Bottom(), buffer.height); ++y) {
        const Span rows = Source_Span(y - to.top, to.height, picture.height);
        std::uint32_t *line = buffer.pixels + static_cast<std::ptrdiff_t>(y) * buffer.width;
        for (int x = std::max(to.left, 0); x < std::min(to.Right(), buffer.width); ++x)
            line[x] = Mean_Colour(picture, Source_Span(x - to.left, to.width, picture.width), rows);
    }
}

} // namespace win32

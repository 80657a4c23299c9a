// Scaling by means. The system's own way depends on its version, and leaves pixels out where it is in a
// hurry.
#include "win32/picture_scaling.h"

#include <algorithm>
#include <cstddef>

namespace win32 {

namespace {

/// The pixels from `begin` to before `end` of a row or column of the picture.
struct Span {
    int begin;
    int end;
};

/// Those that pixel `i` of `count` stands for, where the picture has `length`: at least one.
Span Source_Of(int i, int count, int length) {
    const auto at = [count, length](int pixel) {
        return static_cast<int>(static_cast<std::int64_t>(pixel) * length / count);
    };
    return {at(i), std::max(at(i) + 1, at(i + 1))};
}

/// 0x00RRGGBB: the mean colour of a part of the picture.
std::uint32_t Mean_Colour(const platform::Picture &picture, Span columns, Span rows) {
    std::uint64_t blue = 0;
    std::uint64_t green = 0;
    std::uint64_t red = 0;
    for (int y = rows.begin; y < rows.end; ++y) {
        const std::ptrdiff_t first = (static_cast<std::ptrdiff_t>(y) * picture.width + columns.begin) * 3;
        const std::uint8_t *pixel = picture.pixels->data() + first;
        for (int x = columns.begin; x < columns.end; ++x, pixel += 3) {
            blue += pixel[0];
            green += pixel[1];
            red += pixel[2];
        }
    }
    const auto count = static_cast<std::uint64_t>(columns.end - columns.begin) *
                       static_cast<std::uint64_t>(rows.end - rows.begin);
    return static_cast<std::uint32_t>(red / count << 16U | green / count << 8U | blue / count);
}

} // namespace

void Scale_Picture(const Pixel_Buffer &buffer, const platform::Picture &picture, const platform::Rect &to) {
    if (picture.width <= 0 || picture.height <= 0 || !picture.pixels)
        return;
    for (int y = std::max(to.top, 0); y < std::min(to.Bottom(), buffer.height); ++y) {
        const Span rows = Source_Of(y - to.top, to.height, picture.height);
        std::uint32_t *line = buffer.pixels + static_cast<std::ptrdiff_t>(y) * buffer.width;
        for (int x = std::max(to.left, 0); x < std::min(to.Right(), buffer.width); ++x)
            line[x] = Mean_Colour(picture, Source_Of(x - to.left, to.width, picture.width), rows);
    }
}

} // namespace win32

// Scaling a picture down by averaging: the source pixels of each target pixel, and their mean colour.
#pragma once

#include "base/picture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// The pixels from `begin` up to but excluding `end` in a row or column of a picture.
struct Span {
    int begin;
    int end;
};

/// Returns the source pixels, at least one, of target pixel `i` when scaling `length` pixels to `count`.
inline Span Source_Span(int i, int count, int length) {
    const auto at = [count, length](int pixel) {
        return static_cast<int>(static_cast<std::int64_t>(pixel) * length / count);
    };
    return {at(i), std::max(at(i) + 1, at(i + 1))};
}

/// Returns the mean colour of a part of the picture as 0x00RRGGBB. Neither span may be empty.
inline std::uint32_t Mean_Colour(const Picture &picture, Span columns, Span rows) {
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

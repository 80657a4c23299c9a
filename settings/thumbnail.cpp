// Making pictures smaller by taking means.
#include "settings/thumbnail.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

constexpr int bytes_per_pixel = 3;

/// The first of `whole` old rows or columns that the new one at `place` of `parts` stands for.
int Old_Place(int place, int parts, int whole) {
    return static_cast<int>(std::int64_t{place} * whole / parts);
}

} // namespace

platform::Picture Thumbnail(const platform::Picture &picture, int most_width, int most_height) {
    if (picture.width <= most_width && picture.height <= most_height)
        return picture;
    const bool by_width =
        std::int64_t{picture.width} * most_height >= std::int64_t{picture.height} * most_width;
    platform::Picture small;
    small.width = by_width ? most_width : std::max(1, Old_Place(picture.width, picture.height, most_height));
    small.height = by_width ? std::max(1, Old_Place(picture.height, picture.width, most_width)) : most_height;

    auto pixels = std::make_shared<std::vector<std::uint8_t>>();
    pixels->reserve(static_cast<std::size_t>(small.width) * static_cast<std::size_t>(small.height) *
                    bytes_per_pixel);
    for (int y = 0; y < small.height; ++y) {
        const int top = Old_Place(y, small.height, picture.height);
        const int bottom = std::max(top + 1, Old_Place(y + 1, small.height, picture.height));
        for (int x = 0; x < small.width; ++x) {
            const int left = Old_Place(x, small.width, picture.width);
            const int right = std::max(left + 1, Old_Place(x + 1, small.width, picture.width));
            std::uint64_t sums[bytes_per_pixel] = {};
            for (int row = top; row < bottom; ++row) {
                const std::uint8_t *old =
                    picture.pixels->data() +
                    (static_cast<std::size_t>(row) * static_cast<std::size_t>(picture.width) +
                     static_cast<std::size_t>(left)) *
                        bytes_per_pixel;
                for (int i = 0; i < (right - left) * bytes_per_pixel; ++i)
                    sums[i % bytes_per_pixel] += old[i];
            }
            const auto count =
                static_cast<std::uint64_t>(right - left) * static_cast<std::uint64_t>(bottom - top);
            for (const std::uint64_t sum : sums)
                pixels->push_back(static_cast<std::uint8_t>(sum / count));
        }
    }
    small.pixels = std::move(pixels);
    return small;
}

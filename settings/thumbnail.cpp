#include "settings/thumbnail.h"

#include "base/mean_colour.h"

Picture Thumbnail(const Picture &picture, int most_width, int most_height) {
    if (picture.width <= most_width && picture.height <= most_height)
        return picture;
    const bool by_width =
        std::int64_t{picture.width} * most_height >= std::int64_t{picture.height} * most_width;
    const auto scaled = [](int length, int most, int whole) {
        return std::max(1, static_cast<int>(std::int64_t{length} * most / whole));
    };
    Picture small;
    small.width = by_width ? most_width : scaled(picture.width, most_height, picture.height);
    small.height = by_width ? scaled(picture.height, most_width, picture.width) : most_height;
    auto pixels = std::make_shared<std::vector<std::uint8_t>>();
    pixels->reserve(static_cast<std::size_t>(small.width) * static_cast<std::size_t>(small.height) * 3);
    for (int y = 0; y < small.height; ++y) {
        const Span rows = Source_Span(y, small.height, picture.height);
        for (int x = 0; x < small.width; ++x) {
            const std::uint32_t mean = Mean_Colour(picture, Source_Span(x, small.width, picture.width), rows);
            for (const unsigned shift : {0U, 8U, 16U})
                pixels->push_back(static_cast<std::uint8_t>(mean >> shift));
        }
    }
    small.pixels = std::move(pixels);
    return small;
}

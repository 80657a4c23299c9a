#include "settings/palette.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

constexpr int full = 255;
constexpr int grey_part = 12; ///< the column of greys is one twelfth of the palette's width

/// Returns one channel of a shade. A `brightness` of 0 gives black, 255 gives `pure`, and 510 gives white.
int Shade(int pure, int brightness) {
    return brightness <= full ? pure * brightness / full
                              : full - (full - pure) * (2 * full - brightness) / full;
}

/// Returns one channel of a pure hue. A full turn of `hue` is 6 * 255. `offset` selects the channel: red,
/// green and blue are two sixths of a turn apart.
int Hue_Channel(int hue, int offset) {
    const int turned = (hue + offset) % (6 * full);
    const int from_peak = std::abs(turned - 3 * full);
    return std::clamp(from_peak - full, 0, full);
}

} // namespace

Colour Palette_Colour(Point pixel, Size size) {
    const int width = std::max(size.width, 1);
    const int height = std::max(size.height, 1);
    const int x = std::clamp(pixel.x, 0, width - 1);
    const int y = std::clamp(pixel.y, 0, height - 1);
    const int from_below = height - 1 - y;
    const int brightness = 2 * full * from_below / std::max(height - 1, 1);
    const int hues = width - width / grey_part;
    if (x >= hues)
        return Rgb(brightness / 2, brightness / 2, brightness / 2);
    const int hue = 6 * full * x / hues;
    return Rgb(Shade(Hue_Channel(hue, 0), brightness), Shade(Hue_Channel(hue, 4 * full), brightness),
               Shade(Hue_Channel(hue, 2 * full), brightness));
}

Picture Palette_Picture(Size size) {
    auto pixels = std::make_shared<std::vector<std::uint8_t>>();
    pixels->reserve(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) * 3);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const auto colour = static_cast<std::uint32_t>(Palette_Colour({x, y}, size));
            for (const unsigned shift : {16U, 8U, 0U})
                pixels->push_back(static_cast<std::uint8_t>(colour >> shift));
        }
    }
    return {size.width, size.height, std::move(pixels)};
}

Colour Gradient_Colour(Colour colour, int step, int last) {
    const auto value = static_cast<std::uint32_t>(platform::Resolve_Colour(colour));
    const int brightness = 2 * full * step / std::max(last, 1);
    const auto shaded = [&](unsigned shift) {
        return Shade(static_cast<int>((value >> shift) & 0xFFU), brightness);
    };
    return Rgb(shaded(0), shaded(8), shaded(16));
}

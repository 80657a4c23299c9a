// Colour values in the form that the settings store holds.
#pragma once

#include <cstdint>

/// A Windows colour value 0x00BBGGRR. A value with the top bit set, 0x80000000 + n, is system colour n and
/// follows the user's Windows colours.
using Colour = std::int32_t;

constexpr Colour Rgb(int red, int green, int blue) {
    return static_cast<Colour>(red | (green << 8) | (blue << 16));
}

constexpr Colour System_Colour(int number) {
    return static_cast<Colour>(0x80000000U + static_cast<std::uint32_t>(number));
}

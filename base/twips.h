// Conversion between twips and pixels. 1440 twips are one inch; the caller supplies the dots per inch.
#pragma once

#include <algorithm>
#include <cstdint>

constexpr int Twips_Per_Inch = 1440;

/// Returns `value` * `factor` / `divisor`, rounded to the nearest integer; `factor` and `divisor` are
/// positive. Halves round up on both sides of zero, so that equal distances stay equal wherever they begin.
/// Limits the result to the range of int.
inline int Scale_Nearest(int value, int factor, int divisor) {
    const std::int64_t twice = 2 * static_cast<std::int64_t>(divisor);
    const std::int64_t doubled = 2 * static_cast<std::int64_t>(value) * factor + divisor;
    const std::int64_t quotient = doubled / twice - (doubled % twice < 0 ? 1 : 0);
    return static_cast<int>(std::clamp<std::int64_t>(quotient, INT32_MIN, INT32_MAX));
}

/// Returns `value` * `factor` / `divisor`, rounded down.
inline int Scale_Down(int value, int factor, int divisor) {
    const std::int64_t product = static_cast<std::int64_t>(value) * factor;
    return static_cast<int>(product / divisor - (product % divisor < 0 ? 1 : 0));
}

/// Returns `value` * `factor` / `divisor`, rounded up.
inline int Scale_Up(int value, int factor, int divisor) {
    return -Scale_Down(-value, factor, divisor);
}

/// Returns the nearest whole number of pixels, or of twips, at `dots` per inch.
inline int Twips_To_Pixels(int twips, int dots) {
    return Scale_Nearest(twips, dots, Twips_Per_Inch);
}
inline int Pixels_To_Twips(int pixels, int dots) {
    return Scale_Nearest(pixels, Twips_Per_Inch, dots);
}

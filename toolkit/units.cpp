// Conversion between twips and the screen's pixels.
#include "toolkit/units.h"

#include "platform/screen.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr std::int64_t twips_per_inch = 1440;

/// value * factor / divisor, to the nearest whole number; a half goes up, on both sides of zero, so that
/// equal distances stay equal wherever they begin.
int Scale(int value, std::int64_t factor, std::int64_t divisor) {
    const std::int64_t doubled = 2 * factor * value + divisor;
    std::int64_t quotient = doubled / (2 * divisor);
    if (doubled % (2 * divisor) < 0)
        --quotient;
    return static_cast<int>(std::clamp<std::int64_t>(quotient, INT32_MIN, INT32_MAX));
}

} // namespace

int Twips_To_Pixels(int twips) {
    return Scale(twips, platform::Dots_Per_Inch(), twips_per_inch);
}

int Pixels_To_Twips(int pixels) {
    return Scale(pixels, twips_per_inch, platform::Dots_Per_Inch());
}

int Snap(int twips) {
    const int pixels = Twips_To_Pixels(twips);
    return Pixels_To_Twips(twips > 0 ? std::max(pixels, 1) : pixels);
}

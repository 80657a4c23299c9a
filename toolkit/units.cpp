// Conversion between twips and the screen's pixels.
#include "toolkit/units.h"

#include "platform/screen.h"
#include "platform/twips.h"

#include <algorithm>

int Twips_To_Pixels(int twips) {
    return platform::Twips_To_Pixels(twips, platform::Dots_Per_Inch());
}

int Pixels_To_Twips(int pixels) {
    return platform::Pixels_To_Twips(pixels, platform::Dots_Per_Inch());
}

int Snap(int twips) {
    const int pixels = Twips_To_Pixels(twips);
    return Pixels_To_Twips(twips > 0 ? std::max(pixels, 1) : pixels);
}

#include "toolkit/units.h"

#include "base/twips.h"
#include "platform/screen.h"

#include <algorithm>

int Twips_To_Pixels(int twips) {
    return Twips_To_Pixels(twips, platform::Dots_Per_Inch());
}

int Pixels_To_Twips(int pixels) {
    return Pixels_To_Twips(pixels, platform::Dots_Per_Inch());
}

int Snap(int twips) {
    const int pixels = Twips_To_Pixels(twips);
    return Pixels_To_Twips(twips > 0 ? std::max(pixels, 1) : pixels);
}

Rect Twips_To_Pixels(const Rect &twips) {
    const int left = Twips_To_Pixels(twips.left);
    const int top = Twips_To_Pixels(twips.top);
    return {left, top, Twips_To_Pixels(twips.Right()) - left, Twips_To_Pixels(twips.Bottom()) - top};
}

Rect Pixels_To_Twips(const Rect &pixels) {
    const int left = Pixels_To_Twips(pixels.left);
    const int top = Pixels_To_Twips(pixels.top);
    return {left, top, Pixels_To_Twips(pixels.Right()) - left, Pixels_To_Twips(pixels.Bottom()) - top};
}

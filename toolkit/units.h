// Twips and pixels: 1440 twips are an inch, and an inch has the screen's dots per inch in pixels.
#pragma once

#include "base/geometry.h"

/// Twips to the nearest whole pixel.
int Twips_To_Pixels(int twips);

/// Pixels to the nearest whole twip.
int Pixels_To_Twips(int pixels);

/// Rectangles, converted edge by edge: what touches in pixels touches in twips, and sums of lengths that were
/// rounded one by one do not drift off the pixels.
Rect Twips_To_Pixels(const Rect &twips);
Rect Pixels_To_Twips(const Rect &pixels);

/// The nearest length that is a whole number of pixels, at least one pixel for a positive length.
int Snap(int twips);

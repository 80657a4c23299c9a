// Conversion between twips and pixels at platform::Dots_Per_Inch. 1440 twips are one inch.
#pragma once

#include "base/geometry.h"

/// Returns the nearest whole number of pixels.
int Twips_To_Pixels(int twips);

/// Returns the nearest whole number of twips.
int Pixels_To_Twips(int pixels);

/// Convert rectangles edge by edge, so that adjacent rectangles stay adjacent and rounding errors do not add
/// up.
Rect Twips_To_Pixels(const Rect &twips);
Rect Pixels_To_Twips(const Rect &pixels);

/// Returns the nearest length, in twips, that is a whole number of pixels: at least one pixel for a positive
/// length.
int Snap(int twips);

// Conversion between twips and pixels of the screen. 1440 twips are one inch; the screen sets the dots per
// inch.
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

/// Returns the nearest length that is a whole number of pixels; at least one pixel for a positive length.
int Snap(int twips);

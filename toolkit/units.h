// Twips and pixels: 1440 twips are an inch, and an inch has the screen's dots per inch in pixels.
#pragma once

/// Twips to the nearest whole pixel.
int Twips_To_Pixels(int twips);

/// Pixels to the nearest whole twip.
int Pixels_To_Twips(int pixels);

/// The nearest length that is a whole number of pixels, at least one pixel for a positive length.
int Snap(int twips);

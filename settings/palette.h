// Computes the colours of the palette and of the gradient, both to draw them and to pick from them.
#pragma once

#include "base/colour.h"
#include "base/geometry.h"
#include "platform/pictures.h"

/// Returns the colour of a pixel in a palette of `size` pixels. Hues run from left to right, with greys at
/// the right edge. Each column runs from white at the top through its pure colour to black. A point outside
/// counts as the nearest one inside.
Colour Palette_Colour(Point pixel, Size size);

/// Returns the whole palette as a picture of `size` pixels.
Picture Palette_Picture(Size size);

/// Returns the colour at `step` (0 to `last`) of a gradient from black to white with `colour` halfway.
Colour Gradient_Colour(Colour colour, int step, int last);

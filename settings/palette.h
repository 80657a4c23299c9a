// The formula of the palette from which colours are picked, for its drawing and for the colour at a point.
#pragma once

#include "base/colour.h"
#include "base/geometry.h"
#include "platform/pictures.h"

/// The colour of a pixel of a palette with this size: hues from left to right and, at the right edge, greys;
/// from white at the top over the pure hue to black. A point outside takes the nearest one inside.
Colour Palette_Colour(Point pixel, Size size);

/// The whole palette.
Picture Palette_Picture(Size size);

/// The colour at `step` of 0 to `last` on the way from black over `colour`, which is in the middle, to white.
Colour Gradient_Colour(Colour colour, int step, int last);

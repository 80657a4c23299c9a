// The colours of the palette and of the gradient, for drawing them and for picking from them.
#pragma once

#include "base/colour.h"
#include "base/geometry.h"
#include "platform/pictures.h"

/// Returns the colour of a pixel in a palette of this size. Hues run from left to right, with greys at the
/// right edge; each runs from white at the top over the pure hue to black. A point outside counts as the
/// nearest one inside.
Colour Palette_Colour(Point pixel, Size size);

/// Returns the whole palette.
Picture Palette_Picture(Size size);

/// Returns the colour at `step` of 0 to `last` on the way from black over `colour`, in the middle, to white.
Colour Gradient_Colour(Colour colour, int step, int last);

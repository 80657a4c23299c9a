// The colours of the palette and of the gradient, for drawing them and for picking from them.
#pragma once

#include "base/colour.h"
#include "base/geometry.h"
#include "platform/pictures.h"

/// Returns the colour of a pixel in a palette of this size, in pixels. Hues run from left to right, with
/// greys at the right edge; each runs from white at the top through the pure hue to black. A point outside
/// counts as the nearest one inside.
Colour Palette_Colour(Point pixel, Size size);

/// Returns the whole palette.
Picture Palette_Picture(Size size);

/// Returns the colour at `step` (0 to `last`) of a gradient from black through `colour`, in the middle, to
/// white.
Colour Gradient_Colour(Colour colour, int step, int last);

// The colours that have a name in web pages.
#pragma once

#include "base/colour.h"

#include <span>

struct Named_Colour {
    const char *name;
    int web_value; ///< 0xRRGGBB

    ::Colour Colour() const { return Rgb(web_value >> 16, (web_value >> 8) & 0xFF, web_value & 0xFF); }
};

/// Returns the colours in the order of their names. Some colours have two names.
std::span<const Named_Colour> Named_Colours();

/// Returns the index of the first name of a colour, or -1 if it has none.
int Index_Of_Colour(Colour colour);

// Native fonts in the system's message-box face, at the screen's dots per inch.
#pragma once

#include "platform/drawing.h"
#include "win32/handles.h"

namespace win32 {

/// Creates a native font for `dots` dots per inch.
Unique_Font Make_Font(const platform::Font &font, int dots);

/// A cached native font for drawing and measuring, with its line height in pixels.
struct Cached_Font {
    HFONT handle;
    int line_height;
};

/// Returns the cached font. It is valid until Clear_Font_Cache or the next change of the dots per inch.
Cached_Font Find_Font(const platform::Font &font);

/// Empties the font cache. Call this when the user has changed the message-box face or the font smoothing.
void Clear_Font_Cache();

/// Returns a device context for measuring text, with the font selected.
HDC Measuring_Dc(const platform::Font &font);

} // namespace win32

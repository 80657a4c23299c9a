// Native fonts for the platform's font values: the system's message-box face at the real dots per inch.
#pragma once

#include "platform/drawing.h"
#include "win32/handles.h"

namespace win32 {

/// A new native font. `dots` are the dots per inch.
Unique_Font Make_Font(const platform::Font &font, int dots);

/// A native font kept for drawing and measuring, with its line height in pixels.
struct Cached_Font {
    HFONT handle;
    int line_height;
};

/// Valid until Clear_Font_Cache or the next change of the dots per inch.
Cached_Font Find_Font(const platform::Font &font);

/// The fonts are made anew at their next use: the user changed the message-box face or the smoothing.
void Clear_Font_Cache();

/// A device context only for measuring text, with the font selected.
HDC Measuring_Dc(const platform::Font &font);

} // namespace win32

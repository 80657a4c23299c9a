// Twips and pixels at the screen's dots per inch. Only arithmetic and the cached figure.
#pragma once

#include "platform/geometry.h"
#include "platform/screen.h"
#include "win32/handles.h"

#include <cstdint>

namespace win32 {

/// `a * b / c` rounded down, to the nearest and up; `b` and `c` are positive.
inline int Scale_Down(int a, int b, int c) {
    const std::int64_t product = static_cast<std::int64_t>(a) * b;
    const std::int64_t quotient = product / c;
    return static_cast<int>(product % c < 0 ? quotient - 1 : quotient);
}
inline int Scale_Nearest(int a, int b, int c) {
    const std::int64_t product = static_cast<std::int64_t>(a) * b * 2 + c;
    const std::int64_t quotient = product / (2 * static_cast<std::int64_t>(c));
    return static_cast<int>(product < 0 && product % (2 * static_cast<std::int64_t>(c)) != 0 ? quotient - 1
                                                                                             : quotient);
}
inline int Scale_Up(int a, int b, int c) {
    return -Scale_Down(-a, b, c);
}

inline int To_Pixels(int twips) {
    return Scale_Nearest(twips, platform::Dots_Per_Inch(), 1440);
}
inline int To_Twips(int pixels) {
    return Scale_Nearest(pixels, 1440, platform::Dots_Per_Inch());
}

/// Each edge to the nearest pixel, so that rectangles that touch in twips touch in pixels.
inline RECT To_Pixels(const platform::Rect &rect) {
    return {To_Pixels(rect.left), To_Pixels(rect.top), To_Pixels(rect.Right()), To_Pixels(rect.Bottom())};
}

/// The twips whose nearest pixels lie in `rect`, none left out.
inline platform::Rect To_Covering_Twips(const RECT &rect) {
    // Half a pixel more on each side: an edge half-way between two pixels counts for the next one.
    const int twice_dots = 2 * platform::Dots_Per_Inch();
    const int left = Scale_Down(2 * static_cast<int>(rect.left) - 1, 1440, twice_dots);
    const int top = Scale_Down(2 * static_cast<int>(rect.top) - 1, 1440, twice_dots);
    const int right = Scale_Up(2 * static_cast<int>(rect.right) + 1, 1440, twice_dots);
    const int bottom = Scale_Up(2 * static_cast<int>(rect.bottom) + 1, 1440, twice_dots);
    return {left, top, right - left, bottom - top};
}

/// Looks the dots per inch up again, for `window` where the system tells them per window. Returns whether
/// they changed.
bool Refresh_Dots(HWND window);

} // namespace win32

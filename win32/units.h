// Converts lengths and the system's rectangles between twips and pixels at platform::Dots_Per_Inch.
#pragma once

#include "base/geometry.h"
#include "base/twips.h"
#include "platform/screen.h"
#include "win32/handles.h"

namespace win32 {

inline int To_Pixels(int twips) {
    return Twips_To_Pixels(twips, platform::Dots_Per_Inch());
}
inline int To_Twips(int pixels) {
    return Pixels_To_Twips(pixels, platform::Dots_Per_Inch());
}

/// Rounds each edge to the nearest pixel, so that rectangles that touch in twips touch in pixels.
inline RECT To_Pixels(const Rect &rect) {
    return {To_Pixels(rect.left), To_Pixels(rect.top), To_Pixels(rect.Right()), To_Pixels(rect.Bottom())};
}

/// Returns the rectangle of all twips whose nearest pixels lie in `rect`.
inline Rect To_Covering_Twips(const RECT &rect) {
    // Add half a pixel on each side, because an edge half-way between two pixels rounds to the next one.
    const int twice_dots = 2 * platform::Dots_Per_Inch();
    const int left = Scale_Down(2 * static_cast<int>(rect.left) - 1, Twips_Per_Inch, twice_dots);
    const int top = Scale_Down(2 * static_cast<int>(rect.top) - 1, Twips_Per_Inch, twice_dots);
    const int right = Scale_Up(2 * static_cast<int>(rect.right) + 1, Twips_Per_Inch, twice_dots);
    const int bottom = Scale_Up(2 * static_cast<int>(rect.bottom) + 1, Twips_Per_Inch, twice_dots);
    return {left, top, right - left, bottom - top};
}

/// Looks up the calendar's dots per inch again: those of `window` if the system has a scale for each window.
/// Returns whether they changed.
bool Refresh_Dots(HWND window);

/// Returns the dots per inch of the screen that `window` is on, 0 if the system cannot tell.
int Dots_Of(HWND window);

/// The dots per inch of a dialog's screen while the program works on the dialog's window, else 0 for those of
/// the calendar's screen. The form's event handlers run with the calendar's, except for the layout after
/// Scale_Changed.
inline int Dialog_Dots = 0;

} // namespace win32

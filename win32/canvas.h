// The buffer for painting a window: a bitmap of the invalid area, copied to the window in one operation.
#pragma once

#include "platform/drawing.h"
#include "win32/handles.h"
#include "win32/smooth_polygon.h"

/// A bitmap of one area of a window. Drawing coordinates are window pixels; the bitmap's first pixel is the
/// top left corner of the area.
struct platform::Canvas {
    /// Creates the bitmap for `area` (window pixels). Ok() returns whether that succeeded.
    explicit Canvas(const RECT &area);
    ~Canvas();
    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;

    bool Ok() const { return pixels_.pixels != nullptr; }
    HDC Dc() const { return dc_.get(); }
    const RECT &Area() const { return area_; }
    /// Returns the bitmap's pixels, with all earlier drawing completed.
    const win32::Pixel_Buffer &Pixels() const;
    /// Makes all pixels opaque and copies the bitmap to its place on `target`.
    void Copy_To(HDC target) const;

private:
    RECT area_;
    win32::Unique_Bitmap bitmap_;
    win32::Unique_Memory_Dc dc_;
    HGDIOBJ bitmap_before_ = nullptr;
    HGDIOBJ font_before_ = nullptr;
    win32::Pixel_Buffer pixels_;
};

namespace win32 {

/// Creates a bitmap of 32-bit pixels, top row first, and points `pixels` at them. Returns null if out of
/// memory.
Unique_Bitmap Make_Pixel_Bitmap(int width, int height, Pixel_Buffer &pixels);

/// Returns a platform colour as 0x00RRGGBB.
std::uint32_t Pixel_Colour(Colour colour);

/// Handles WM_PAINT and WM_PRINTCLIENT by calling `paint(HDC, const RECT &area)`. Does nothing on
/// WM_ERASEBKGND, because `paint` covers the whole area. Returns the result of the message.
template <typename Paint>
LRESULT Paint_Window(HWND window, UINT message, WPARAM wparam, const Paint &paint) {
    if (message == WM_ERASEBKGND)
        return 1;
    if (message == WM_PRINTCLIENT) {
        RECT all = {};
        GetClientRect(window, &all);
        paint(reinterpret_cast<HDC>(wparam), all);
        return 0;
    }
    PAINTSTRUCT area = {};
    if (const HDC target = BeginPaint(window, &area)) {
        paint(target, area.rcPaint);
        EndPaint(window, &area);
    }
    return 0;
}

} // namespace win32

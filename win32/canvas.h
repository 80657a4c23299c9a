// The buffer that a painted form paints into: a bitmap of its invalid part, put on the window in one go.
#pragma once

#include "platform/drawing.h"
#include "win32/handles.h"
#include "win32/smooth_polygon.h"

/// Window pixels are the drawing coordinates; the bitmap begins at `area`'s top left corner.
struct platform::Canvas {
    /// Makes a bitmap for `area`, in pixels on the window. Ok() tells whether that succeeded.
    explicit Canvas(const RECT &area);
    ~Canvas();
    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;

    bool Ok() const { return pixels_.pixels != nullptr; }
    HDC Dc() const { return dc_.get(); }
    const RECT &Area() const { return area_; }
    /// The bitmap's pixels, with all earlier drawing done.
    const win32::Pixel_Buffer &Pixels() const;
    /// Copies the bitmap to its place on `target`.
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

/// A bitmap of 32-bit pixels, top row first, and where its pixels lie. Null when there is no memory for it.
Unique_Bitmap Make_Pixel_Bitmap(int width, int height, Pixel_Buffer &pixels);

/// 0x00RRGGBB of a platform colour.
std::uint32_t Pixel_Colour(Colour colour);

/// Paints a window by `paint(HDC, const RECT &area)` as WM_PAINT, WM_PRINTCLIENT or WM_ERASEBKGND asks; to
/// the last it does nothing, for all of the area is painted. Returns the answer to the message.
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

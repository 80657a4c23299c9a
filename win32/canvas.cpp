// Drawing on a canvas (pictures included), measuring text, and system colours.
#include "win32/canvas.h"

#include "base/cut_text.h"
#include "platform/pictures.h"
#include "win32/fonts.h"
#include "win32/picture_scaling.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <algorithm>
#include <cstddef>

namespace platform {

namespace {

/// The longest text for one drawing call, in UTF-16 units.
constexpr std::size_t longest_call = 8192;

COLORREF To_Colorref(Colour colour) {
    return static_cast<COLORREF>(Resolve_Colour(colour));
}

void Fill_Pixels(HDC dc, const RECT &rect, COLORREF colour) {
    // Draw an empty text with an opaque background, which needs no brush.
    const COLORREF before = SetBkColor(dc, colour);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    SetBkColor(dc, before);
}

int Pixel_Width(HDC dc, std::wstring_view text) {
    int width = 0;
    while (!text.empty()) {
        const std::wstring_view part = text.substr(0, Whole_Code_Points(text, longest_call));
        SIZE size = {};
        GetTextExtentPoint32W(dc, part.data(), static_cast<int>(part.size()), &size);
        width += static_cast<int>(size.cx);
        text.remove_prefix(part.size());
    }
    return width;
}

} // namespace

Canvas::Canvas(const RECT &area) : area_(area) {
    bitmap_ = win32::Make_Pixel_Bitmap(area.right - area.left, area.bottom - area.top, pixels_);
    dc_.reset(CreateCompatibleDC(nullptr));
    if (!bitmap_ || !dc_) {
        pixels_ = {};
        return;
    }
    bitmap_before_ = SelectObject(dc_.get(), bitmap_.get());
    font_before_ = GetCurrentObject(dc_.get(), OBJ_FONT);
    SetViewportOrgEx(dc_.get(), -static_cast<int>(area.left), -static_cast<int>(area.top), nullptr);
    SetBkMode(dc_.get(), TRANSPARENT);
}

Canvas::~Canvas() {
    if (bitmap_before_ != nullptr) {
        SelectObject(dc_.get(), bitmap_before_);
        SelectObject(dc_.get(), font_before_);
    }
}

const win32::Pixel_Buffer &Canvas::Pixels() const {
    GdiFlush();
    return pixels_;
}

void Canvas::Copy_To(HDC target) const {
    // The system's drawing calls set the alpha to zero, so the pixels would be invisible on a window with a
    // surface of its own.
    const win32::Pixel_Buffer &all = Pixels();
    std::for_each(all.pixels, all.pixels + std::ptrdiff_t{all.width} * all.height,
                  [](std::uint32_t &pixel) { pixel |= 0xFF000000U; });
    BitBlt(target, area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top, dc_.get(),
           area_.left, area_.top, SRCCOPY);
}

void Fill_Rect(Canvas &canvas, const Rect &rect, Colour colour) {
    const RECT pixels = win32::To_Pixels(rect);
    if (pixels.left < pixels.right && pixels.top < pixels.bottom)
        Fill_Pixels(canvas.Dc(), pixels, To_Colorref(colour));
}

void Frame_Rect(Canvas &canvas, const Rect &rect, Colour colour, int thickness) {
    const RECT outer = win32::To_Pixels(rect);
    if (outer.left >= outer.right || outer.top >= outer.bottom)
        return;
    const LONG width = std::max(1, win32::To_Pixels(thickness));
    const LONG left = std::min(outer.left + width, outer.right);
    const LONG top = std::min(outer.top + width, outer.bottom);
    const LONG right = std::max(outer.right - width, left);
    const LONG bottom = std::max(outer.bottom - width, top);
    const RECT sides[] = {{outer.left, outer.top, outer.right, top},
                          {outer.left, bottom, outer.right, outer.bottom},
                          {outer.left, top, left, bottom},
                          {right, top, outer.right, bottom}};
    for (const RECT &side : sides)
        Fill_Pixels(canvas.Dc(), side, To_Colorref(colour));
}

void Fill_Polygon(Canvas &canvas, const std::vector<Point> &corners, Colour colour) {
    const double scale = Dots_Per_Inch() / 1440.0;
    std::vector<win32::Smooth_Point> smooth;
    smooth.reserve(corners.size());
    for (const Point &corner : corners) {
        smooth.push_back({corner.x * scale - static_cast<double>(canvas.Area().left),
                          corner.y * scale - static_cast<double>(canvas.Area().top)});
    }
    win32::Fill_Smooth_Polygon(canvas.Pixels(), smooth, win32::Pixel_Colour(colour));
}

void Draw_Program_Icon(Canvas &canvas, const Rect &rect) {
    const RECT to = win32::To_Pixels(rect);
    const auto width = static_cast<int>(to.right - to.left);
    const auto height = static_cast<int>(to.bottom - to.top);
    const auto icon = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1),
                                                    IMAGE_ICON, width, height, LR_DEFAULTCOLOR));
    DrawIconEx(canvas.Dc(), to.left, to.top, icon, width, height, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
}

void Draw_Text(Canvas &canvas, std::string_view text, const Rect &rect, const Font &font, Colour colour,
               Text_Align align, bool right_to_left) {
    const RECT pixels = win32::To_Pixels(rect);
    const std::wstring wide = win32::To_Wide(text);
    if (wide.empty() || pixels.left >= pixels.right || pixels.top >= pixels.bottom)
        return;
    const HDC dc = canvas.Dc();
    SelectObject(dc, win32::Find_Font(font).handle);
    SetTextColor(dc, To_Colorref(colour));
    const std::wstring_view part(wide.data(), Whole_Code_Points(wide, longest_call));
    // A text that is too wide shows its beginning.
    const int room =
        align == Text_Align::Left ? 0 : static_cast<int>(pixels.right - pixels.left) - Pixel_Width(dc, part);
    int x = static_cast<int>(pixels.left);
    if (right_to_left && (align == Text_Align::Right || room < 0)) {
        // Let the system align the text at the right edge, because joined letters are not as wide as the sum
        // of the single letters.
        SetTextAlign(dc, TA_RIGHT);
        x = static_cast<int>(pixels.right);
    } else {
        x += std::max(0, align == Text_Align::Centre ? room / 2 : room);
    }
    ExtTextOutW(dc, x, static_cast<int>(pixels.top), ETO_CLIPPED | (right_to_left ? ETO_RTLREADING : 0U),
                &pixels, part.data(), static_cast<UINT>(part.size()), nullptr);
    SetTextAlign(dc, TA_LEFT);
}

void Draw_Picture(Canvas &canvas, const Picture &picture, const Rect &rect) {
    RECT to = win32::To_Pixels(rect);
    OffsetRect(&to, -static_cast<int>(canvas.Area().left), -static_cast<int>(canvas.Area().top));
    win32::Scale_Picture(canvas.Pixels(), picture,
                         {static_cast<int>(to.left), static_cast<int>(to.top),
                          static_cast<int>(to.right - to.left), static_cast<int>(to.bottom - to.top)});
}

int Text_Width(std::string_view text, const Font &font) {
    const std::wstring wide = win32::To_Wide(text);
    // Round up, so that the text fits into its width in twips.
    return Scale_Up(Pixel_Width(win32::Measuring_Dc(font), wide), 1440, Dots_Per_Inch());
}

int Line_Height(const Font &font) {
    return Scale_Up(win32::Find_Font(font).line_height, 1440, Dots_Per_Inch());
}

Colour Resolve_Colour(Colour colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    if ((bits & 0x80000000U) == 0)
        return static_cast<Colour>(bits & 0x00FFFFFFU);
    return static_cast<Colour>(GetSysColor(static_cast<int>(bits & 0xFFU)));
}

} // namespace platform

namespace win32 {

Unique_Bitmap Make_Pixel_Bitmap(int width, int height, Pixel_Buffer &pixels) {
    BITMAPINFO description = {};
    description.bmiHeader.biSize = sizeof description.bmiHeader;
    description.bmiHeader.biWidth = width;
    description.bmiHeader.biHeight = -height;
    description.bmiHeader.biPlanes = 1;
    description.bmiHeader.biBitCount = 32;
    description.bmiHeader.biCompression = BI_RGB;
    void *bits = nullptr;
    Unique_Bitmap bitmap(CreateDIBSection(nullptr, &description, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap)
        pixels = {static_cast<std::uint32_t *>(bits), width, height};
    return bitmap;
}

std::uint32_t Pixel_Colour(Colour colour) {
    const auto plain = static_cast<COLORREF>(platform::Resolve_Colour(colour));
    return (static_cast<std::uint32_t>(GetRValue(plain)) << 16) |
           (static_cast<std::uint32_t>(GetGValue(plain)) << 8) | GetBValue(plain);
}

} // namespace win32

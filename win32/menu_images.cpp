// Draws the pictures of menu items from polygons on a field of 16 by 16 units.
#include "win32/menu_images.h"

#include "win32/canvas.h"
#include "win32/smooth_polygon.h"
#include "win32/system_library.h"
#include "win32/units.h"

#include <cmath>
#include <numbers>

namespace win32 {

namespace {

using platform::Menu_Image;
using Corners = std::vector<Smooth_Point>;

/// The side of a picture, and the gap between a picture and its text, in pixels at 96 dots per inch.
constexpr int image_size = 16;
constexpr int gap = 4;

constexpr std::uint32_t blue = 0x1F0880;
constexpr std::uint32_t violet = 0x8A7FD6;
constexpr std::uint32_t red = 0xB52B3C;
constexpr std::uint32_t grey = 0x5A5F6B;
constexpr std::uint32_t wood = 0xE0A33A;
constexpr std::uint32_t dark = 0x2B2B33;

/// A field of 16 by 16 units, scaled to the pixel buffer.
class Field {
public:
    explicit Field(const Pixel_Buffer &pixels) : pixels_(pixels) {}
    void Fill(Corners corners, std::uint32_t colour) const {
        for (Smooth_Point &corner : corners) {
            corner.x *= pixels_.width / 16.0;
            corner.y *= pixels_.height / 16.0;
        }
        Fill_Smooth_Polygon(pixels_, corners, colour);
    }

private:
    const Pixel_Buffer &pixels_;
};

/// Returns a straight bar of the given thickness.
Corners Bar(Smooth_Point from, Smooth_Point to, double thickness) {
    const double length = std::sqrt((to.x - from.x) * (to.x - from.x) + (to.y - from.y) * (to.y - from.y));
    const double x = (to.y - from.y) / length * thickness / 2;
    const double y = (from.x - to.x) / length * thickness / 2;
    return {{from.x + x, from.y + y}, {to.x + x, to.y + y}, {to.x - x, to.y - y}, {from.x - x, from.y - y}};
}

/// Draws a cross, the sign for deleting the day's text.
void Draw_Clear(const Field &field) {
    field.Fill(Bar({3, 3}, {13, 13}, 2.4), red);
    field.Fill(Bar({13, 3}, {3, 13}, 2.4), red);
}

/// Draws a pencil with its tip at the lower left.
void Draw_Edit(const Field &field) {
    field.Fill({{9.8, 3.2}, {12.8, 6.2}, {5.6, 13.4}, {2.6, 10.4}}, wood);
    field.Fill({{10.7, 2.3}, {11.6, 1.4}, {14.6, 4.4}, {13.7, 5.3}}, violet);
    field.Fill({{2.6, 10.4}, {5.6, 13.4}, {1.4, 14.6}}, dark);
}

/// Draws a toothed wheel with a hole.
void Draw_Settings(const Field &field) {
    constexpr int teeth = 8;
    Corners wheel;
    for (int i = 0; i < teeth * 4; ++i) {
        const bool outer = i % 4 < 2;
        const double angle =
            (i + (outer ? 0.15 : -0.15) * (i % 2 == 0 ? 1 : -1)) * std::numbers::pi / (teeth * 2);
        const double radius = outer ? 7.0 : 5.1;
        wheel.push_back({8 + radius * std::cos(angle), 8 + radius * std::sin(angle)});
    }
    // Continue the outline along a small circle in the other direction. The even-odd rule makes the circle a
    // hole.
    constexpr int hole_corners = 24;
    wheel.push_back(wheel.front());
    for (int i = 0; i <= hole_corners; ++i) {
        const double angle = -i * 2 * std::numbers::pi / hole_corners;
        wheel.push_back({8 + 2.3 * std::cos(angle), 8 + 2.3 * std::sin(angle)});
    }
    field.Fill(wheel, grey);
}

/// Draws an arrow that leaves through an open door.
void Draw_Exit(const Field &field) {
    field.Fill({{2, 1.5},
                {9, 1.5},
                {9, 4.5},
                {7.4, 4.5},
                {7.4, 3.1},
                {3.6, 3.1},
                {3.6, 12.9},
                {7.4, 12.9},
                {7.4, 11.5},
                {9, 11.5},
                {9, 14.5},
                {2, 14.5}},
               blue);
    field.Fill({{5.4, 7}, {10.4, 7}, {10.4, 4.4}, {14.6, 8}, {10.4, 11.6}, {10.4, 9}, {5.4, 9}}, violet);
}

/// Draws an arrow that turns back to the left.
void Draw_Undo(const Field &field) {
    constexpr int bend_corners = 12;
    Corners band{{6, 4.8}};
    const auto bend = [&band](double radius, int direction) {
        for (int i = -bend_corners; i <= bend_corners; ++i) {
            const double angle = direction * i * std::numbers::pi / (2 * bend_corners);
            band.push_back({9.5 + radius * std::cos(angle), 9 + radius * std::sin(angle)});
        }
    };
    bend(4.2, 1);
    band.insert(band.end(), {{7, 13.2}, {7, 10.8}});
    bend(1.8, -1);
    band.push_back({6, 7.2});
    field.Fill(band, violet);
    field.Fill({{1.5, 6}, {6, 1.8}, {6, 10.2}}, blue);
}

void Draw(const Field &field, Menu_Image image) {
    if (image == Menu_Image::Clear)
        Draw_Clear(field);
    else if (image == Menu_Image::Edit)
        Draw_Edit(field);
    else if (image == Menu_Image::Settings)
        Draw_Settings(field);
    else if (image == Menu_Image::Undo)
        Draw_Undo(field);
    else
        Draw_Exit(field);
}

int Size_In_Pixels(int at_96_dots) {
    return Scale_Nearest(at_96_dots, platform::Dots_Per_Inch(), 96);
}

constexpr int pale = 96; ///< opacity of a disabled item's picture, out of 255

/// Returns the picture as a bitmap with premultiplied alpha, and points `pixels` at the bitmap's pixels.
/// Returns null if out of memory.
Unique_Bitmap Make_Image(Menu_Image image, Pixel_Buffer &pixels) {
    const int size = Size_In_Pixels(image_size);
    Unique_Bitmap bitmap = Make_Pixel_Bitmap(size, size, pixels);
    if (bitmap)
        Draw(Field(pixels), image);
    return bitmap;
}

void Make_Pale(const Pixel_Buffer &pixels) {
    auto *const bytes = reinterpret_cast<std::uint8_t *>(pixels.pixels);
    for (int i = 0; i < pixels.width * pixels.height * 4; ++i)
        bytes[i] = static_cast<std::uint8_t>(bytes[i] * pale / 255);
}

/// Draws the picture with its transparency over the item's background.
void Draw_Item(const DRAWITEMSTRUCT &item) {
    static const auto blend =
        Look_Up<BOOL WINAPI(HDC, int, int, int, int, HDC, int, int, int, int, BLENDFUNCTION)>(L"msimg32.dll",
                                                                                              "AlphaBlend");
    Pixel_Buffer pixels;
    const Unique_Bitmap bitmap = Make_Image(static_cast<Menu_Image>(item.itemData), pixels);
    const Unique_Memory_Dc source(CreateCompatibleDC(nullptr));
    if (blend == nullptr || !bitmap || !source)
        return;
    const Selected_Object selected(source.get(), bitmap.get());
    const bool greyed = (item.itemState & (ODS_GRAYED | ODS_DISABLED)) != 0;
    const BLENDFUNCTION over = {AC_SRC_OVER, 0, static_cast<BYTE>(greyed ? pale : 255), AC_SRC_ALPHA};
    const int top = static_cast<int>(item.rcItem.top + item.rcItem.bottom) / 2 - pixels.height / 2;
    blend(item.hDC, static_cast<int>(item.rcItem.left), top, pixels.width, pixels.height, source.get(), 0, 0,
          pixels.width, pixels.height, over);
}

} // namespace

bool Menu_Images::Show_Transparency() {
    constexpr int vista = 6;
    // Wine reports a newer Windows, but draws transparent pixels black.
    static const bool is_wine = System_Function(L"ntdll.dll", "wine_get_version") != nullptr;
    return LOBYTE(GetVersion()) >= vista && !is_wine;
}

void Menu_Images::Set(MENUITEMINFOW &item, Menu_Image image) {
    if (image == Menu_Image::None)
        return;
    item.fMask |= MIIM_BITMAP | MIIM_DATA;
    item.hbmpItem = HBMMENU_CALLBACK;
    item.dwItemData = static_cast<ULONG_PTR>(image);
    if (!Show_Transparency())
        return;
    Pixel_Buffer pixels;
    Unique_Bitmap bitmap = Make_Image(image, pixels);
    if (bitmap && (item.fState & MFS_GRAYED) != 0)
        Make_Pale(pixels);
    item.hbmpItem = bitmap.get();
    bitmaps_.push_back(std::move(bitmap));
}

bool Answer_Menu_Image(UINT message, LPARAM lparam) {
    // Native controls send these messages, too, so check the type.
    if (message == WM_MEASUREITEM) {
        auto *item = reinterpret_cast<MEASUREITEMSTRUCT *>(lparam);
        if (item->CtlType != ODT_MENU)
            return false;
        item->itemWidth = static_cast<UINT>(Size_In_Pixels(image_size + gap));
        item->itemHeight = static_cast<UINT>(Size_In_Pixels(image_size));
        return true;
    }
    if (message != WM_DRAWITEM)
        return false;
    const auto *item = reinterpret_cast<const DRAWITEMSTRUCT *>(lparam);
    if (item->CtlType != ODT_MENU)
        return false;
    Draw_Item(*item);
    return true;
}

} // namespace win32

// Drawing the pictures of menu items from polygons on a field of 16 by 16 units.
#include "win32/menu_images.h"

#include "win32/canvas.h"
#include "win32/smooth_polygon.h"
#include "win32/units.h"

#include <cmath>
#include <numbers>

namespace win32 {

namespace {

using platform::Menu_Image;
using Corners = std::vector<Smooth_Point>;

constexpr std::uint32_t blue = 0x1F0880;
constexpr std::uint32_t violet = 0x8A7FD6;
constexpr std::uint32_t red = 0xB52B3C;
constexpr std::uint32_t grey = 0x5A5F6B;
constexpr std::uint32_t wood = 0xE0A33A;
constexpr std::uint32_t dark = 0x2B2B33;

/// Draws on the field of 16 by 16 units.
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

/// A straight bar of the given thickness.
Corners Bar(Smooth_Point from, Smooth_Point to, double thickness) {
    const double length = std::sqrt((to.x - from.x) * (to.x - from.x) + (to.y - from.y) * (to.y - from.y));
    const double x = (to.y - from.y) / length * thickness / 2;
    const double y = (from.x - to.x) / length * thickness / 2;
    return {{from.x + x, from.y + y}, {to.x + x, to.y + y}, {to.x - x, to.y - y}, {from.x - x, from.y - y}};
}

/// A cross: the day's text goes.
void Draw_Clear(const Field &field) {
    field.Fill(Bar({3, 3}, {13, 13}, 2.4), red);
    field.Fill(Bar({13, 3}, {3, 13}, 2.4), red);
}

/// A pencil that writes to the lower left.
void Draw_Edit(const Field &field) {
    field.Fill({{9.8, 3.2}, {12.8, 6.2}, {5.6, 13.4}, {2.6, 10.4}}, wood);
    field.Fill({{10.7, 2.3}, {11.6, 1.4}, {14.6, 4.4}, {13.7, 5.3}}, violet);
    field.Fill({{2.6, 10.4}, {5.6, 13.4}, {1.4, 14.6}}, dark);
}

/// A toothed wheel with a hole.
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
    // Back along a small circle the other way: the hole, for crossing parts count even-odd.
    constexpr int hole_corners = 24;
    wheel.push_back(wheel.front());
    for (int i = 0; i <= hole_corners; ++i) {
        const double angle = -i * 2 * std::numbers::pi / hole_corners;
        wheel.push_back({8 + 2.3 * std::cos(angle), 8 + 2.3 * std::sin(angle)});
    }
    field.Fill(wheel, grey);
}

/// An arrow that leaves through an open door.
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

} // namespace

Unique_Bitmap Draw_Menu_Image(Menu_Image image) {
    if (image == Menu_Image::None)
        return {};
    const int size = Scale_Nearest(16, platform::Dots_Per_Inch(), 96);
    Pixel_Buffer pixels;
    Unique_Bitmap bitmap = Make_Pixel_Bitmap(size, size, pixels);
    if (!bitmap)
        return {};
    const Field field(pixels);
    field.Fill({{0, 0}, {16, 0}, {16, 16}, {0, 16}}, Pixel_Colour(platform::System_Colour(COLOR_MENU)));
    if (image == Menu_Image::Clear)
        Draw_Clear(field);
    else if (image == Menu_Image::Edit)
        Draw_Edit(field);
    else if (image == Menu_Image::Settings)
        Draw_Settings(field);
    else
        Draw_Exit(field);
    return bitmap;
}

} // namespace win32

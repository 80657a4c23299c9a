#include "toolkit/painter.h"

#include "base/reading_direction.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>
#include <vector>

using platform::Canvas;
using platform::Control_State;

namespace {

constexpr int frame_thickness = 30;    // twips; two pixels at 96 dots per inch
constexpr int hairline_thickness = 12; // twips; one pixel, or two from 180 dots per inch on

/// The share of the caption's colour in a hairline, in per cent; the rest is the box's colour. The hairline
/// of a white box with black numbers has a contrast of 2.1:1 against the box, whatever surrounds the box.
constexpr int hairline_share = 30;

/// Returns the colour of a box's hairline.
Colour Hairline_Colour(const Control_State &control) {
    const auto back = static_cast<std::uint32_t>(platform::Resolve_Colour(control.back_colour));
    const auto fore = static_cast<std::uint32_t>(platform::Resolve_Colour(control.fore_colour));
    std::uint32_t mixed = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        const std::uint32_t channel =
            (back >> shift & 0xFFU) * (100 - hairline_share) + (fore >> shift & 0xFFU) * hairline_share;
        mixed |= channel / 100 << shift;
    }
    return static_cast<Colour>(mixed);
}

/// Paints a white letter i on a disc in the control's fore colour. The disc fills the box.
void Paint_Information(Canvas &canvas, const Control_State &control) {
    const Rect &box = control.bounds;
    const int radius = std::min(box.width, box.height) / 2;
    const int centre_x = box.left + box.width / 2;
    const int centre_y = box.top + box.height / 2;
    constexpr int corners = 40;
    std::vector<Point> disc;
    for (int i = 0; i < corners; ++i) {
        const double angle = i * 2 * std::numbers::pi / corners;
        disc.push_back({centre_x + static_cast<int>(std::lround(radius * std::cos(angle))),
                        centre_y + static_cast<int>(std::lround(radius * std::sin(angle)))});
    }
    platform::Fill_Polygon(canvas, disc, control.fore_colour);
    // The dot and the stem, in eighths of the radius.
    const auto fill = [&](int left, int top, int right, int bottom) {
        const int x0 = centre_x + left * radius / 8;
        const int x1 = centre_x + right * radius / 8;
        const int y0 = centre_y + top * radius / 8;
        const int y1 = centre_y + bottom * radius / 8;
        platform::Fill_Polygon(canvas, {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}}, Rgb(255, 255, 255));
    };
    fill(-1, -5, 1, -3);
    fill(-1, -2, 1, 5);
}

void Paint_Glyph(Canvas &canvas, const Control_State &control) {
    if (control.glyph == platform::Glyph::Information)
        return Paint_Information(canvas, control);
    const Rect &box = control.bounds;
    // A triangle in the centre of the box. Its height is two fifths of the box's shorter side, and its width
    // is half its height.
    const int half_height = std::min(box.width, box.height) / 5;
    const int half_width = half_height / 2;
    const int centre_x = box.left + box.width / 2;
    const int centre_y = box.top + box.height / 2;
    const int direction = control.glyph == platform::Glyph::Arrow_Left ? -1 : 1;
    platform::Fill_Polygon(canvas,
                           {{centre_x + direction * half_width, centre_y},
                            {centre_x - direction * half_width, centre_y - half_height},
                            {centre_x - direction * half_width, centre_y + half_height}},
                           control.fore_colour);
}

void Paint_Caption(Canvas &canvas, const Control_State &control, const Rect &clip) {
    const std::string_view caption = control.caption;
    if (caption.empty())
        return;
    // All lines have the same direction, because they are one text.
    const bool right_to_left = Is_Right_To_Left(caption);
    const bool turned = right_to_left && control.align == platform::Text_Align::Left;
    const platform::Text_Align align = turned ? platform::Text_Align::Right : control.align;
    const int line_height = platform::Line_Height(control.font);
    Rect line = control.bounds;
    line.left += control.padding;
    line.width -= 2 * control.padding;
    if (control.centre_vertically) {
        const auto lines = static_cast<int>(std::count(caption.begin(), caption.end(), '\n')) + 1;
        line.top += (control.bounds.height - lines * line_height) / 2;
    } else {
        line.top += control.padding;
    }
    for (std::size_t begin = 0; begin <= caption.size() && line.top < control.bounds.Bottom();) {
        const std::size_t end = std::min(caption.find('\n', begin), caption.size());
        line.height = std::min(line_height, control.bounds.Bottom() - line.top);
        if (end > begin && line.Intersects(clip))
            platform::Draw_Text(canvas, caption.substr(begin, end - begin), line, control.font,
                                control.fore_colour, align, right_to_left);
        line.top += line_height;
        begin = end + 1;
    }
}

void Paint_Control(const Control_State &control, Canvas &canvas, const Rect &clip) {
    if (!control.transparent)
        platform::Fill_Rect(canvas, control.bounds, control.back_colour);
    if (control.frame_colour != -1)
        platform::Frame_Rect(canvas, control.bounds, control.frame_colour, frame_thickness);
    else if (control.hairline)
        platform::Frame_Rect(canvas, control.bounds, Hairline_Colour(control), hairline_thickness);
    // The mark covers a frame, because there is no room for both. The mark has the caption's colour, which
    // contrasts with the box.
    if (control.marked)
        platform::Frame_Rect(canvas, control.bounds, control.fore_colour, frame_thickness);
    if (control.glyph != platform::Glyph::None)
        Paint_Glyph(canvas, control);
    else
        Paint_Caption(canvas, control, clip);
}

} // namespace

void Paint_Controls(const platform::Form_Model &model, Canvas &canvas, const Rect &clip) {
    for (const Control_State *control : model.controls)
        if (control->visible && control->bounds.Intersects(clip))
            Paint_Control(*control, canvas, clip);
}

void Paint_Form(const platform::Form_Model &model, Canvas &canvas, const Rect &clip) {
    platform::Fill_Rect(canvas, clip, model.back_colour);
    Paint_Controls(model, canvas, clip);
}

void Paint_Single_Control(const Control_State &control, Canvas &canvas, const Rect &clip,
                          Callback_Ref<void(Canvas &)> paint_on_top) noexcept {
    try {
        Control_State here = control;
        here.bounds.left = 0;
        here.bounds.top = 0;
        // The mirror has already drawn the dialog's background for a transparent control.
        Paint_Control(here, canvas, clip);
        paint_on_top(canvas);
    } catch (...) {
        // A message box would trigger another repaint, which would fail again. The next change repaints the
        // control.
    }
}

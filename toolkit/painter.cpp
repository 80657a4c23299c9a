// Painting of a form from the state of its controls.
#include "toolkit/painter.h"

#include <algorithm>
#include <string_view>

using platform::Canvas;
using platform::Control_State;
using platform::Rect;

namespace {

constexpr int frame_thickness = 30; // twips: two pixels at 96 dots per inch

void Paint_Glyph(Canvas &canvas, const Control_State &control) {
    const Rect &box = control.bounds;
    // A triangle as high as two fifths of the box, and half as wide as high, around the box's centre.
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
    const int line_height = platform::Line_Height(control.font);
    Rect line = control.bounds;
    line.left += control.padding;
    line.width -= 2 * control.padding;
    if (control.middle) {
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
                                control.fore_colour, control.align);
        line.top += line_height;
        begin = end + 1;
    }
}

} // namespace

void Paint_Form(const platform::Form_Model &model, Canvas &canvas, const Rect &clip) {
    platform::Fill_Rect(canvas, clip, model.back_colour);
    for (const Control_State *control : model.controls) {
        if (!control->visible || !control->bounds.Intersects(clip))
            continue;
        if (!control->transparent)
            platform::Fill_Rect(canvas, control->bounds, control->back_colour);
        if (control->frame_colour != -1)
            platform::Frame_Rect(canvas, control->bounds, control->frame_colour, frame_thickness);
        if (control->glyph != platform::Glyph::None)
            Paint_Glyph(canvas, *control);
        else
            Paint_Caption(canvas, *control, clip);
    }
}

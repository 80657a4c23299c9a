#include "settings/screen_miniature.h"

#include "calendar/box_layout.h"
#include "calendar/main_frm.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "platform/screen.h"
#include "settings/page.h"
#include "toolkit/units.h"

#include <algorithm>
#include <limits>

using layout::one_pixel;
using platform::Canvas;

namespace {

constexpr int fifth_row = 28; ///< index of the row's first box; the lowest row if there is no sixth
constexpr int sixth_row = 35;

} // namespace

Screen_Miniature::Screen_Miniature(const Main_Frm &calendar)
    : main_frm_(&calendar), screen_(platform::Screen_Size()), work_area_(platform::Work_Area()) {
    const Date today = Today();
    const Date shown = calendar.Cur_Month == 0 ? today : Date{calendar.Cur_Year, calendar.Cur_Month, 1};
    first_box_ = Main_Frm::Start_Box(shown.month, shown.year);
    last_box_ = first_box_ + static_cast<int>(DaysInMonth(shown)) - 1;
    if (shown.month == today.month && shown.year == today.year)
        today_ = first_box_ + today.day - 1;
    screen_ = {std::max(screen_.width, 1), std::max(screen_.height, 1)};
}

Size Screen_Miniature::Fit(Size room) const {
    const auto proportion = [this](int height) {
        return static_cast<int>(std::int64_t{height} * screen_.width / screen_.height);
    };
    const int width = std::min(room.width, proportion(room.height));
    return {width, static_cast<int>(std::int64_t{width} * screen_.height / screen_.width)};
}

void Screen_Miniature::Place_Calendar(std::int16_t style, std::int16_t position) {
    style_ = style;
    const Box_Layout layout(style);
    const Rect whole = Pixels_To_Twips(Rect{0, 0, layout.Full_Size().width, layout.Full_Size().height});
    const int lowest = first_box_ <= sixth_row && sixth_row <= last_box_ ? sixth_row : fifth_row;
    Placement placement;
    placement.work_area = GetDesktopRect(true);
    placement.form = {whole.width, whole.height};
    placement.lowest_box_bottom = Pixels_To_Twips(layout.Box(lowest)).Bottom();
    placement.manual = {Cur_Settings.Manual_PosX, Cur_Settings.Manual_PosY};
    const auto place = Position_Of(position, placement);
    calendar_ = Twips_To_Pixels(Rect{place ? place->x : main_frm_->Left(),
                                     place ? place->y : main_frm_->Top(), whole.width, whole.height});
}

Rect Screen_Miniature::Scaled_Rect(const Rect &pixels, Size size) const {
    const auto across = [&](int x) { return static_cast<int>(std::int64_t{x} * size.width / screen_.width); };
    const auto down = [&](int y) { return static_cast<int>(std::int64_t{y} * size.height / screen_.height); };
    const int left = across(pixels.left);
    const int top = down(pixels.top);
    return {left, top, across(pixels.Right()) - left, down(pixels.Bottom()) - top};
}

Point Screen_Miniature::Mark(std::int16_t place, Size size) const {
    const Rect work = Scaled_Rect(work_area_, size);
    // The outer marks are half as far from the edge as from the middle marks.
    const auto along = [](int length, int hundredths) { return length * (hundredths + 25) / 150; };
    return {work.left + along(work.width, Positions[place].left),
            work.top + along(work.height, Positions[place].above)};
}

std::int16_t Screen_Miniature::Nearest_Place(Point to, Size size, Point step) const {
    std::int16_t nearest = -1;
    auto least = std::numeric_limits<std::int64_t>::max();
    for (std::int16_t place = 0; Is_Position(place); ++place) {
        if (!Is_Place(place))
            continue;
        const Point mark = Mark(place, size);
        const std::int64_t across = mark.x - to.x;
        const std::int64_t down = mark.y - to.y;
        const std::int64_t distance = across * across + down * down;
        if (distance >= least || (step != Point{} && across * step.x + down * step.y <= 0))
            continue;
        least = distance;
        nearest = place;
    }
    return nearest;
}

void Screen_Miniature::Paint(Canvas &canvas, const Picture &wallpaper, Size size) const {
    const Rect all{0, 0, size.width, size.height};
    if (wallpaper.width > 0)
        platform::Draw_Picture(canvas, wallpaper, all);
    else
        platform::Fill_Rect(canvas, all, desktop_colour);
    Paint_Calendar(canvas, size);
    Paint_Task_Bar(canvas, size);
    platform::Frame_Rect(canvas, all, shadow_colour, one_pixel);
}

/// Draws the parts of the screen outside the work area, at any edge.
void Screen_Miniature::Paint_Task_Bar(Canvas &canvas, Size size) const {
    const Rect work = Scaled_Rect(work_area_, size);
    for (const Rect &bar :
         {Rect{0, 0, size.width, work.top}, Rect{0, work.Bottom(), size.width, size.height - work.Bottom()},
          Rect{0, work.top, work.left, work.height},
          Rect{work.Right(), work.top, size.width - work.Right(), work.height}}) {
        if (bar.Empty())
            continue;
        platform::Fill_Rect(canvas, bar, face_colour);
        platform::Frame_Rect(canvas, bar, shadow_colour, one_pixel);
    }
}

void Screen_Miniature::Paint_Calendar(Canvas &canvas, Size size) const {
    const Box_Layout layout(style_);
    const auto place = [&](Rect pixels) {
        pixels.left += calendar_.left;
        pixels.top += calendar_.top;
        return Scaled_Rect(pixels, size);
    };
    // Draw the title and the headers as one bar, because the gap between them is less than a pixel.
    const Rect headers = layout.Header(0);
    platform::Fill_Rect(canvas, place({0, 0, layout.Full_Size().width, headers.Bottom()}),
                        main_frm_->Back_Colour());
    // At this scale, some gaps between boxes would vanish. Draw a line at the right and lower edges of each
    // box instead.
    for (int i = first_box_; i <= last_box_; ++i) {
        Rect box = layout.Box(i);
        box.width += layout.Gap();
        box.height += layout.Gap();
        const Rect small = place(box);
        platform::Fill_Rect(canvas, small, shadow_colour);
        platform::Fill_Rect(canvas,
                            {small.left, small.top, std::max(small.width - one_pixel, 1),
                             std::max(small.height - one_pixel, 1)},
                            i == today_ ? Cur_Settings.Col_Today : Cur_Settings.Col_Normal);
    }
}

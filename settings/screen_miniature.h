// A picture of the whole screen with the calendar on it, drawn small: where on the screen the calendar will
// be. The choosing of a position is not here.
#pragma once

#include "base/geometry.h"
#include "platform/drawing.h"
#include "platform/pictures.h"

#include <cstdint>

class Main_Frm;

/// What the miniature shows. Rectangles of the screen are pixels on it, those of the miniature twips.
class Screen_Miniature {
public:
    /// The screen, the work area and the month of now.
    explicit Screen_Miniature(const Main_Frm &calendar);

    /// The largest size within `room` (twips) that has the screen's proportion.
    Size Fit(Size room) const;

    /// Puts the calendar where it would be with a style and a position code. A number that is no code leaves
    /// it where it is.
    void Place_Calendar(std::int16_t style, std::int16_t position);

    /// The middle of the mark for a place (desktop/position.h), on a miniature of `size`.
    Point Mark(std::int16_t place, Size size) const;

    /// The code of the place with the mark nearest to a point; with a `step`, of those only that lie in its
    /// direction. -1: there is none.
    std::int16_t Nearest_Place(Point to, Size size, Point step = {}) const;

    /// Draws the screen with `wallpaper` stretched over it (none: the desktop's colour), the task bar and the
    /// calendar into a miniature of `size`.
    void Paint(platform::Canvas &canvas, const Picture &wallpaper, Size size) const;

private:
    Rect Scaled_Rect(const Rect &pixels, Size size) const;
    void Paint_Task_Bar(platform::Canvas &canvas, Size size) const;
    void Paint_Calendar(platform::Canvas &canvas, Size size) const;

    const Main_Frm *main_frm_;
    Size screen_;
    Rect work_area_;
    int first_box_; ///< index of the box with day 1
    int last_box_;
    int today_ = -1; ///< index of today's box, -1: it is in another month
    std::int16_t style_ = 0;
    Rect calendar_;
};

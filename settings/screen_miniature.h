// A small picture of the whole screen, with the calendar at its new position. The user chooses the position
// in this picture.
#pragma once

#include "base/geometry.h"
#include "platform/drawing.h"
#include "platform/pictures.h"

#include <cstdint>

class Main_Frm;

/// The contents of the miniature. Rectangles on the screen are in pixels, those on the miniature in twips.
class Screen_Miniature {
public:
    /// Reads the current screen size, work area and calendar month.
    explicit Screen_Miniature(const Main_Frm &calendar);

    /// Returns the largest size within `room` (twips) that has the screen's proportions.
    Size Fit(Size room) const;

    /// Places the calendar according to a style and a position code. If the code is invalid, places the
    /// calendar where it is on the screen.
    void Place_Calendar(std::int16_t style, std::int16_t position);

    /// Returns the middle of the mark for a fixed place (desktop/position.h) on a miniature of `size`.
    Point Mark(std::int16_t place, Size size) const;

    /// Returns the code of the place whose mark is nearest to a point, or -1 if there is none. With a `step`,
    /// considers only marks in that direction.
    std::int16_t Nearest_Place(Point to, Size size, Point step = {}) const;

    /// Draws a miniature of `size`: the calendar and the task bar on the stretched `wallpaper`, or on the
    /// desktop's colour if `wallpaper` is empty.
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
    int today_ = -1; ///< index of today's box; -1: not in the shown month
    std::int16_t style_ = 0;
    Rect calendar_;
};

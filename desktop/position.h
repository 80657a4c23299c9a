// The positions of the calendar: their table, and the calculation of a point in the work area from a code. No
// function here moves the window.
#pragma once

#include "base/geometry.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>

/// A position: its name, and the percentages of the work area's free width and height that lie to the left of
/// the calendar and above it.
struct Position {
    const char *name;
    int left;
    int above;
};

/// Stands for both percentages of the manual position, which has coordinates instead.
constexpr int by_hand = -1;

/// The index is the code that settings and theme packs store.
inline constexpr Position Positions[] = {
    {"Bottom Right", 100, 100}, {"Bottom Center", 50, 100},   {"Bottom Left", 0, 100},
    {"Center Screen", 50, 50},  {"Top Right", 100, 0},        {"Top Center", 50, 0},
    {"Top Left", 0, 0},         {"Manual", by_hand, by_hand}, {"Center Right", 100, 50},
    {"Center Left", 0, 50},
};

/// The code of the manual position.
constexpr auto Manual_Position =
    static_cast<std::int16_t>(std::ranges::find(Positions, by_hand, &Position::left) - std::begin(Positions));

/// The input of Position_Of, in twips.
struct Placement {
    Rect work_area;
    Size form;
    /// The lower edge of the lowest row of day boxes, relative to the form.
    int lowest_box_bottom = 0;
    Point manual;
};

/// Returns whether a number is a position code.
constexpr bool Is_Position(std::int16_t code) {
    return code >= 0 && code < static_cast<std::int16_t>(std::size(Positions));
}

/// Returns whether a number is the code of a fixed place on the screen.
constexpr bool Is_Place(std::int16_t code) {
    return Is_Position(code) && code != Manual_Position;
}

/// Returns the window's top left corner for a position code, in twips, or nullopt if the number is not a
/// code. Throws Conversion_Error (core/convert.h) if a value does not fit into 32 bits.
std::optional<Point> Position_Of(std::int16_t code, const Placement &placement);

/// Returns a top left corner at which the work area shows a window: the corner of `place` if any part of the
/// window is visible there, otherwise the nearest corner at which the whole window is visible.
Point Place_In_Sight(const Rect &place, const Rect &work_area);

/// Returns the work area of the desktop, in twips or in pixels.
Rect GetDesktopRect(bool in_twips);

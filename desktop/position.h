// Where the calendar stands: the table of positions and the work area they refer to. Pure arithmetic; moving
// the window is not here.
#pragma once

#include "base/geometry.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>

/// A way to place the calendar: its name, and in hundredths of the room that it leaves free in the work area,
/// how much of that is left of it and above it.
struct Position {
    const char *name;
    int left;
    int above;
};

/// The `left` and `above` of the one that the user gives by coordinates.
constexpr int by_hand = -1;

/// In the order of the codes that the settings and theme packs hold.
inline constexpr Position Positions[] = {
    {"Bottom Right", 100, 100}, {"Bottom Center", 50, 100},   {"Bottom Left", 0, 100},
    {"Center Screen", 50, 50},  {"Top Right", 100, 0},        {"Top Center", 50, 0},
    {"Top Left", 0, 0},         {"Manual", by_hand, by_hand}, {"Center Right", 100, 50},
    {"Center Left", 0, 50},
};

/// The code of the one that is no place on the screen.
constexpr auto Manual_Position =
    static_cast<std::int16_t>(std::ranges::find(Positions, by_hand, &Position::left) - std::begin(Positions));

/// What a placement depends on, in twips.
struct Placement {
    Rect work_area;
    Size form;
    int lowest_box_bottom = 0; ///< on the form: the lower edge of the lowest row of day boxes
    Point manual;
};

/// Returns whether a number is a position code.
constexpr bool Is_Position(std::int16_t code) {
    return code >= 0 && code < static_cast<std::int16_t>(std::size(Positions));
}

/// Returns whether a number is the code of a place on the screen.
constexpr bool Is_Place(std::int16_t code) {
    return Is_Position(code) && code != Manual_Position;
}

/// The window's left top corner for a position code, nothing for a number that is no code. Throws
/// Conversion_Error (core/convert.h) when a figure leaves 32 bits.
std::optional<Point> Position_Of(std::int16_t code, const Placement &placement);

/// Returns where a window with that place is to be so that the work area shows it: right there when any part
/// of it is seen, else at the nearest place where all of it is.
Point Place_In_Sight(const Rect &place, const Rect &work_area);

/// The work area of the desktop, in twips or in pixels.
Rect GetDesktopRect(bool in_twips);

// Where the calendar stands: the ten position codes and the work area they refer to. Pure arithmetic; moving
// the window is not here.
#pragma once

#include "base/geometry.h"

#include <cstdint>
#include <optional>

/// The position codes as they are kept in the settings and in theme packs.
enum class Position_Code : std::int16_t {
    Bottom_Right = 0,
    Bottom_Center = 1,
    Bottom_Left = 2,
    Center_Screen = 3,
    Top_Right = 4,
    Top_Center = 5,
    Top_Left = 6,
    Manual = 7,
    Center_Right = 8,
    Center_Left = 9,
};

/// The one that is no place on the screen, as settings and packs hold it.
constexpr auto Manual_Position = static_cast<std::int16_t>(Position_Code::Manual);

/// What a placement depends on, in twips.
struct Placement {
    Rect work_area;
    Size form;
    int lowest_box_bottom = 0; ///< on the form: the lower edge of the lowest row of day boxes
    Point manual;
};

/// Returns whether a number is a position code.
bool Is_Position(std::int16_t code);

/// The window's left top corner for a position code, nothing for a number that is no code. Throws
/// Conversion_Error (core/convert.h) when a figure leaves 32 bits.
std::optional<Point> Position_Of(std::int16_t code, const Placement &placement);

/// Returns where a window with that place is to be so that the work area shows it: right there when any part
/// of it is seen, else at the nearest place where all of it is.
Point Place_In_Sight(const Rect &place, const Rect &work_area);

/// The work area of the desktop, in twips or in pixels.
Rect GetDesktopRect(bool in_twips);

// The names under which the pages show display modes and box styles. What the numbers do is not here.
#pragma once

#include <cstdint>

/// Of a wallpaper's display mode; empty for a number that is none.
constexpr const char *Display_Mode_Name(std::int16_t mode) {
    return mode == 0 ? "Center" : mode == 1 ? "Tile" : mode == 2 ? "Stretch" : "";
}

/// Of a box style; empty for a number that is none.
constexpr const char *Box_Style_Name(std::int16_t style) {
    return style == 0 ? "Thin Box" : style == 1 ? "Square Box" : "";
}

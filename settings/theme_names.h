// The names that the pages show for display modes and box styles.
#pragma once

#include <cstdint>

/// Returns the name of a wallpaper's display mode, or an empty text for an invalid number.
constexpr const char *Display_Mode_Name(std::int16_t mode) {
    return mode == 0 ? "Center" : mode == 1 ? "Tile" : mode == 2 ? "Stretch" : "";
}

/// Returns the name of a box style, or an empty text for an invalid number.
constexpr const char *Box_Style_Name(std::int16_t style) {
    return style == 0 ? "Thin Box" : style == 1 ? "Square Box" : "";
}

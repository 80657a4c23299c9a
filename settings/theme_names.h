// The names under which the pages show display modes and box styles. What the numbers do is not here.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace theme_names {

/// The name at a number's place, empty where it has none.
template <std::size_t Count>
constexpr const char *Name_In(const std::array<const char *, Count> &names, std::int16_t number) {
    return number < 0 || number >= static_cast<int>(Count) ? "" : names[static_cast<std::size_t>(number)];
}

} // namespace theme_names

/// Of a wallpaper's display mode; empty for a number that is none.
constexpr const char *Display_Mode_Name(std::int16_t mode) {
    return theme_names::Name_In(std::array{"Center", "Tile", "Stretch"}, mode);
}

/// Of a box style; empty for a number that is none.
constexpr const char *Box_Style_Name(std::int16_t style) {
    return theme_names::Name_In(std::array{"Thin Box", "Square Box"}, style);
}

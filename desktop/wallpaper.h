// Hanging up a wallpaper: the system's values for its display mode, then the picture itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Where the system keeps the current user's wallpaper and its display mode.
inline constexpr const char *Desktop_Key = "Control Panel\\Desktop";

/// Hangs the bitmap at `path` up in a display mode: 0 centred, 1 tiled, 2 stretched, as is every other
/// number. Errors are silent.
void Set_Display_Mode_Wallpaper(const std::string &path, std::int16_t display_mode) noexcept;

/// The same by the mode's word: "CENTER", "TILED", "STRETCH", as which every other word counts. An empty
/// path takes the wallpaper away.
void Set_Word_Wallpaper(const std::string &path, std::string_view mode_word);

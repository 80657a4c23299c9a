// Sets the wallpaper: first the system's values for its display mode, then the picture. Also keeps the user's
// own wallpaper while the program shows others.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

/// Makes the bitmap at `path` the wallpaper, in a display mode: 0 centred, 1 tiled, 2 and every other number
/// stretched. Failures are silent.
void Set_Display_Mode_Wallpaper(const std::string &path, std::int16_t display_mode) noexcept;

/// Makes the bitmap at `path` the wallpaper, in the mode "CENTER", "TILED" or "STRETCH"; every other word
/// means "STRETCH". An empty path removes the wallpaper.
void Set_Word_Wallpaper(const std::string &path, std::string_view mode_word);

/// The wallpaper that the user has chosen in the system.
struct User_Wallpaper {
    std::string path, style, tiled; ///< the system's values; "UNKNOWN": missing
    std::string monitors;           ///< the text of platform::Wallpaper_Of_Monitors
};

/// Returns the current wallpaper. If the system is going to overwrite its file, `path` is that of a copy.
User_Wallpaper Find_User_Wallpaper();

/// Restores this wallpaper.
void Restore_User_Wallpaper(const User_Wallpaper &wallpaper);

/// Stores the wallpaper for the next start, with the name of the pack that is shown instead. An empty name
/// discards the stored one. Failures are silent.
void Save_User_Wallpaper(const User_Wallpaper &wallpaper, const std::string &pack) noexcept;

/// Returns the stored wallpaper and the pack; an empty pack name means that nothing is stored.
std::pair<User_Wallpaper, std::string> Load_User_Wallpaper();

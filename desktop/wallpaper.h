// Sets the wallpaper: first the system's values for its display mode, then the picture. Also stores the
// user's own wallpaper while the program shows others.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

/// Makes the bitmap at `path` the wallpaper, in a display mode: 0 is centred, 1 tiled, any other number
/// stretched. Failures are silent.
void Set_Display_Mode_Wallpaper(const std::string &path, std::int16_t display_mode) noexcept;

/// Makes the bitmap at `path` the wallpaper, in the mode "CENTER", "TILED" or "STRETCH"; any other word means
/// "STRETCH". An empty path removes the wallpaper. Failures are silent.
void Set_Word_Wallpaper(const std::string &path, std::string_view mode_word);

/// The wallpaper that the user has chosen in the system.
struct User_Wallpaper {
    std::string path, style, tiled; ///< the system's values; "UNKNOWN" if missing
    std::string monitors;           ///< the text of platform::Wallpaper_Of_Monitors
};

/// Returns the current wallpaper. If the system would overwrite its file with the next wallpaper, `path`
/// names a copy.
User_Wallpaper Find_User_Wallpaper();

/// Makes a wallpaper that Find_User_Wallpaper returned the current one again.
void Restore_User_Wallpaper(const User_Wallpaper &wallpaper);

/// Stores the wallpaper for the next start, with the name of the pack that the preview shows instead. An
/// empty name discards the stored one. Failures are silent.
void Save_User_Wallpaper(const User_Wallpaper &wallpaper, const std::string &pack) noexcept;

/// Returns the stored wallpaper and the pack; an empty pack name means that nothing is stored.
std::pair<User_Wallpaper, std::string> Load_User_Wallpaper();

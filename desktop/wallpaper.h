// Hanging up a wallpaper: the system's values for its display mode, then the picture itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

/// Hangs the bitmap at `path` up in a display mode: 0 centred, 1 tiled, 2 stretched, as is every other
/// number. Errors are silent.
void Set_Display_Mode_Wallpaper(const std::string &path, std::int16_t display_mode) noexcept;

/// The same by the mode's word: "CENTER", "TILED", "STRETCH", as which every other word counts. An empty
/// path takes the wallpaper away.
void Set_Word_Wallpaper(const std::string &path, std::string_view mode_word);

/// A user's own wallpaper.
struct User_Wallpaper {
    std::string path, style, tiled; ///< the system's values; "UNKNOWN": there is none
    std::string monitors;           ///< the text of platform::Wallpaper_Of_Monitors
};

/// Returns what hangs now, with the path of a copy where the system is going to write over the file.
User_Wallpaper Find_User_Wallpaper();

/// Hangs it up again.
void Restore_User_Wallpaper(const User_Wallpaper &wallpaper);

/// Keeps it in the store for a next start, together with the name of the pack that hangs meanwhile, or, with
/// an empty name, keeps nothing any more. A store that refuses keeps nothing.
void Save_User_Wallpaper(const User_Wallpaper &wallpaper, const std::string &pack) noexcept;

/// Returns what is kept; an empty name of a pack: nothing.
std::pair<User_Wallpaper, std::string> Load_User_Wallpaper();

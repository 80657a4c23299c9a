// The display modes as the system keeps them.
#include "desktop/wallpaper.h"

#include "platform/registry.h"
#include "platform/wallpaper.h"

#include <exception>

void Set_Display_Mode_Wallpaper(const std::string &path, std::int16_t display_mode) noexcept {
    try {
        const char *word = "";
        switch (display_mode) {
        case 0:
            word = "CENTER";
            break;
        case 1:
            word = "TILED";
            break;
        case 2:
            word = "STRETCH";
            break;
        default:
            break;
        }
        Set_Word_Wallpaper(path, word);
    } catch (const std::exception &) {
        // A wallpaper that does not change is seen; it is not worth a message.
    }
}

void Set_Word_Wallpaper(const std::string &path, std::string_view mode_word) {
    const platform::Registry_Root user = platform::Find_Registry_Root("HKCU");
    const bool stretched = mode_word != "CENTER" && mode_word != "TILED";
    platform::Registry_Write_String(user, Desktop_Key, "TileWallpaper", mode_word == "TILED" ? "1" : "0");
    platform::Registry_Write_String(user, Desktop_Key, "WallpaperStyle", stretched ? "2" : "0");
    platform::Set_Wallpaper(path);
}

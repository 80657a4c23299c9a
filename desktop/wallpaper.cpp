#include "desktop/wallpaper.h"

#include "platform/registry.h"
#include "platform/wallpaper.h"

#include <exception>
#include <variant>

namespace {

/// The system's key for the current user's wallpaper and its display mode.
constexpr const char *Desktop_Key = "Control Panel\\Desktop";
/// The program's key for the user's wallpaper while a preview shows others.
constexpr const char *kept_key = "Software\\Vellatro\\Preview";
constexpr const char *unknown = "UNKNOWN";

/// The names of the system's values. The program's key uses the same names.
constexpr std::pair<const char *, std::string User_Wallpaper::*> values[] = {
    {"TileWallpaper", &User_Wallpaper::tiled},
    {"WallpaperStyle", &User_Wallpaper::style},
    {"Wallpaper", &User_Wallpaper::path}};

} // namespace

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
        // The user sees that the wallpaper does not change, so no message is needed.
    }
}

void Set_Word_Wallpaper(const std::string &path, std::string_view mode_word) {
    const platform::Registry_Root user = platform::Find_Registry_Root("HKCU");
    const bool stretched = mode_word != "CENTER" && mode_word != "TILED";
    platform::Registry_Write_String(user, Desktop_Key, "TileWallpaper", mode_word == "TILED" ? "1" : "0");
    platform::Registry_Write_String(user, Desktop_Key, "WallpaperStyle", stretched ? "2" : "0");
    platform::Set_Wallpaper(path);
}

User_Wallpaper Find_User_Wallpaper() {
    User_Wallpaper wallpaper;
    for (const auto &[name, member] : values) {
        const platform::Registry_Value value =
            platform::Registry_Read("HKCU", Desktop_Key, name, 'S', std::string(unknown));
        const auto *text = std::get_if<std::string>(&value);
        wallpaper.*member = text == nullptr ? unknown : *text;
    }
    wallpaper.monitors = platform::Wallpaper_Of_Monitors();
    wallpaper.path = platform::Persistent_Wallpaper(wallpaper.path);
    return wallpaper;
}

void Restore_User_Wallpaper(const User_Wallpaper &wallpaper) {
    for (const auto &[name, member] : values)
        // A value that was missing before gets the system's default.
        if (member != &User_Wallpaper::path)
            platform::Registry_Write_String(platform::Find_Registry_Root("HKCU"), Desktop_Key, name,
                                            wallpaper.*member == unknown ? "0" : wallpaper.*member);
    platform::Set_Wallpaper(wallpaper.path == unknown ? "" : wallpaper.path, wallpaper.monitors);
}

void Save_User_Wallpaper(const User_Wallpaper &wallpaper, const std::string &pack) noexcept {
    try {
        for (const auto &[name, member] : values)
            platform::Write_User_Value(kept_key, name, wallpaper.*member);
        platform::Write_User_Value(kept_key, "Monitors", wallpaper.monitors);
        // Write the pack last: it marks the stored wallpaper as complete.
        platform::Write_User_Value(kept_key, "Pack", pack);
    } catch (const std::exception &) {
        // The preview still restores the wallpaper, unless the program is killed.
    }
}

std::pair<User_Wallpaper, std::string> Load_User_Wallpaper() {
    const auto kept = [](const char *name) {
        return platform::Read_User_Value(kept_key, name).value_or(std::string());
    };
    User_Wallpaper wallpaper;
    for (const auto &[name, member] : values)
        wallpaper.*member = kept(name);
    wallpaper.monitors = kept("Monitors");
    return {wallpaper, kept("Pack")};
}

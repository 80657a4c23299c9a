// Theme packs: folders beside the program, each with one picture per month and a settings.ini that gives
// the box style, the position and the display mode for each month. The functions here read packs and make
// the bitmap that a wallpaper needs. They do not set the wallpaper.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The text that a failed lookup returns instead of a value.
inline constexpr const char *Theme_Error = "ERROR";

/// Returns whether a text can be a pack's name: a plain folder name that cannot lead outside the program's
/// folder.
bool Is_Pack_Name(std::string_view name);

/// Returns whether two names mean the same pack. Ignores case, as Windows does in folder names.
bool Same_Pack(std::string_view a, std::string_view b);

/// Returns the names of the folders beside the program that hold a settings.ini, in alphabetical order.
std::vector<std::string> Find_Packs();

/// Returns the full path of a file in a pack.
std::string Pack_File(const std::string &pack, const std::string &name);

/// Returns the value text of a month ("2-4-1") from the bytes of a settings.ini: the last one if there are
/// several, or an empty text if there is none. The first item without "=" ends the search. Throws
/// Sequential_Error if the bytes are malformed.
std::string Month_Details(std::string_view bytes, std::int16_t month);

/// The reason why a pack has no value texts: its folder is missing, or its settings.ini is missing or
/// cannot be read.
enum class Pack_Fault { Missing, Unreadable };

/// Returns the value text of a month in a pack, an empty text if the pack has none for the month, or the
/// fault.
std::variant<std::string, Pack_Fault> Find_Paper_Details(std::int16_t month, const std::string &pack);

/// Returns one part of a value text: the box style before the first "-", the position between the first and
/// the second "-", or the display mode after the second. A missing part is empty.
std::string Get_Paper_BoxStyle(std::string_view details);
std::string Get_Paper_Pos(std::string_view details);
std::string Get_Paper_DisplayMode(std::string_view details);

/// Returns the path of a month's bitmap. If the bitmap is missing, deletes the pack's other bitmaps and
/// creates this one from the month's picture. Returns Theme_Error if `pack` is not a pack name. Throws
/// platform::Picture_Error if the picture cannot be loaded, and platform::File_Error if the bitmap cannot be
/// saved.
std::string Get_Paper_Path(std::int16_t month, const std::string &pack);

/// Returns the message for a month's wallpaper that cannot be shown. The caller appends the reason.
std::string Picture_Error_Text(std::int16_t month);

/// Deletes the bitmaps of a pack. Skips those that cannot be deleted.
void Delete_Old_Bmps(const std::string &pack);

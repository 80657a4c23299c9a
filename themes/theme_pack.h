// Theme packs: folders beside the program with a picture for each month, and a file settings.ini that gives
// the box style, the position and the display mode that go with it. Looking them up, and making the bitmap
// that a wallpaper needs. Hanging it up is not here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The text that stands for a value when a lookup has failed.
inline constexpr const char *Theme_Error = "ERROR";

/// Whether a text can be a pack's name: the plain name of a folder, which leads nowhere else.
bool Is_Pack_Name(std::string_view name);

/// Whether two names are the same pack's: folders are found in any letter case.
bool Same_Pack(std::string_view a, std::string_view b);

/// The names of the folders beside the program that hold a settings.ini, in the order of the alphabet.
std::vector<std::string> Find_Packs();

/// The full path of a file of a pack.
std::string Pack_File(const std::string &pack, const std::string &name);

/// The value text of a month ("2-4-1") in a settings.ini with these bytes; of several the last, empty for
/// none. Throws Sequential_Error.
std::string Month_Details(std::string_view bytes, std::int16_t month);

/// Why a pack has no value texts: it is not there, or its settings.ini is not or cannot be read.
enum class Pack_Fault { Missing, Unreadable };

/// The value text of a month in a pack, empty for none, or why it cannot be told.
std::variant<std::string, Pack_Fault> Find_Paper_Details(std::int16_t month, const std::string &pack);

/// The parts of a value text: before its first "-", between the first and the second, and after the second.
/// A part that is not there is empty.
std::string Get_Paper_BoxStyle(std::string_view details);
std::string Get_Paper_Pos(std::string_view details);
std::string Get_Paper_DisplayMode(std::string_view details);

/// The path of a month's bitmap, which is made from its picture if it is not there, in the place of the
/// bitmaps of other months. Theme_Error for a name that is no pack's. Throws platform::Picture_Error or
/// platform::File_Error when the picture cannot be loaded or the bitmap not be saved.
std::string Get_Paper_Path(std::int16_t month, const std::string &pack);

/// Says that a month's picture cannot be shown, for a reason that is told behind it.
std::string Picture_Error_Text(std::int16_t month);

/// Deletes the bitmaps of a pack. What cannot be deleted stays.
void Delete_Old_Bmps(const std::string &pack);

// The user's settings: one member per key of the settings store, and the one table that drives their
// reading, their writing and their names in a configuration file.
#pragma once

#include "base/colour.h"
#include "base/error.h"

#include <cstdint>
#include <span>
#include <string>
#include <variant>

/// All settings, with the values of a first run.
struct Settings {
    std::int16_t Style = 1;
    std::int16_t Alignment = 0;
    Colour Col_Today = 16761024;
    Colour Col_Normal = 16777215;
    Colour Col_Fore = 16777215;
    Colour Col_Num = System_Colour(18);
    Colour Col_Text = System_Colour(18);
    Colour Col_Back = 8390687;
    std::int16_t Menu_Col_Sorce = 1;
    std::string Pack_Name = "Default";
    std::int16_t Use_Themes = 0;
    std::int16_t Use_Theme_Pos = 1;
    std::int16_t Use_Theme_Style = 1;
    std::int16_t Show_Alerts = 1;
    std::int16_t Allow_Dragging = 1;
    bool Bar_Time = false;
    std::string Bar_Time_Format = "H:mm";
    std::string Bar_Date_Format = "d Month - yyyy";
    std::int16_t Manual_PosX = 0;
    std::int16_t Manual_PosY = 0;
    bool Use_Other_Display_Mode = false;
    std::int16_t Other_Display_Mode = 0;
    std::int16_t Auto_Compact = 0;
    std::int16_t Tooltips = 1;
    std::int16_t Settings_Tab = 4;
    friend bool operator==(const Settings &, const Settings &) = default;
};

/// The program-wide settings, which every window reads directly.
extern Settings Cur_Settings;

using Setting_Member = std::variant<std::int16_t Settings::*, std::int32_t Settings::*, bool Settings::*,
                                    std::string Settings::*>;

/// One row of the table: where a setting is stored, which member it is, how and where it stands in a
/// configuration file.
struct Setting_Row {
    const char *section;
    const char *key;
    Setting_Member member;
    const char *configuration_key; ///< null: it has no line there
    int configuration_line;        ///< counted from 1
};

/// The rows in reading order.
std::span<const Setting_Row> Setting_Rows();

/// The row of a member. Throws Error where the table has none.
const Setting_Row &Row(Setting_Member member);

/// Returns whether the two hold different values of a setting.
bool Differ(const Settings &a, const Settings &b, Setting_Member member);

void Copy_Setting(const Settings &from, Settings &to, Setting_Member member);

/// A stored value is not of its key's type. what() names section, key, value and what was expected.
class Setting_Error : public Error {
public:
    using Error::Error;
};

/// Reads all keys into Cur_Settings, absent ones with their defaults. Writes nothing. Throws Setting_Error at
/// the first value that does not convert.
void Load_Settings();

/// The member of a row as the text that is stored for it.
std::string Setting_Text(const Settings &settings, const Setting_Row &row);

/// Converts `text`, puts it into the member of a row of Cur_Settings and stores it, unchanged, under its
/// key. Throws Conversion_Error, and platform::Registry_Error when the member has its value already.
void Store_Setting_Text(const Setting_Row &row, std::string_view text);

/// Converts `text` and puts it into the member of a row. Throws Conversion_Error.
void Set_From_Text(Settings &settings, const Setting_Row &row, std::string_view text);

/// Changes a member of Cur_Settings and stores it. Throws platform::Registry_Error, and then the member is as
/// it was.
void Change_Setting(std::int16_t Settings::*member, std::int16_t value);

/// Stores the present value of a member of Cur_Settings. Throws platform::Registry_Error.
void Save_Setting(Setting_Member member);

/// The same, but a store that refuses is no error: the value holds until the program's end.
void Store_Setting(Setting_Member member);

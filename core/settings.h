// The user's settings, one member per value in the settings store, and the table that maps each member to its
// names in the store and in a configuration file.
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

/// The program-wide settings. Every window reads them directly.
extern Settings Cur_Settings;

using Setting_Member = std::variant<std::int16_t Settings::*, std::int32_t Settings::*, bool Settings::*,
                                    std::string Settings::*>;

/// A setting's place in the store, its member, and its key and line in a configuration file.
struct Setting_Row {
    const char *section;
    const char *key;
    Setting_Member member;
    const char *configuration_key; ///< null: configuration files omit the setting
    int configuration_line;        ///< counted from 1
};

/// Returns the rows in the order of reading.
std::span<const Setting_Row> Setting_Rows();

/// Returns the row of a member. Throws Error if the table has none.
const Setting_Row &Row(Setting_Member member);

/// Returns whether `a` and `b` hold different values of a setting.
bool Differ(const Settings &a, const Settings &b, Setting_Member member);

void Copy_Setting(const Settings &from, Settings &to, Setting_Member member);

/// Thrown if a stored value is not of its setting's type. what() names section, key, value and the expected
/// form.
class Setting_Error : public Error {
public:
    using Error::Error;
};

/// Reads all settings into Cur_Settings; settings that the store lacks get their defaults. Writes nothing.
/// Throws Setting_Error at the first value that does not convert.
void Load_Settings();

/// Returns the value of a row's member in the text form that the store holds.
std::string Setting_Text(const Settings &settings, const Setting_Row &row);

/// Converts `text`, assigns it to the row's member of Cur_Settings and stores the text as it is. Throws
/// Conversion_Error. Throws platform::Registry_Error if the store refuses; the member keeps the new value
/// then.
void Store_Setting_Text(const Setting_Row &row, std::string_view text);

/// Converts `text` and assigns it to the member of a row. Throws Conversion_Error.
void Set_From_Text(Settings &settings, const Setting_Row &row, std::string_view text);

/// Changes a member of Cur_Settings and stores it. Throws platform::Registry_Error if the store refuses; the
/// member keeps its old value then.
void Change_Setting(std::int16_t Settings::*member, std::int16_t value);

/// Stores the current value of a member of Cur_Settings. Throws platform::Registry_Error.
void Save_Setting(Setting_Member member);

/// Stores the current value of a member of Cur_Settings. If the store refuses, the value still holds until
/// the program ends.
void Store_Setting(Setting_Member member);

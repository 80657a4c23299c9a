// The table of the settings, and what it drives: reading the store, writing one key of it, and the text forms
// of the values.
#include "core/settings.h"

#include "base/joined.h"
#include "core/convert.h"
#include "platform/registry.h"

#include <array>
#include <type_traits>
#include <utility>

Settings Cur_Settings;

namespace {

constexpr const char *general = "Settings";
constexpr const char *colours = "Colours";

constexpr std::array<Setting_Row, 25> rows{{
    {general, "Style", &Settings::Style, "Style"},
    {general, "Alignment", &Settings::Alignment, "TaskPos"},
    {colours, "Today", &Settings::Col_Today, "Col_Today"},
    {colours, "Normal", &Settings::Col_Normal, "Col_Normal"},
    {colours, "Fore", &Settings::Col_Fore, "Col_Fore"},
    {colours, "Num", &Settings::Col_Num, "Col_Num"},
    {colours, "Text", &Settings::Col_Text, "Col_Text"},
    {colours, "Back", &Settings::Col_Back, "Col_Back"},
    {colours, "Menu Colour Source", &Settings::Menu_Col_Sorce, "Menu_Col_Sorce"},
    {general, "Pack Name", &Settings::Pack_Name, "Pack_Name"},
    {general, "Use Themes", &Settings::Use_Themes, "Use_Themes"},
    {general, "Use Theme Pos", &Settings::Use_Theme_Pos, "Use_Theme_Pos"},
    {general, "Use Theme Style", &Settings::Use_Theme_Style, "Use_Theme_Style"},
    {general, "Show Alerts", &Settings::Show_Alerts, "Show_Alerts"},
    {general, "Allow Dragging", &Settings::Allow_Dragging, "Allow_Dragging"},
    {general, "Bar Time", &Settings::Bar_Time, "Bar_Time"},
    {general, "Bar Time Format", &Settings::Bar_Time_Format, "Bar_Time_Format"},
    {general, "Bar Date Format", &Settings::Bar_Date_Format, "Bar_Date_Format"},
    {general, "Manual_PosX", &Settings::Manual_PosX, "Manual_PosX"},
    {general, "Manual_PosY", &Settings::Manual_PosY, "Manual_PosY"},
    {general, "Use Other Display Mode", &Settings::Use_Other_Display_Mode, "Use_Other_Display_Mode"},
    {general, "Other Display Mode", &Settings::Other_Display_Mode, "Other_Display_Mode"},
    {general, "Auto Compact", &Settings::Auto_Compact, "Auto_Compact"},
    {general, "Tooltips", &Settings::Tooltips, "Tooltips"},
    {general, "Settings Tab", &Settings::Settings_Tab, nullptr},
}};

std::string Store_Key(const Setting_Row &row) {
    return std::string("Software\\Vellatro\\") + row.section;
}

} // namespace

std::span<const Setting_Row> Setting_Rows() {
    return rows;
}

const Setting_Row &Setting_Row_Of(std::string_view key) {
    for (const Setting_Row &row : rows)
        if (row.key == key)
            return row;
    throw Error(Joined({"there is no setting \"", key, "\""}));
}

std::string Setting_Text(const Settings &settings, const Setting_Row &row) {
    return std::visit(
        [&settings](auto variable) -> std::string {
            const auto &value = settings.*variable;
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, std::string>)
                return value;
            else if constexpr (std::is_same_v<Value, bool>)
                return Flag_Text(value);
            else
                return std::to_string(value);
        },
        row.variable);
}

void Set_From_Text(Settings &settings, const Setting_Row &row, std::string_view text) {
    std::visit(
        [&settings, text](auto variable) {
            auto &value = settings.*variable;
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, std::string>)
                value = text;
            else if constexpr (std::is_same_v<Value, bool>)
                value = To_Flag(text);
            else if constexpr (std::is_same_v<Value, std::int16_t>)
                value = To_Int16(text);
            else
                value = To_Int32(text);
        },
        row.variable);
}

void Load_Settings() {
    const Settings first_run;
    for (const Setting_Row &row : rows) {
        const std::optional<std::string> stored = platform::Read_User_Value(Store_Key(row), row.key);
        if (!stored) {
            std::visit([&](auto variable) { Cur_Settings.*variable = first_run.*variable; }, row.variable);
            continue;
        }
        try {
            Set_From_Text(Cur_Settings, row, *stored);
        } catch (const Conversion_Error &expected) {
            throw Setting_Error(
                Joined({"The setting \"", row.key, "\" in the section \"", row.section, "\" is \"",
                        Shortened(*stored), "\", but must be ", expected.what(), "."}));
        }
    }
}

void Save_Setting(std::string_view key) {
    const Setting_Row &row = Setting_Row_Of(key);
    platform::Write_User_Value(Store_Key(row), row.key, Setting_Text(Cur_Settings, row));
}

void Take_Setting(const Setting_Row &row, std::string_view text) {
    // Converted first: a stored text that is no value would keep the program from starting.
    Set_From_Text(Cur_Settings, row, text);
    platform::Write_User_Value(Store_Key(row), row.key, std::string(text));
}

void Change_Setting(std::int16_t &variable, std::int16_t value, std::string_view key) {
    const std::int16_t before = std::exchange(variable, value);
    try {
        Save_Setting(key);
    } catch (...) {
        variable = before;
        throw;
    }
}

void Store_Setting(std::string_view key) {
    try {
        Save_Setting(key);
    } catch (const platform::Registry_Error &) { // the user has what he chose, but not for the next start
    }
}

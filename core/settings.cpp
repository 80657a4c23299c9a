#include "core/settings.h"

#include "base/cut_text.h"
#include "base/joined.h"
#include "core/convert.h"
#include "platform/registry.h"

#include <type_traits>
#include <utility>

Settings Cur_Settings;

namespace {

constexpr const char *general = "Settings";
constexpr const char *colours = "Colours";

constexpr Setting_Row rows[] = {
    {general, "Style", &Settings::Style, "Style", 1},
    {general, "Alignment", &Settings::Alignment, "TaskPos", 2},
    {colours, "Today", &Settings::Col_Today, "Col_Today", 3},
    {colours, "Normal", &Settings::Col_Normal, "Col_Normal", 4},
    {colours, "Fore", &Settings::Col_Fore, "Col_Fore", 5},
    {colours, "Num", &Settings::Col_Num, "Col_Num", 6},
    {colours, "Text", &Settings::Col_Text, "Col_Text", 7},
    {colours, "Back", &Settings::Col_Back, "Col_Back", 8},
    {colours, "Menu Colour Source", &Settings::Menu_Col_Sorce, "Menu_Col_Sorce", 9},
    {general, "Pack Name", &Settings::Pack_Name, "Pack_Name", 23},
    {general, "Use Themes", &Settings::Use_Themes, "Use_Themes", 11},
    {general, "Use Theme Pos", &Settings::Use_Theme_Pos, "Use_Theme_Pos", 12},
    {general, "Use Theme Style", &Settings::Use_Theme_Style, "Use_Theme_Style", 13},
    {general, "Show Alerts", &Settings::Show_Alerts, "Show_Alerts", 10},
    {general, "Allow Dragging", &Settings::Allow_Dragging, "Allow_Dragging", 14},
    {general, "Bar Time", &Settings::Bar_Time, "Bar_Time", 15},
    {general, "Bar Time Format", &Settings::Bar_Time_Format, "Bar_Time_Format", 16},
    {general, "Bar Date Format", &Settings::Bar_Date_Format, "Bar_Date_Format", 17},
    {general, "Manual_PosX", &Settings::Manual_PosX, "Manual_PosX", 18},
    {general, "Manual_PosY", &Settings::Manual_PosY, "Manual_PosY", 19},
    {general, "Use Other Display Mode", &Settings::Use_Other_Display_Mode, "Use_Other_Display_Mode", 20},
    {general, "Other Display Mode", &Settings::Other_Display_Mode, "Other_Display_Mode", 21},
    {general, "Auto Compact", &Settings::Auto_Compact, "Auto_Compact", 22},
    {general, "Tooltips", &Settings::Tooltips, "Tooltips", 24},
    {general, "Settings Tab", &Settings::Settings_Tab, nullptr, 0},
};

/// The text between the description of a malformed value and the registry key of the value.
constexpr const char *advice =
    ".\r\n\r\nVellatro ends now. Correct or delete the value in the registry, under "
    "HKEY_CURRENT_USER\\";

std::string Store_Key(const Setting_Row &row) {
    return std::string("Software\\Vellatro\\") + row.section;
}

} // namespace

std::span<const Setting_Row> Setting_Rows() {
    return rows;
}

const Setting_Row &Row(Setting_Member member) {
    for (const Setting_Row &row : rows)
        if (row.member == member)
            return row;
    throw Error("a setting has no row");
}

bool Differ(const Settings &a, const Settings &b, Setting_Member member) {
    return std::visit([&](auto variable) { return a.*variable != b.*variable; }, member);
}

void Copy_Setting(const Settings &from, Settings &to, Setting_Member member) {
    std::visit([&](auto variable) { to.*variable = from.*variable; }, member);
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
        row.member);
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
        row.member);
}

void Load_Settings() {
    const Settings first_run;
    for (const Setting_Row &row : rows) {
        const std::optional<std::string> stored = platform::Read_User_Value(Store_Key(row), row.key);
        if (!stored) {
            Copy_Setting(first_run, Cur_Settings, row.member);
            continue;
        }
        try {
            Set_From_Text(Cur_Settings, row, *stored);
        } catch (const Conversion_Error &expected) {
            throw Setting_Error(Joined({"The setting \"", row.key, "\" in the section \"", row.section,
                                        "\" is \"", Shorten(*stored), "\", but must be ", expected.what(),
                                        advice, Store_Key(row), ", and start it again."}));
        }
    }
}

void Save_Setting(Setting_Member member) {
    const Setting_Row &row = Row(member);
    platform::Write_User_Value(Store_Key(row), row.key, Setting_Text(Cur_Settings, row));
}

void Store_Setting_Text(const Setting_Row &row, std::string_view text) {
    // Convert before storing: the program would not start with a malformed value in the store.
    Set_From_Text(Cur_Settings, row, text);
    platform::Write_User_Value(Store_Key(row), row.key, std::string(text));
}

void Change_Setting(std::int16_t Settings::*member, std::int16_t value) {
    const std::int16_t before = std::exchange(Cur_Settings.*member, value);
    try {
        Save_Setting(member);
    } catch (...) {
        Cur_Settings.*member = before;
        throw;
    }
}

void Store_Setting(Setting_Member member) {
    try {
        Save_Setting(member);
    } catch (const platform::Registry_Error &) { // the choice holds until the program ends
    }
}

// Configuration files, driven by the table of the settings.
#include "transfer/configuration.h"

#include "core/convert.h"
#include "core/sequential.h"

namespace {

/// In the order of a file's lines, which is not that of the store.
constexpr const char *keys[] = {"Style",
                                "TaskPos",
                                "Col_Today",
                                "Col_Normal",
                                "Col_Fore",
                                "Col_Num",
                                "Col_Text",
                                "Col_Back",
                                "Menu_Col_Sorce",
                                "Show_Alerts",
                                "Use_Themes",
                                "Use_Theme_Pos",
                                "Use_Theme_Style",
                                "Allow_Dragging",
                                "Bar_Time",
                                "Bar_Time_Format",
                                "Bar_Date_Format",
                                "Manual_PosX",
                                "Manual_PosY",
                                "Use_Other_Display_Mode",
                                "Other_Display_Mode",
                                "Auto_Compact",
                                "Pack_Name",
                                "Tooltips"};

const Setting_Row *Row_Of(std::string_view configuration_key) {
    for (const Setting_Row &row : Setting_Rows())
        if (row.configuration_key != nullptr && row.configuration_key == configuration_key)
            return &row;
    return nullptr;
}

} // namespace

std::string Configuration_Bytes(const Settings &settings) {
    std::string bytes;
    for (const char *const key : keys)
        if (const Setting_Row *const row = Row_Of(key))
            Append_Item(bytes, key + ("=" + Setting_Text(settings, *row)));
    return bytes;
}

void Import_Config_Line(std::string_view item) {
    const std::size_t equals = item.find('=');
    if (equals == std::string_view::npos)
        throw Conversion_Error("an item of the form key=value");
    if (const Setting_Row *const row = Row_Of(item.substr(0, equals)))
        Take_Setting(*row, item.substr(equals + 1));
}

void Import_Configuration(std::string_view bytes) {
    Sequential_Reader reader(bytes);
    for (std::string_view item; reader.Next(item);)
        Import_Config_Line(item);
}

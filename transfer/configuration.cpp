#include "transfer/configuration.h"

#include "core/convert.h"
#include "core/sequential.h"

#include <map>
#include <variant>

namespace {

/// Returns the value of a setting as the configuration file holds it. A flag is 1 or 0 there, but True or
/// False in the store.
std::string Value_Text(const Settings &settings, const Setting_Row &row) {
    if (const auto *const flag = std::get_if<bool Settings::*>(&row.member))
        return settings.**flag ? "1" : "0";
    return Setting_Text(settings, row);
}

const Setting_Row *Row_Of(std::string_view configuration_key) {
    for (const Setting_Row &row : Setting_Rows())
        if (row.configuration_key != nullptr && row.configuration_key == configuration_key)
            return &row;
    return nullptr;
}

} // namespace

std::string Configuration_Bytes(const Settings &settings) {
    std::map<int, const Setting_Row *> lines;
    for (const Setting_Row &row : Setting_Rows())
        if (row.configuration_key != nullptr)
            lines[row.configuration_line] = &row;
    std::string bytes;
    for (const auto &[line, row] : lines)
        Append_Item(bytes, row->configuration_key + ("=" + Value_Text(settings, *row)));
    return bytes;
}

void Import_Config_Line(std::string_view item) {
    const std::size_t equals = item.find('=');
    if (equals == std::string_view::npos)
        throw Conversion_Error("an item of the form key=value");
    if (const Setting_Row *const row = Row_Of(item.substr(0, equals)))
        Store_Setting_Text(*row, item.substr(equals + 1));
}

void Import_Configuration(std::string_view bytes) {
    Sequential_Reader reader(bytes);
    for (std::string_view item; reader.Next(item);)
        Import_Config_Line(item);
}

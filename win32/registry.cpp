// Reads and writes the registry. Stores texts as REG_SZ.
#include "platform/registry.h"

#include "base/joined.h"
#include "win32/handles.h"
#include "win32/system_error.h"
#include "win32/wide_text.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace platform {

namespace {

struct Raw_Value {
    DWORD type = REG_NONE;
    std::vector<BYTE> data;
};

/// Reads the type and the bytes of a value. Tries again while the buffer is too small, because another
/// program may lengthen the value between two calls. Returns an error code.
LONG Query_Value(HKEY key, const std::wstring &name, Raw_Value &value) {
    LONG result = ERROR_SUCCESS;
    DWORD size = 256;
    do {
        value.data.resize(size);
        result = RegQueryValueExW(key, name.c_str(), nullptr, &value.type, value.data.data(), &size);
    } while (result == ERROR_MORE_DATA);
    value.data.resize(result == ERROR_SUCCESS ? size : 0);
    return result;
}

/// Returns the system's text for the error, in parentheses. Returns nothing if the key or value is missing.
std::optional<std::string> Unreadable_Text(LONG code) {
    if (code == ERROR_FILE_NOT_FOUND)
        return std::nullopt;
    return Joined({"(", win32::System_Error_Text(static_cast<unsigned long>(code)), ")"});
}

/// Returns the stored wide characters as a text, up to the first NUL if there is one.
std::string Text_Of(const std::vector<BYTE> &data) {
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    if (!text.empty())
        std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    return win32::From_Wide(text.c_str());
}

/// Returns the text with its environment variables expanded, or unchanged if the system fails.
std::string Expand_Variables(const std::string &text) {
    const std::wstring wide = win32::To_Wide(text);
    std::wstring expanded(ExpandEnvironmentStringsW(wide.c_str(), nullptr, 0), L'\0');
    const DWORD size =
        ExpandEnvironmentStringsW(wide.c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
    return size == 0 || size > expanded.size() ? text : win32::From_Wide(expanded.c_str());
}

LONG Set_Value(HKEY key, std::string_view name, DWORD type, const void *data, std::size_t size) {
    return RegSetValueExW(key, win32::To_Wide(name).c_str(), 0, type, static_cast<const BYTE *>(data),
                          static_cast<DWORD>(size));
}

LONG Set_Text(HKEY key, std::string_view name, std::string_view text) {
    const std::wstring wide = win32::To_Wide(text);
    return Set_Value(key, name, REG_SZ, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

HKEY Key_Of(Registry_Root root) {
    return reinterpret_cast<HKEY>(root);
}

win32::Unique_Key Open_Key(Registry_Root root, std::string_view key, REGSAM access) {
    HKEY opened = nullptr;
    if (root == 0 ||
        RegOpenKeyExW(Key_Of(root), win32::To_Wide(key).c_str(), 0, access, &opened) != ERROR_SUCCESS)
        opened = nullptr;
    return win32::Unique_Key(opened);
}

/// Copies the bytes of a stored value into `number`. Returns false unless the value has this type and the
/// size of `number`.
template <typename Number>
bool Read_Number(const Raw_Value &value, DWORD type, Number &number) {
    if (value.type != type || value.data.size() != sizeof number)
        return false;
    std::memcpy(&number, value.data.data(), sizeof number);
    return true;
}

[[noreturn]] void Throw(std::string_view key, LONG code) {
    throw Registry_Error(Joined(
        {"HKEY_CURRENT_USER\\", key, ": ", win32::System_Error_Text(static_cast<unsigned long>(code))}));
}

} // namespace

std::optional<std::string> Read_User_Value(std::string_view key, std::string_view name) {
    HKEY opened = nullptr;
    LONG result = RegOpenKeyExW(HKEY_CURRENT_USER, win32::To_Wide(key).c_str(), 0, KEY_QUERY_VALUE, &opened);
    if (result != ERROR_SUCCESS)
        return Unreadable_Text(result);
    const win32::Unique_Key owner(opened);
    Raw_Value value;
    result = Query_Value(opened, win32::To_Wide(name), value);
    if (result != ERROR_SUCCESS)
        return Unreadable_Text(result);
    if (value.type == REG_SZ || value.type == REG_EXPAND_SZ)
        return Text_Of(value.data);
    std::int32_t number = 0;
    if (!Read_Number(value, REG_DWORD, number))
        return "(binary data)";
    return std::to_string(number);
}

void Write_User_Value(std::string_view key, std::string_view name, std::string_view text) {
    HKEY opened = nullptr;
    LONG result = RegCreateKeyExW(HKEY_CURRENT_USER, win32::To_Wide(key).c_str(), 0, nullptr,
                                  REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, &opened, nullptr);
    if (result != ERROR_SUCCESS)
        Throw(key, result);
    const win32::Unique_Key owner(opened);
    result = Set_Text(opened, name, text);
    if (result != ERROR_SUCCESS)
        Throw(key, result);
}

Registry_Root Find_Registry_Root(std::string_view name) {
    const struct {
        const char *name;
        HKEY key;
    } roots[] = {{"HKCU", HKEY_CURRENT_USER}, {"HKLM", HKEY_LOCAL_MACHINE},  {"HKU", HKEY_USERS},
                 {"HKDD", HKEY_DYN_DATA},     {"HKCC", HKEY_CURRENT_CONFIG}, {"HKCR", HKEY_CLASSES_ROOT}};
    for (const auto &root : roots)
        if (name == root.name)
            return reinterpret_cast<Registry_Root>(root.key);
    return 0;
}

Registry_Value Registry_Read(std::string_view root_name, std::string_view key, std::string_view name,
                             char type_letter, const Registry_Value &standard) {
    const win32::Unique_Key opened = Open_Key(Find_Registry_Root(root_name), key, KEY_QUERY_VALUE);
    Raw_Value value;
    if (!opened || Query_Value(opened.get(), win32::To_Wide(name), value) != ERROR_SUCCESS)
        return standard;
    std::int16_t flag = 0;
    std::int32_t number = 0;
    const bool wants_text = type_letter == 'S' || type_letter == 's';
    if (wants_text && value.type == REG_SZ)
        return Text_Of(value.data);
    if (wants_text && value.type == REG_EXPAND_SZ)
        return Expand_Variables(Text_Of(value.data));
    if ((type_letter == 'B' || type_letter == 'b') && Read_Number(value, REG_BINARY, flag))
        return flag != 0;
    if ((type_letter == 'D' || type_letter == 'd') && Read_Number(value, REG_DWORD, number))
        return number;
    return standard;
}

bool Registry_Writable(std::string_view root_name, std::string_view key) {
    return static_cast<bool>(
        Open_Key(Find_Registry_Root(root_name), key, KEY_SET_VALUE | KEY_CREATE_SUB_KEY));
}

void Registry_Write(std::string_view root_name, std::string_view key, std::string_view name, char type_letter,
                    const Registry_Value &value) {
    const Registry_Root root = Find_Registry_Root(root_name);
    HKEY opened = nullptr;
    wchar_t no_class[] = L"";
    if (root == 0 ||
        RegCreateKeyExW(Key_Of(root), win32::To_Wide(key).c_str(), 0, no_class, REG_OPTION_NON_VOLATILE,
                        KEY_SET_VALUE | KEY_CREATE_SUB_KEY, nullptr, &opened, nullptr) != ERROR_SUCCESS)
        return;
    const win32::Unique_Key owner(opened);
    const auto *text = std::get_if<std::string>(&value);
    const auto *flag = std::get_if<bool>(&value);
    const auto *number = std::get_if<std::int32_t>(&value);
    const std::int16_t flag_bits = flag != nullptr && *flag ? -1 : 0; // a true flag has all bits set
    if (type_letter == 'S' && text != nullptr)
        Set_Text(opened, name, *text);
    else if (type_letter == 'B' && flag != nullptr)
        Set_Value(opened, name, REG_BINARY, &flag_bits, sizeof flag_bits);
    else if (type_letter == 'D' && number != nullptr)
        Set_Value(opened, name, REG_DWORD, number, sizeof *number);
}

void Registry_Write_String(Registry_Root root, std::string_view key, std::string_view name,
                           std::string_view text) {
    // RegFlushKey requires the right to query.
    const win32::Unique_Key opened = Open_Key(root, key, KEY_SET_VALUE | KEY_QUERY_VALUE);
    if (!opened)
        return;
    Set_Text(opened.get(), name, text);
    RegFlushKey(opened.get());
}

} // namespace platform

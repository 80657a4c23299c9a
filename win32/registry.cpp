// The user's part of the registry: platform/registry.h over Win32. Texts are stored as REG_SZ.
#include "platform/registry.h"

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

/// Takes the value's bytes. Another program may lengthen it between two calls. Gives an error code.
LONG Query(HKEY key, const std::wstring &name, Raw_Value &value) {
    LONG result = ERROR_SUCCESS;
    DWORD size = 256;
    do {
        value.data.resize(size);
        result = RegQueryValueExW(key, name.c_str(), nullptr, &value.type, value.data.data(), &size);
    } while (result == ERROR_MORE_DATA);
    value.data.resize(result == ERROR_SUCCESS ? size : 0);
    return result;
}

/// What a value that is there but cannot be read is given as; nothing for one that is absent.
std::optional<std::string> Unread(LONG code) {
    if (code == ERROR_FILE_NOT_FOUND)
        return std::nullopt;
    return "(" + win32::System_Error_Text(static_cast<unsigned long>(code)) + ")";
}

/// The text of stored wide characters, which need not end with a zero.
std::string Text_Of(const std::vector<BYTE> &data) {
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    if (!text.empty())
        std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    return win32::From_Wide(text.c_str());
}

[[noreturn]] void Throw(const std::string &key, LONG code) {
    throw Registry_Error("HKEY_CURRENT_USER\\" + key + ": " +
                         win32::System_Error_Text(static_cast<unsigned long>(code)));
}

} // namespace

std::optional<std::string> Read_User_Value(const std::string &key, const std::string &name) {
    HKEY opened = nullptr;
    LONG result = RegOpenKeyExW(HKEY_CURRENT_USER, win32::To_Wide(key).c_str(), 0, KEY_QUERY_VALUE, &opened);
    if (result != ERROR_SUCCESS)
        return Unread(result);
    const win32::Unique_Key owner(opened);
    Raw_Value value;
    result = Query(opened, win32::To_Wide(name), value);
    if (result != ERROR_SUCCESS)
        return Unread(result);
    if (value.type == REG_SZ || value.type == REG_EXPAND_SZ)
        return Text_Of(value.data);
    std::int32_t number = 0;
    if (value.type != REG_DWORD || value.data.size() != sizeof number)
        return "(binary data)";
    std::memcpy(&number, value.data.data(), sizeof number);
    return std::to_string(number);
}

void Write_User_Value(const std::string &key, const std::string &name, const std::string &text) {
    HKEY opened = nullptr;
    LONG result = RegCreateKeyExW(HKEY_CURRENT_USER, win32::To_Wide(key).c_str(), 0, nullptr,
                                  REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, &opened, nullptr);
    if (result != ERROR_SUCCESS)
        Throw(key, result);
    const win32::Unique_Key owner(opened);
    const std::wstring wide = win32::To_Wide(text);
    std::vector<BYTE> data((wide.size() + 1) * sizeof(wchar_t));
    std::memcpy(data.data(), wide.c_str(), data.size());
    result = RegSetValueExW(opened, win32::To_Wide(name).c_str(), 0, REG_SZ, data.data(),
                            static_cast<DWORD>(data.size()));
    if (result != ERROR_SUCCESS)
        Throw(key, result);
}

} // namespace platform

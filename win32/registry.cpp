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

/// The value's bytes; nothing when it cannot be read. Another program may lengthen it between two calls.
std::optional<Raw_Value> Query(HKEY key, const std::wstring &name) {
    Raw_Value value;
    value.data.resize(256);
    for (;;) {
        DWORD size = static_cast<DWORD>(value.data.size());
        const LONG result =
            RegQueryValueExW(key, name.c_str(), nullptr, &value.type, value.data.data(), &size);
        if (result != ERROR_SUCCESS && result != ERROR_MORE_DATA)
            return std::nullopt;
        value.data.resize(size);
        if (result == ERROR_SUCCESS)
            return value;
    }
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
    if (RegOpenKeyExW(HKEY_CURRENT_USER, win32::To_Wide(key).c_str(), 0, KEY_QUERY_VALUE, &opened) !=
        ERROR_SUCCESS)
        return std::nullopt;
    const win32::Unique_Key owner(opened);
    const std::optional<Raw_Value> value = Query(opened, win32::To_Wide(name));
    if (!value)
        return std::nullopt;
    if (value->type == REG_SZ || value->type == REG_EXPAND_SZ)
        return Text_Of(value->data);
    std::int32_t number = 0;
    if (value->type != REG_DWORD || value->data.size() != sizeof number)
        return std::nullopt;
    std::memcpy(&number, value->data.data(), sizeof number);
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

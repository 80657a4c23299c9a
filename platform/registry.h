// The registry: the user's text values, which hold the settings, and single values under any root key.
#pragma once

#include "base/error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace platform {

/// Thrown if a registry key cannot be written. what() names the key and the system's reason.
class Registry_Error : public Error {
public:
    using Error::Error;
};

/// Returns the value `name` of HKEY_CURRENT_USER\`key` as text, or nothing if the key or value is missing. A
/// number becomes its decimal text. A value of another type, or one that cannot be read, becomes an
/// explanation in parentheses. Converting the explanation to a number or flag fails, but a text setting
/// accepts it.
std::optional<std::string> Read_User_Value(std::string_view key, std::string_view name);

/// Stores `text` as the value `name` of HKEY_CURRENT_USER\`key`. Creates the key if it is missing. Throws
/// Registry_Error on failure.
void Write_User_Value(std::string_view key, std::string_view name, std::string_view text);

// Direct access to values under any root key, for the few places that need it. Failures are silent.

/// The handle of a root key, 0: none.
using Registry_Root = std::uintptr_t;
/// Returns the handle of the root key HKCU, HKLM, HKU, HKDD, HKCC or HKCR, or 0 for any other name.
Registry_Root Find_Registry_Root(std::string_view name);

/// A value by its type letter: "S" is a text (REG_SZ, or REG_EXPAND_SZ with its variables replaced), "B" a
/// flag (REG_BINARY of two bytes), "D" a number (REG_DWORD).
using Registry_Value = std::variant<std::string, bool, std::int32_t>;

/// Returns the value, or `standard` if the value is missing, cannot be read or is not of the type
/// `type_letter`. The letter may be lower case.
Registry_Value Registry_Read(std::string_view root_name, std::string_view key, std::string_view name,
                             char type_letter, const Registry_Value &standard);

/// Returns whether the key exists and Registry_Write can set values in it.
bool Registry_Writable(std::string_view root_name, std::string_view key);

/// Creates the key if it is missing. Sets the value only if the type letter is a capital and matches the type
/// of `value`.
void Registry_Write(std::string_view root_name, std::string_view key, std::string_view name, char type_letter,
                    const Registry_Value &value);

/// Sets a text value in an existing key, and flushes the key to the disk.
void Registry_Write_String(Registry_Root root, std::string_view key, std::string_view name,
                           std::string_view text);

} // namespace platform

// The registry: the user's part of it as texts, which the settings are, and single values anywhere in it.
#pragma once

#include "base/error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace platform {

/// A registry key could not be written. what() names the key and the system's reason.
class Registry_Error : public Error {
public:
    using Error::Error;
};

/// The text stored under HKEY_CURRENT_USER, `key` (parts joined by "\"), `name`; nothing when the key or the
/// value is absent. A number is given as its decimal text. What is neither text nor number, or cannot be
/// read, is given as a text in parentheses that says so: for a number or a flag its conversion fails then,
/// and a text is taken as it is.
std::optional<std::string> Read_User_Value(std::string_view key, std::string_view name);

/// Stores a text there, making the key where it is missing. Throws Registry_Error.
void Write_User_Value(std::string_view key, std::string_view name, std::string_view text);

// Values of the system, for the few places that touch them directly. Failures are silent.

/// A handle of a root key; 0: none. The names are HKCU, HKLM, HKU, HKDD, HKCC and HKCR.
using Registry_Root = std::uintptr_t;
Registry_Root Find_Registry_Root(std::string_view name);

/// By its type letter: "S" a text (REG_SZ, or REG_EXPAND_SZ with its variables replaced), "B" a flag
/// (REG_BINARY of two bytes), "D" a number (REG_DWORD).
using Registry_Value = std::variant<std::string, bool, std::int32_t>;

/// The value of that type, `standard` when there is none or it cannot be read. The letter's case is free.
Registry_Value Registry_Read(std::string_view root_name, std::string_view key, std::string_view name,
                             char type_letter, const Registry_Value &standard);

/// Whether Registry_Write can set a value in the key, which must exist.
bool Registry_Writable(std::string_view root_name, std::string_view key);

/// Makes the key where it is missing and sets the value, whose type the capital letter tells; another letter
/// or value sets nothing.
void Registry_Write(std::string_view root_name, std::string_view key, std::string_view name, char type_letter,
                    const Registry_Value &value);

/// Sets a text in a key that exists, and has it written to the disk.
void Registry_Write_String(Registry_Root root, std::string_view key, std::string_view name,
                           std::string_view text);

} // namespace platform

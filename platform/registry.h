// The user's part of the registry.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace platform {

/// A registry key could not be written. what() names the key and the system's reason.
class Registry_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The text stored under HKEY_CURRENT_USER, `key` (parts joined by "\"), `name`; nothing when the key or the
/// value is absent. A number is given as its decimal text. What is neither text nor number, or cannot be
/// read, is given as a text in parentheses that says so: for a number or a flag its conversion fails then,
/// and a text is taken as it is.
std::optional<std::string> Read_User_Value(const std::string &key, const std::string &name);

/// Stores a text there, making the key where it is missing. Throws Registry_Error.
void Write_User_Value(const std::string &key, const std::string &name, const std::string &text);

} // namespace platform

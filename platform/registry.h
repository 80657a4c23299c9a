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
/// value is absent or cannot be read. A number is given as its decimal text.
std::optional<std::string> Read_User_Value(const std::string &key, const std::string &name);

/// Stores a text there, making the key where it is missing. Throws Registry_Error.
void Write_User_Value(const std::string &key, const std::string &name, const std::string &text);

} // namespace platform

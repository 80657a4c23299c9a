// The configuration file: writing settings to it and reading them from it, without dialogs or messages.
#pragma once

#include "core/settings.h"

#include <string>
#include <string_view>

/// Returns the bytes of a configuration file that holds `settings`. Throws Sequential_Error if the file
/// format cannot hold one of the texts.
std::string Configuration_Bytes(const Settings &settings);

/// Copies one item "key=value" into the running settings and the store. Ignores an unknown key. Throws
/// Conversion_Error if the item has no "=" or its value is not of the setting's type, and
/// platform::Registry_Error if the store refuses it.
void Import_Config_Line(std::string_view item);

/// Copies all items of a configuration file into the running settings and the store, and stops at the first
/// error. Throws as Import_Config_Line does, and Sequential_Error for malformed bytes.
void Import_Configuration(std::string_view bytes);

// The configuration file: its lines from settings, and settings from its items. No dialogs, no messages.
#pragma once

#include "core/settings.h"

#include <string>
#include <string_view>

/// The bytes of a configuration file that holds `settings`. Throws Sequential_Error for a text that such a
/// file cannot hold.
std::string Configuration_Bytes(const Settings &settings);

/// Takes one item "key=value" over into the running settings and the store. An unknown key is passed over.
/// Throws Conversion_Error for an item without "=" and a value of another type than the setting's, and
/// platform::Registry_Error.
void Import_Config_Line(std::string_view item);

/// Takes all items of a configuration file over, up to the first that cannot be taken. Throws as
/// Import_Config_Line does, and Sequential_Error.
void Import_Configuration(std::string_view bytes);

// The border between the program's texts, which are UTF-8, and those of older files.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Returns as UTF-8 what `bytes` are in the system's ANSI code page. That is the page of the system's locale,
/// in which older programs wrote, whatever the user's formats or the process's page are.
std::string Ansi_To_Utf8(std::string_view bytes);

} // namespace platform

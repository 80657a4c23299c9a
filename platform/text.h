// Conversion of texts in older files to the program's UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Converts bytes in the system's ANSI code page to UTF-8. Older programs wrote in that page. It belongs to
/// the system's locale, not to the user's formats or the process.
std::string Ansi_To_Utf8(std::string_view bytes);

} // namespace platform

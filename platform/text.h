// Conversion of texts in older files to the program's UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Converts bytes in the ANSI code page, as older programs wrote them, to UTF-8. The code page depends on the
/// system's locale, not on the user's regional settings or the process. It is 1252 (Western) if that locale
/// has no valid code page or uses UTF-8.
std::string Ansi_To_Utf8(std::string_view bytes);

} // namespace platform

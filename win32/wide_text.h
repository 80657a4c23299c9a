// Conversions between the program's texts, which are UTF-8, and the wide texts of system calls. No
// formatting.
#pragma once

#include <string>
#include <string_view>

namespace win32 {

/// Returns bytes of a code page in wide characters; those that are no characters there become the system's
/// replacement. Never throws but for want of memory.
std::wstring Decode(unsigned code_page, std::string_view bytes);

/// Returns a text of the program in wide characters.
std::wstring To_Wide(std::string_view text);

/// Returns wide text as text of the program. Half of a surrogate pair becomes U+FFFD, which older systems
/// would write as bytes that are no UTF-8.
std::string From_Wide(std::wstring_view text);

} // namespace win32

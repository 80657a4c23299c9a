// Converts between the program's texts, which are UTF-8, and the wide texts of system calls. Formats nothing.
#pragma once

#include <string>
#include <string_view>

namespace win32 {

/// Returns bytes of a code page as wide characters. Invalid bytes become the system's replacement character.
/// Throws only if out of memory.
std::wstring Decode(unsigned code_page, std::string_view bytes);

/// Returns a text of the program as wide characters.
std::wstring To_Wide(std::string_view text);

/// Returns wide text as UTF-8. An unpaired surrogate becomes U+FFFD, because older systems' own conversion
/// would turn it into invalid UTF-8.
std::string From_Wide(std::wstring_view text);

} // namespace win32

// The one pair of conversions between the program's text and the wide text of system calls. No formatting.
#pragma once

#include <string>
#include <string_view>

namespace win32 {

/// `text` in wide characters. Text in the process's code page; where that is UTF-8 and `text` is none (a file
/// of an older system), the user's ANSI code page is taken instead, so that it still shows. Never throws but
/// for want of memory.
std::wstring To_Wide(std::string_view text);

/// Wide text in the process's code page. Characters that it lacks become the system's replacement.
std::string From_Wide(std::wstring_view text);

} // namespace win32

// What the system says about an error code. The callers choose the exception.
#pragma once

#include <string>

namespace win32 {

/// The system's sentence for the error `code` (as of GetLastError), in the user's language and on one line;
/// "Error N" where it has none.
std::string System_Error_Text(unsigned long code);

} // namespace win32

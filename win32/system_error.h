// The system's texts for its error codes. Callers throw exceptions of their own.
#pragma once

#include <string>

namespace win32 {

/// Returns the system's sentence for the error `code` (as from GetLastError), in the user's language and on
/// one line, or "Error N" if the system has none.
std::string System_Error_Text(unsigned long code);

} // namespace win32

// The search path for libraries.
#pragma once

namespace platform {

/// Makes the system load libraries only from its own folder from now on, never from the program's folder.
/// Does nothing on systems without this feature, but win32/system_library.h loads every library by its full
/// path anyway.
void Load_From_System_Only();

} // namespace platform

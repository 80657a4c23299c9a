// Where the system looks for libraries.
#pragma once

namespace platform {

/// Takes libraries from the system's own folder alone from now on, and none of such a name beside the
/// program. Does nothing on systems that cannot do so; win32/system_library.h names every library with its
/// path anyway.
void Load_From_System_Only();

} // namespace platform

// The picture behind the desktop.
#pragma once

#include <string>

namespace platform {

/// Makes the Windows bitmap at `path` the wallpaper, for now and for the user's next sessions; empty: none.
/// Returns at once; of several calls that follow each other quickly the last one counts. Failures are silent.
void Set_Wallpaper(const std::string &path);

/// Waits until the last wallpaper hangs and the registry names it, so that the program may end or look there.
/// Gives up after five seconds: a hung window of another program can hold it for so long.
void Finish_Wallpaper();

} // namespace platform

// The picture behind the desktop.
#pragma once

#include <string>

namespace platform {

/// Makes the Windows bitmap at `path` the wallpaper, for now and for the user's next sessions; empty: none.
/// Rather hangs up what `monitors`, a text from Wallpaper_Of_Monitors, tells of, as far as all of that can be
/// hung up. Returns at once; of several calls that follow each other quickly the last one counts. Failures
/// are silent.
void Set_Wallpaper(const std::string &path, const std::string &monitors = {});

/// What hangs on each monitor now, or the slide show. Empty where the system knows of nothing but one path,
/// or does not answer within five seconds.
std::string Wallpaper_Of_Monitors();

/// The path itself, or that of a copy, if it is a file that the system writes over with the next wallpaper.
std::string Persistent_Wallpaper(const std::string &path);

/// Waits until the last wallpaper hangs and the registry names it, so that the program may end or look there.
/// Gives up after five seconds and returns false: a hung window of another program can hold it for so long.
bool Wait_For_Wallpaper();

} // namespace platform

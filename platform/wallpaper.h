// The wallpaper of the desktop.
#pragma once

#include <string>

namespace platform {

/// Sets the Windows bitmap at `path` as the wallpaper, now and for the user's next sessions. An empty `path`
/// removes the wallpaper. `monitors` is empty or a text from Wallpaper_Of_Monitors. If the system can restore
/// all wallpapers in that text, sets those instead. Returns at once. Of several calls in quick succession,
/// only the last one counts. Failures are silent.
void Set_Wallpaper(const std::string &path, const std::string &monitors = {});

/// Returns the wallpaper of each monitor, or the slide show, as a text for Set_Wallpaper. Returns an empty
/// text if the system knows only one path, a monitor has no picture, or the system does not answer within
/// five seconds.
std::string Wallpaper_Of_Monitors();

/// Returns `path`, or the path of a new copy if the system would overwrite the file at `path` with the next
/// wallpaper.
std::string Persistent_Wallpaper(const std::string &path);

/// Waits until the system has set the last wallpaper and stored its path in the registry. The program may
/// then end or read the path. Gives up after five seconds and returns false, because a hung window of another
/// program can block the change.
bool Wait_For_Wallpaper();

} // namespace platform

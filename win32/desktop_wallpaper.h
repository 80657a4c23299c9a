// Wallpapers on Windows 8 and newer: a picture for each monitor or a slide show, and the way the pictures
// fill the screen. The registry holds only one path; the shell keeps the rest. All functions work on any
// thread.
#pragma once

#include <string>

namespace win32 {

/// Returns the wallpapers of the monitors, or the slide show, as a text for Set_Monitor_Wallpapers. Returns
/// an empty text if the system cannot provide them or a monitor has no picture.
std::string Get_Monitor_Wallpapers();

/// Sets the wallpapers that Get_Monitor_Wallpapers returned. Stops at the first failure and returns false.
bool Set_Monitor_Wallpapers(const std::string &monitors);

/// Returns `path`, or the path of a new copy if the system would overwrite the file at `path` with the next
/// wallpaper. Returns `path` if copying fails.
std::wstring Persistent_Picture(const std::wstring &path);

} // namespace win32

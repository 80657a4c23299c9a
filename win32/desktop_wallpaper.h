// What Windows 8 and newer know of the desktop's pictures beyond the one path in the registry: a picture for
// each monitor, a slide show, and how they lie. All may be called on any thread.
#pragma once

#include <string>

namespace win32 {

/// What hangs on the monitors now, as a text for Set_Monitor_Wallpapers. Empty where the system does not
/// tell, or where a monitor has no picture.
std::string Get_Monitor_Wallpapers();

/// Hangs that up again. Returns false if something of it cannot be hung up any more.
bool Set_Monitor_Wallpapers(const std::string &monitors);

/// The path itself, or that of a copy, if it is a file that the system writes over with the next wallpaper.
std::wstring Persistent_Picture(const std::wstring &path);

} // namespace win32

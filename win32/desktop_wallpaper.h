// What Windows 8 and newer know of the desktop's pictures beyond the one path in the registry: a picture for
// each monitor, a slide show, and how they lie. All may be called on any thread.
#pragma once

#include <string>

namespace win32 {

/// What hangs on the monitors now, as a text for Hang_On_Monitors. Empty where the system does not tell, or
/// where a monitor has no picture.
std::string Monitors_Now();

/// Hangs that up again. Returns false if something of it cannot be hung up any more.
bool Hang_On_Monitors(const std::string &monitors);

/// The path itself, or that of a copy, if it is a file that the system writes over with the next wallpaper.
std::wstring Lasting_Picture(const std::wstring &path);

} // namespace win32

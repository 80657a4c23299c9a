// How the program's file names are given to the system, and its own. Nothing is opened here.
#pragma once

#include <string>

namespace win32 {

/// `path` for a system call: wide, and with the long form's prefix where an absolute path is longer than the
/// plain form can be. Empty when the path holds a zero byte and so can name nothing.
std::wstring Path_For_Call(const std::string &path);

/// The full path of the running program's file.
std::wstring Program_Path();

} // namespace win32

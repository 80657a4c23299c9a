// Paths in the form that system calls take, and the program's own path. Nothing here opens a file.
#pragma once

#include <string>

namespace win32 {

/// Returns `path` as a wide text for a system call. An absolute path that is too long for the plain form
/// gets the prefix of the long form, unless it contains ".." or ".". Returns an empty text if the path
/// contains a NUL and so cannot name a file.
std::wstring Path_For_Call(const std::string &path);

/// Returns the full path of the running program's file.
std::wstring Program_Path();

} // namespace win32

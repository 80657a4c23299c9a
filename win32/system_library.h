// Run-time lookup of functions in the system's own libraries: functions that are newer than the oldest
// supported system, and functions that the program calls too seldom to load their library at start.
#pragma once

namespace win32 {

/// Returns the address of `function` in the system library `library` ("name.dll"), null if either is missing.
/// Never unloads the library.
void *System_Function(const wchar_t *library, const char *function);

/// Returns the address from System_Function as a pointer of the function's type.
template <typename Function>
Function *Look_Up(const wchar_t *library, const char *function) {
    return reinterpret_cast<Function *>(System_Function(library, function));
}

} // namespace win32

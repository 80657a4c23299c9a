// Functions that are newer than the oldest supported system, or too seldom used to load their library at
// start: looked up at run time in the system's own libraries.
#pragma once

namespace win32 {

/// The address of `function` in the system library `library` ("name.dll"), null when either is absent. A
/// library once loaded stays.
void *System_Function(const wchar_t *library, const char *function);

/// The same as a pointer of the function's type.
template <typename Function>
Function *Look_Up(const wchar_t *library, const char *function) {
    return reinterpret_cast<Function *>(System_Function(library, function));
}

} // namespace win32

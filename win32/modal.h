// Whether a message box of the program is open, and the window that it should belong to. Raised by the
// message box, asked by the windows, which take no mouse and no keys meanwhile.
#pragma once

#include "win32/handles.h"

namespace win32 {

/// How many message boxes are open.
inline int Open_Modal_Boxes = 0;

/// Counts a message box as open for the length of a scope.
class Modal_Scope {
public:
    Modal_Scope() { ++Open_Modal_Boxes; }
    ~Modal_Scope() { --Open_Modal_Boxes; }
    Modal_Scope(const Modal_Scope &) = delete;
    Modal_Scope &operator=(const Modal_Scope &) = delete;
};

} // namespace win32

// Window classes, and the system's pointer shapes.
#pragma once

#include "win32/handles.h"

namespace win32 {

/// The system's identifiers of the pointer shapes.
enum class System_Pointer : WORD { Arrow = 32512, Hourglass = 32514, Move = 32646, Hand = 32649 };

/// Returns the system's pointer of that shape, null if there is none.
HCURSOR Load_Pointer(System_Pointer shape);

/// Registers a window class with the arrow pointer, unless the class is registered already. A dialog's class
/// also gets the icon for its title bar.
void Register_Class(const wchar_t *name, WNDPROC procedure, UINT style, bool dialog = false);

} // namespace win32

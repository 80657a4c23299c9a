// What the program's windows have in common when they are made: their classes, and the system's pointers.
#pragma once

#include "win32/handles.h"

namespace win32 {

/// The system's numbers of pointer shapes.
enum class System_Pointer : WORD { Arrow = 32512, Hourglass = 32514, Move = 32646, Hand = 32649 };

/// Null when the system has none of that shape.
HCURSOR Load_Pointer(System_Pointer shape);

/// Registers a window class with the arrow, at its first use; a dialog's with the icon for its title bar.
void Register_Class(const wchar_t *name, WNDPROC procedure, UINT style, bool dialog = false);

} // namespace win32

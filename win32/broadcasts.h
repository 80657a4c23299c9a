// The hidden window that receives the system's broadcasts and the timers. While a menu is open or the user
// is moving a window, it skips timers and defers broadcasts.
#pragma once

#include "win32/handles.h"

namespace win32 {

/// Returns the hidden window. Creates it on first use.
HWND Broadcast_Window();

/// Returns whether a menu is open or the user is moving a window. The user could not click a message box
/// then, so Tick runs no callback and the hidden window defers broadcasts.
bool In_Menu_Or_Move();

/// Handles the deferred broadcasts.
void Process_Deferred_Broadcasts();

/// Runs the callback of timer `id`. First looks for lost windows, handles the deferred broadcasts and checks
/// the scale. During a menu or a move, only looks for lost windows.
void Tick(UINT_PTR id);

} // namespace win32

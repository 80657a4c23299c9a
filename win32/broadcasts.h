// The hidden window that the system's broadcasts and the timers come to, and what holds both back.
#pragma once

#include "win32/handles.h"

namespace win32 {

/// Returns the hidden window, made at its first use.
HWND Broadcast_Window();

/// Returns whether an open menu, or a window that is being moved, has the mouse. What comes by itself waits
/// then: a message box that it shows would get no click.
bool Mouse_Is_Taken();

/// Does what the broadcasts mean that came while the mouse was taken.
void Process_Deferred_Broadcasts();

/// Calls what the timer is to call.
void Tick(UINT_PTR id);

} // namespace win32

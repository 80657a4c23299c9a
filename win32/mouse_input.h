// The translation of mouse and key messages into events.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

namespace win32 {

/// Returns an event of this kind with the current state of Shift, Ctrl and Alt.
platform::Input_Event Event_Of(platform::Input_Kind kind);

/// Returns the event of a key message. `down` is false for a released key.
platform::Input_Event Key_Event(bool down, WPARAM wparam, LPARAM lparam);

/// The mouse input of one window. Captures the mouse from the press of the first button to the release of the
/// last.
class Mouse_Input {
public:
    /// Returns whether the message is a mouse move, or a press or release of a button, in the client area.
    static bool Is_Mouse(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK; }

    /// Turns a mouse message into an event whose point is in twips on the window. Returns whether there is an
    /// event.
    bool Translate(HWND window, UINT message, WPARAM wparam, LPARAM lparam, platform::Input_Event &event);

    /// Handles WM_CAPTURECHANGED. Returns whether the user held a button: the window will not get the
    /// release.
    bool Capture_Lost();

private:
    bool Translate_Move(WPARAM held, platform::Input_Event &event);

    unsigned held_buttons_ = 0;
    POINT last_mouse_ = {-1, -1};
};

} // namespace win32

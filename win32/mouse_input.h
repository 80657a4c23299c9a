// The mouse and the state keys as events: what windows that paint themselves have in common.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

namespace win32 {

/// An event of this kind with the state keys as they are.
platform::Input_Event Event_Of(platform::Input_Kind kind);

/// The event of a key message that goes down or comes up.
platform::Input_Event Key_Event(bool down, WPARAM wparam, LPARAM lparam);

/// The mouse over one window, which captures it from the first button's press to the last one's release.
class Mouse_Input {
public:
    /// Whether the message belongs to the mouse over the client area.
    static bool Is_Mouse(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK; }

    /// What a message of the mouse says, its point in twips on the window. Returns whether it says anything.
    bool Translate(HWND window, UINT message, WPARAM wparam, LPARAM lparam, platform::Input_Event &event);

    /// To be called with WM_CAPTURECHANGED. Returns whether the release of a button will not come.
    bool Capture_Lost();

private:
    bool Translate_Move(WPARAM held, platform::Input_Event &event);

    unsigned held_buttons_ = 0;
    POINT last_mouse_ = {-1, -1};
};

} // namespace win32

// Mouse and keyboard input of painted windows.
#include "platform/message_box.h"
#include "win32/accessible.h"
#include "win32/painted_window.h"

namespace win32 {

using platform::Input_Event;
using platform::Input_Kind;

namespace {

bool Is_Key(UINT message) {
    return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_SYSKEYDOWN ||
           message == WM_SYSKEYUP || message == WM_SYSCHAR;
}

/// Returns whether `message` reports a key that the system turns into a command: a volume, media, browser or
/// program key.
bool Is_Command_Key(UINT message, WPARAM key) {
    return Is_Key(message) && message != WM_SYSCHAR && key >= VK_BROWSER_BACK && key <= VK_LAUNCH_APP2;
}

} // namespace

bool Painted_Window::Handle_Input(UINT message, WPARAM wparam, LPARAM lparam, LRESULT &result) {
    if (message == WM_MOUSEACTIVATE) {
        // A message box does not disable a window inside the shell's window, so ignore the click here.
        result = platform::Modal_Box_Is_Open() ? MA_NOACTIVATEANDEAT : Floats() ? MA_NOACTIVATE : MA_ACTIVATE;
        return true;
    }
    if (Mouse_Input::Is_Mouse(message))
        return Handle_Mouse(message, wparam, lparam);
    if (Is_Command_Key(message, wparam))
        return false;
    if (Is_Key(message))
        return Handle_Key(message, wparam, lparam);
    switch (message) {
    case WM_CAPTURECHANGED:
        if (mouse_.Capture_Lost())
            Send(Input_Kind::Capture_Lost);
        return true;
    case WM_CONTEXTMENU:
        // A request by the mouse needs no work here, because the form handles the button's message. A request
        // without a position comes from the keyboard, so treat it as the menu key. Neither request may reach
        // a parent in another process.
        if (LOWORD(lparam) == 0xFFFF && HIWORD(lparam) == 0xFFFF) {
            Input_Event event = Event_Of(Input_Kind::Key_Down);
            event.key = VK_APPS;
            Send(event);
            event.kind = Input_Kind::Key_Up;
            Send(event);
        }
        return true;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
        Input_Event event{};
        event.kind = Input_Kind::Focus_Changed;
        event.checked = message == WM_SETFOCUS;
        Send(event);
        if (event.checked && Model() != nullptr)
            Announce_Focus(window_, *Model());
        return true;
    }
    default:
        return false;
    }
}

bool Painted_Window::Handle_Mouse(UINT message, WPARAM wparam, LPARAM lparam) {
    tooltips_.Relay(window_, *Model(), message, wparam, lparam);
    Input_Event event{};
    if (!mouse_.Translate(window_, message, wparam, lparam, event))
        return true;
    const bool pressed = event.kind == Input_Kind::Mouse_Down || event.kind == Input_Kind::Double_Click;
    if (pressed)
        tooltips_.Pop();
    if (pressed && Model() != nullptr && !Floats() && GetFocus() != window_)
        SetFocus(window_);
    Send(event);
    return true;
}

bool Painted_Window::Handle_Key(UINT message, WPARAM wparam, LPARAM lparam) {
    // Do not pass system keys to the system either, because inside the shell's window Alt+F4 would close the
    // shell.
    if (message == WM_SYSCHAR)
        return true;
    const bool down = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
    if (message == WM_SYSKEYDOWN && wparam == VK_F4) {
        Send(Input_Kind::Close);
        return true;
    }
    if (down)
        tooltips_.Pop();
    Send(Key_Event(down, wparam, lparam));
    return true;
}

} // namespace win32

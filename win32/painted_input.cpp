// The mouse and the keyboard of painted windows.
#include "win32/accessible.h"
#include "win32/modal.h"
#include "win32/painted_window.h"
#include "win32/units.h"

#include <utility>

namespace win32 {

using platform::Input_Event;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

bool Key_Is_Down(int key) {
    return (static_cast<unsigned>(GetKeyState(key)) & 0x8000U) != 0;
}

bool Is_Mouse(UINT message) {
    return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK;
}

bool Is_Key(UINT message) {
    return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_SYSKEYDOWN ||
           message == WM_SYSKEYUP || message == WM_SYSCHAR;
}

Input_Event Event_Of(Input_Kind kind) {
    Input_Event event{};
    event.kind = kind;
    event.shift = Key_Is_Down(VK_SHIFT);
    event.control_key = Key_Is_Down(VK_CONTROL);
    event.alt = Key_Is_Down(VK_MENU);
    return event;
}

Mouse_Button Held(WPARAM keys) {
    if ((keys & MK_LBUTTON) != 0)
        return Mouse_Button::Left;
    if ((keys & MK_RBUTTON) != 0)
        return Mouse_Button::Right;
    return (keys & MK_MBUTTON) != 0 ? Mouse_Button::Middle : Mouse_Button::None;
}

unsigned Bit(Mouse_Button button) {
    return 1U << static_cast<unsigned>(button);
}

int Signed_Low(LPARAM value) {
    return static_cast<short>(LOWORD(value));
}
int Signed_High(LPARAM value) {
    return static_cast<short>(HIWORD(value));
}

} // namespace

bool Painted_Window::Handle_Input(UINT message, WPARAM wparam, LPARAM lparam, LRESULT &result) {
    // A window inside the shell's is not disabled with the others by a message box, so it holds still itself.
    const bool modal = Open_Modal_Boxes > 0;
    if (message == WM_MOUSEACTIVATE) {
        result = modal ? MA_NOACTIVATEANDEAT : Model()->floating ? MA_NOACTIVATE : MA_ACTIVATE;
        return true;
    }
    if (Is_Mouse(message))
        return modal || Handle_Mouse(message, wparam, lparam);
    if (Is_Key(message))
        return modal || Handle_Key(message, wparam, lparam);
    switch (message) {
    case WM_CAPTURECHANGED:
        // Our own giving it back comes when no button is held any more.
        if (std::exchange(held_buttons_, 0U) != 0)
            Send(Input_Kind::Capture_Lost);
        return true;
    case WM_CONTEXTMENU:
        // The mouse's comes as its button; a parent of another process must not see either. Asked for by
        // other means than mouse or key, it is the key's.
        if (!modal && Signed_Low(lparam) == -1 && Signed_High(lparam) == -1) {
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
            Tell_Focus(window_, *Model());
        return true;
    }
    default:
        return false;
    }
}

bool Painted_Window::Handle_Mouse(UINT message, WPARAM wparam, LPARAM lparam) {
    Input_Event event = Event_Of(Input_Kind::Mouse_Move);
    event.point = {To_Twips(Signed_Low(lparam)), To_Twips(Signed_High(lparam))};
    switch (message) {
    case WM_MOUSEMOVE:
        Mouse_Moved(event, wparam);
        return true;
    case WM_LBUTTONDBLCLK:
        event.kind = Input_Kind::Double_Click;
        Button_Down(Mouse_Button::Left, event);
        return true;
    case WM_LBUTTONDOWN:
        event.kind = Input_Kind::Mouse_Down;
        Button_Down(Mouse_Button::Left, event);
        return true;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
        // Only the left button double-clicks; two quick clicks of the others are two clicks.
        event.kind = Input_Kind::Mouse_Down;
        Button_Down(Mouse_Button::Right, event);
        return true;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
        event.kind = Input_Kind::Mouse_Down;
        Button_Down(Mouse_Button::Middle, event);
        return true;
    case WM_LBUTTONUP:
        Button_Up(Mouse_Button::Left, event);
        return true;
    case WM_RBUTTONUP:
        Button_Up(Mouse_Button::Right, event);
        return true;
    case WM_MBUTTONUP:
        Button_Up(Mouse_Button::Middle, event);
        return true;
    default:
        return false;
    }
}

void Painted_Window::Button_Down(Mouse_Button button, Input_Event event) {
    held_buttons_ |= Bit(button);
    SetCapture(window_);
    if (!Model()->floating && GetFocus() != window_)
        SetFocus(window_);
    event.button = button;
    Send(event);
}

void Painted_Window::Button_Up(Mouse_Button button, Input_Event event) {
    held_buttons_ &= ~Bit(button);
    if (held_buttons_ == 0 && GetCapture() == window_)
        ReleaseCapture();
    event.kind = Input_Kind::Mouse_Up;
    event.button = button;
    Send(event);
}

void Painted_Window::Mouse_Moved(Input_Event event, WPARAM held) {
    // The system repeats the message when windows change under a mouse that rests.
    POINT mouse = {};
    GetCursorPos(&mouse);
    if (mouse.x == last_mouse_.x && mouse.y == last_mouse_.y)
        return;
    last_mouse_ = mouse;
    event.button = Held(held);
    Send(event);
}

bool Painted_Window::Handle_Key(UINT message, WPARAM wparam, LPARAM lparam) {
    // System keys are not passed on either: inside the shell's window they would close the shell.
    if (message == WM_SYSCHAR)
        return true;
    const bool down = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
    if (message == WM_SYSKEYDOWN && wparam == VK_F4) {
        Send(Input_Kind::Close);
        return true;
    }
    Input_Event event = Event_Of(down ? Input_Kind::Key_Down : Input_Kind::Key_Up);
    event.key = static_cast<int>(wparam);
    event.repeated = down && (HIWORD(lparam) & KF_REPEAT) != 0;
    Send(event);
    return true;
}

} // namespace win32

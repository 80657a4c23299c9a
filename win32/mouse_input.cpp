#include "win32/mouse_input.h"

#include "platform/message_box.h"
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

Mouse_Button Held_Button(WPARAM keys) {
    if ((keys & MK_LBUTTON) != 0)
        return Mouse_Button::Left;
    if ((keys & MK_RBUTTON) != 0)
        return Mouse_Button::Right;
    return (keys & MK_MBUTTON) != 0 ? Mouse_Button::Middle : Mouse_Button::None;
}

struct Button_Message {
    UINT message;
    Input_Kind kind;
    Mouse_Button button;
};

/// Only the left button double-clicks. Two quick clicks of another button are two clicks.
constexpr Button_Message button_messages[] = {
    {WM_LBUTTONDOWN, Input_Kind::Mouse_Down, Mouse_Button::Left},
    {WM_LBUTTONDBLCLK, Input_Kind::Double_Click, Mouse_Button::Left},
    {WM_LBUTTONUP, Input_Kind::Mouse_Up, Mouse_Button::Left},
    {WM_RBUTTONDOWN, Input_Kind::Mouse_Down, Mouse_Button::Right},
    {WM_RBUTTONDBLCLK, Input_Kind::Mouse_Down, Mouse_Button::Right},
    {WM_RBUTTONUP, Input_Kind::Mouse_Up, Mouse_Button::Right},
    {WM_MBUTTONDOWN, Input_Kind::Mouse_Down, Mouse_Button::Middle},
    {WM_MBUTTONDBLCLK, Input_Kind::Mouse_Down, Mouse_Button::Middle},
    {WM_MBUTTONUP, Input_Kind::Mouse_Up, Mouse_Button::Middle}};

} // namespace

Input_Event Event_Of(Input_Kind kind) {
    Input_Event event{};
    event.kind = kind;
    event.shift = Key_Is_Down(VK_SHIFT);
    event.control_key = Key_Is_Down(VK_CONTROL);
    event.alt = Key_Is_Down(VK_MENU);
    return event;
}

Input_Event Key_Event(bool down, WPARAM wparam, LPARAM lparam) {
    Input_Event event = Event_Of(down ? Input_Kind::Key_Down : Input_Kind::Key_Up);
    event.key = static_cast<int>(wparam);
    event.repeated = down && (HIWORD(lparam) & KF_REPEAT) != 0;
    return event;
}

bool Mouse_Input::Translate(HWND window, UINT message, WPARAM wparam, LPARAM lparam, Input_Event &event) {
    // An open message box keeps the capture and the focus.
    if (platform::Modal_Box_Is_Open())
        return false;
    event = Event_Of(Input_Kind::Mouse_Move);
    event.point = {To_Twips(static_cast<short>(LOWORD(lparam))),
                   To_Twips(static_cast<short>(HIWORD(lparam)))};
    if (message == WM_MOUSEMOVE)
        return Translate_Move(wparam, event);
    for (const Button_Message &each : button_messages) {
        if (each.message != message)
            continue;
        event.kind = each.kind;
        event.button = each.button;
        const unsigned bit = 1U << static_cast<unsigned>(each.button);
        if (each.kind != Input_Kind::Mouse_Up) {
            held_buttons_ |= bit;
            SetCapture(window);
            return true;
        }
        held_buttons_ &= ~bit;
        if (held_buttons_ == 0 && GetCapture() == window)
            ReleaseCapture();
        return true;
    }
    return false;
}

bool Mouse_Input::Translate_Move(WPARAM held, Input_Event &event) {
    // Ignore the message that the system repeats when windows change under a resting mouse.
    POINT mouse = {};
    GetCursorPos(&mouse);
    if (mouse.x == last_mouse_.x && mouse.y == last_mouse_.y)
        return false;
    last_mouse_ = mouse;
    event.button = Held_Button(held);
    return true;
}

bool Mouse_Input::Capture_Lost() {
    // No button is held if the window itself released the capture.
    return std::exchange(held_buttons_, 0U) != 0;
}

} // namespace win32

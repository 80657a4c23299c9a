// The window of a dialog: its place and its messages. Its controls are in dialog_make.cpp,
// dialog_controls.cpp and dialog_events.cpp.
#include "win32/dialog_window.h"

#include "base/scoped_value.h"
#include "platform/message_box.h"
#include "win32/broadcasts.h"
#include "win32/units.h"
#include "win32/wide_text.h"
#include "win32/window_class.h"

#include <algorithm>

namespace win32 {

using platform::Aspect;
using platform::Control_State;
using platform::Input_Event;
using platform::Input_Kind;

namespace {

/// Returns `place`, moved wholly into the work area of the nearest monitor.
RECT On_Screen(RECT place) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    if (!GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor))
        return place;
    const RECT &area = monitor.rcWork;
    // If the window is larger than the area, its top left corner stays visible.
    const LONG left = std::max(area.left, std::min(place.left, area.right - (place.right - place.left)));
    const LONG top = std::max(area.top, std::min(place.top, area.bottom - (place.bottom - place.top)));
    OffsetRect(&place, left - place.left, top - place.top);
    return place;
}

} // namespace

LRESULT CALLBACK Dialog_Window::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return Receive(window, message, wparam, lparam, DefDlgProcW);
}

LRESULT Dialog_Window::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_COMMAND:
        Handle_Command(LOWORD(wparam), HIWORD(wparam));
        return 0;
    case WM_SETCURSOR:
        if (Answer_Pointer(LOWORD(lparam), HIWORD(lparam)))
            return TRUE;
        break;
    case WM_CLOSE:
        Send(Input_Kind::Close);
        return 0;
    case WM_MOVE:
        Send_Window_Moved();
        break;
    case WM_DPICHANGED:
        Handle_Scale_Message(LOWORD(wparam), reinterpret_cast<const RECT *>(lparam));
        return 0;
    case Check_Dots_Message:
        Apply_Scale(dots_);
        return 0;
    case WM_HSCROLL:
    case WM_VSCROLL:
        if (const Control_State *slider = Control_Of(reinterpret_cast<HWND>(lparam)))
            Slider_Moved(*slider, LOWORD(wparam));
        return 0;
    case WM_NOTIFY:
        if (Handle_Notify(*reinterpret_cast<NMHDR *>(lparam)))
            return 0;
        break;
    case WM_ERASEBKGND:
        if (Erase(reinterpret_cast<HDC>(wparam)))
            return 1;
        break;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
        return Colour_Control(message, reinterpret_cast<HDC>(wparam), reinterpret_cast<HWND>(lparam),
                              DefDlgProcW(window_, message, wparam, lparam));
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
        Colours_Changed(message, wparam, lparam);
        break;
    default:
        break;
    }
    return DefDlgProcW(window_, message, wparam, lparam);
}

/// Answers WM_SETCURSOR: the pointer is over `part` (HT...), and the mouse sends `mouse_message`. Returns
/// whether the message needs no further handling.
bool Dialog_Window::Answer_Pointer(int part, UINT mouse_message) {
    // A disabled window learns of a mouse press only through this message. If a message box is open, the
    // system itself draws attention to the box.
    if (!Model()->enabled && mouse_message == WM_LBUTTONDOWN && !platform::Modal_Box_Is_Open()) {
        Send(Input_Kind::Mouse_Down);
        return true;
    }
    // Controls send this message to the dialog before they set their own pointer.
    if (Model()->pointer != platform::Pointer_Shape::Hourglass || part != HTCLIENT)
        return false;
    SetCursor(Load_Pointer(System_Pointer::Hourglass));
    return true;
}

void Dialog_Window::Window_Gone() {
    tooltips_.Window_Gone();
    slider_tip_.Hide();
    Mirror::Window_Gone();
}

void Dialog_Window::Own_Aspect_Changed(Aspect aspect) {
    if (aspect == Aspect::Focus)
        Focus();
    if (aspect == Aspect::Enabled)
        EnableWindow(window_, Model()->enabled);
    POINT mouse = {};
    if (aspect != Aspect::Pointer || !GetCursorPos(&mouse) ||
        GetAncestor(WindowFromPoint(mouse), GA_ROOT) != window_)
        return;
    const bool waits = Model()->pointer == platform::Pointer_Shape::Hourglass;
    SetCursor(Load_Pointer(waits ? System_Pointer::Hourglass : System_Pointer::Arrow));
}

void Dialog_Window::Update_Bounds() {
    const Rect bounds = Model()->bounds;
    const bool moved = bounds.left != placed_.x || bounds.top != placed_.y || !is_placed_;
    RECT outer = {0, 0, To_Pixels(bounds.width), To_Pixels(bounds.height)};
    AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)));
    RECT now = {};
    GetWindowRect(window_, &now);
    // A window that the user has moved stays in its place until the form sets another one.
    const POINT corner = moved ? Corner_On_Screen() : POINT{now.left, now.top};
    RECT place = {corner.x, corner.y, corner.x + outer.right - outer.left,
                  corner.y + outer.bottom - outer.top};
    // A window that the user is moving stays with the mouse.
    if (!In_Menu_Or_Move())
        place = On_Screen(place);
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    // The frame may be larger than AdjustWindowRectEx calculates, if the screen has a scale of its own.
    RECT client = {};
    GetClientRect(window_, &client);
    const LONG wider = To_Pixels(bounds.width) - client.right;
    const LONG higher = To_Pixels(bounds.height) - client.bottom;
    if (wider != 0 || higher != 0) {
        SetWindowPos(window_, nullptr, 0, 0, place.right - place.left + wider,
                     place.bottom - place.top + higher, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    is_placed_ = true;
    Send_Window_Moved();
}

/// Returns the form's position in screen pixels. Positions are in the calendar's scale, whatever the scale
/// of the dialog.
POINT Dialog_Window::Corner_On_Screen() const {
    const Scoped_Value scale(Dialog_Dots, 0);
    return {To_Pixels(Model()->bounds.left), To_Pixels(Model()->bounds.top)};
}

/// Adopts the scale of the screen that the window has moved to. `place` is the rectangle that the system
/// suggests for the window there, in pixels; null: none.
void Dialog_Window::Handle_Scale_Message(int dots, const RECT *place) {
    // Any program can send the message, so check the range.
    constexpr int least = 48, most = 960;
    if (dots < least || dots > most)
        return;
    dots_ = dots;
    if (place != nullptr)
        SetWindowPos(window_, nullptr, place->left, place->top, place->right - place->left,
                     place->bottom - place->top, SWP_NOZORDER | SWP_NOACTIVATE);
    // Apply the scale later, because this message may arrive while the window is being created or placed.
    PostMessageW(window_, Check_Dots_Message, 0, 0);
}

/// Sends the form the window's position, which the user or the edge of the work area may have changed.
void Dialog_Window::Send_Window_Moved() {
    RECT now = {};
    if (!is_placed_ || IsIconic(window_) || !GetWindowRect(window_, &now))
        return;
    const Scoped_Value scale(Dialog_Dots, 0);
    Input_Event event{};
    event.kind = Input_Kind::Window_Moved;
    event.point = placed_ = {To_Twips(static_cast<int>(now.left)), To_Twips(static_cast<int>(now.top))};
    Send(event);
}

void Dialog_Window::Show_Or_Hide() {
    if (!Model()->visible) {
        ShowWindow(window_, SW_HIDE);
        return;
    }
    Bring_To_Front();
    Focus();
}

void Dialog_Window::Bring_To_Front() {
    if (IsIconic(window_))
        ShowWindow(window_, SW_RESTORE);
    SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    SetForegroundWindow(window_);
}

void Dialog_Window::Focus() {
    if (!IsWindowVisible(window_) || !IsWindowEnabled(window_))
        return;
    HWND control = Control_Window(Model()->focused);
    if (control == nullptr || !IsWindowEnabled(control) || !IsWindowVisible(control))
        control = GetNextDlgTabItem(window_, nullptr, FALSE);
    if (control != nullptr && GetFocus() != control)
        SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    // Put the caret behind the text. If the whole text were selected, the first key would erase the text.
    const int index = Model()->focused;
    if (index < 0 || control != Control_Window(index))
        return;
    const Control_State &focused = *Model()->controls[static_cast<std::size_t>(index)];
    if (focused.kind == platform::Control_Kind::Text_Box && !focused.read_only) {
        const auto end = static_cast<WPARAM>(GetWindowTextLengthW(control));
        SendMessageW(control, EM_SETSEL, end, static_cast<LPARAM>(end));
    }
}

void Dialog_Window::Scale_Changed() {
    // Keep the old fonts until no control uses them.
    const std::vector<Shared_Font> before = std::move(fonts_);
    fonts_.clear();
    for (const Control_State *control : Model()->controls) {
        if (Control_Window(control->index) == nullptr)
            continue;
        Look_Changed(*control);
        Place_Control(*control);
    }
    Find_Page_Colour();
    Update_Bounds();
}

} // namespace win32

#include "win32/painted_child.h"

#include "base/scoped_value.h"
#include "win32/accessible.h"
#include "win32/canvas.h"
#include "win32/painted_window.h"
#include "win32/units.h"
#include "win32/window_class.h"

namespace win32 {

using platform::Control_State;
using platform::Input_Event;
using platform::Input_Kind;

namespace {

constexpr wchar_t class_name[] = L"Vellatro_Painted";

} // namespace

HWND Painted_Child::Make(HWND parent, int id, const Rect &place, DWORD style) {
    Register_Class(class_name, Procedure, CS_DBLCLKS);
    window_ = CreateWindowExW(0, class_name, nullptr, style, place.left, place.top, place.width, place.height,
                              parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                              GetModuleHandleW(nullptr), nullptr);
    if (window_ != nullptr)
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return window_;
}

LRESULT CALLBACK Painted_Child::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    auto *child = reinterpret_cast<Painted_Child *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (child == nullptr || child->owner_->Model() == nullptr)
        return DefWindowProcW(window, message, wparam, lparam);
    try {
        // Keep the dialog alive, because a handler may close it.
        const std::shared_ptr<Mirror> keep = child->owner_->weak_from_this().lock();
        const Scoped_Value scale(Dialog_Dots, keep->Dots());
        return child->Handle(message, wparam, lparam);
    } catch (...) {
        // Only an out-of-memory exception arrives here. It must not unwind the system's code that called
        // this procedure.
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

const Control_State &Painted_Child::Control() const {
    return *owner_->Model()->controls[static_cast<std::size_t>(index_)];
}

LRESULT Painted_Child::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
    if (Handle_Input(message, wparam, lparam))
        return 0;
    switch (message) {
    case WM_ERASEBKGND:
    case WM_PAINT:
    case WM_PRINTCLIENT:
        return Paint_Window(window_, message, wparam, [&](HDC target, const RECT &area) {
            if (message == WM_PAINT)
                Exclude_Later_Siblings(target);
            Paint_On(target, area);
        });
    case WM_GETOBJECT:
        return Answer_Get_Object(window_, wparam, lparam, index_);
    case Default_Action_Message: {
        Input_Event event = Event_Of(Input_Kind::Default_Action);
        event.control = index_;
        owner_->Send(event);
        return 0;
    }
    case WM_GETDLGCODE:
        return Dialog_Code(reinterpret_cast<const MSG *>(lparam));
    case WM_SETCURSOR: {
        const HCURSOR pointer = Control().link ? Load_Pointer(System_Pointer::Hand) : nullptr;
        if (pointer == nullptr)
            break;
        SetCursor(pointer);
        return TRUE;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_UPDATEUISTATE:
        InvalidateRect(window_, nullptr, FALSE);
        break;
    default:
        break;
    }
    return DefWindowProcW(window_, message, wparam, lparam);
}

/// Returns the keys that the control wants, as the answer to WM_GETDLGCODE. Also claims `message` if it is
/// Space, or Enter for a default action. The dialog would otherwise look for the typed character among the
/// access keys, and beep.
LRESULT Painted_Child::Dialog_Code(const MSG *message) const {
    const Control_State &control = Control();
    if (!control.tab_stop)
        return DLGC_STATIC;
    const bool key = message != nullptr && (message->message == WM_KEYDOWN || message->message == WM_CHAR);
    const bool enter = key && message->wParam == VK_RETURN && !control.access.default_action.empty();
    const bool space = key && message->wParam == VK_SPACE;
    return DLGC_WANTARROWS | (enter || space ? DLGC_WANTMESSAGE : 0);
}

bool Painted_Child::Handle_Input(UINT message, WPARAM wparam, LPARAM lparam) {
    if (Mouse_Input::Is_Mouse(message)) {
        Handle_Mouse(message, wparam, lparam);
        return true;
    }
    if (message == WM_KEYDOWN) {
        Handle_Key_Down(wparam, lparam);
        return true;
    }
    if (message == WM_CAPTURECHANGED) {
        if (mouse_.Capture_Lost())
            owner_->Send(Input_Kind::Capture_Lost);
        return true;
    }
    return false;
}

void Painted_Child::Handle_Mouse(UINT message, WPARAM wparam, LPARAM lparam) {
    Input_Event event{};
    if (!mouse_.Translate(window_, message, wparam, lparam, event))
        return;
    const bool pressed = event.kind == Input_Kind::Mouse_Down || event.kind == Input_Kind::Double_Click;
    if (pressed && Control().tab_stop && GetFocus() != window_)
        SendMessageW(GetParent(window_), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window_), TRUE);
    event.control = index_;
    owner_->Send(event);
}

void Painted_Child::Handle_Key_Down(WPARAM wparam, LPARAM lparam) {
    Input_Event event = Key_Event(true, wparam, lparam);
    event.control = index_;
    if (wparam == VK_SPACE) {
        if (event.repeated)
            return;
        event = Event_Of(Input_Kind::Clicked);
        event.control = index_;
    }
    owner_->Send(event);
}

/// Excludes the controls above this one from the painting, because they are separate windows and would
/// flicker.
void Painted_Child::Exclude_Later_Siblings(HDC target) const {
    const platform::Form_Model &model = *owner_->Model();
    const Control_State &self = Control();
    const HWND parent = GetParent(window_);
    for (std::size_t i = static_cast<std::size_t>(index_) + 1; i < model.controls.size(); ++i) {
        const Control_State &other = *model.controls[i];
        if (other.container != self.container || !other.visible || !other.bounds.Intersects(self.bounds))
            continue;
        const HWND window = GetDlgItem(parent, GetDlgCtrlID(window_) - index_ + static_cast<int>(i));
        RECT place = {};
        if (window == nullptr || !GetWindowRect(window, &place))
            continue;
        MapWindowPoints(nullptr, window_, reinterpret_cast<POINT *>(&place), 2);
        ExcludeClipRect(target, place.left, place.top, place.right, place.bottom);
    }
}

void Painted_Child::Paint_On(HDC target, const RECT &area) {
    if (area.left >= area.right || area.top >= area.bottom)
        return;
    platform::Canvas canvas(area);
    if (!canvas.Ok())
        return;
    // The dialog provides the background, as for the system's own controls.
    const LRESULT brush =
        SendMessageW(GetParent(window_), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(canvas.Dc()),
                     reinterpret_cast<LPARAM>(window_));
    FillRect(canvas.Dc(), &area, reinterpret_cast<HBRUSH>(brush));
    SetBkMode(canvas.Dc(), TRANSPARENT);
    const Control_State &control = Control();
    if (control.paint)
        control.paint(canvas, To_Covering_Twips(area));
    const auto cues = static_cast<unsigned>(SendMessageW(window_, WM_QUERYUISTATE, 0, 0));
    if (GetFocus() == window_ && (cues & UISF_HIDEFOCUS) == 0) {
        RECT inside = {};
        GetClientRect(window_, &inside);
        InflateRect(&inside, -1, -1);
        SetTextColor(canvas.Dc(), RGB(0, 0, 0));
        SetBkColor(canvas.Dc(), RGB(255, 255, 255));
        DrawFocusRect(canvas.Dc(), &inside);
    }
    canvas.Copy_To(target);
}

} // namespace win32

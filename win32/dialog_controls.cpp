// The native controls of dialogs: their making, their state, and what the user does with them.
#include "win32/dialog_edit.h"
#include "win32/dialog_window.h"
#include "win32/fonts.h"
#include "win32/modal.h"
#include "win32/units.h"
#include "win32/wide_text.h"

namespace win32 {

using platform::Aspect;
using platform::Control_Kind;
using platform::Control_State;
using platform::Input_Event;
using platform::Input_Kind;

namespace {

/// Native identifiers of the controls: this and the index. The lower ones have meanings to the system.
constexpr int first_id = 100;

constexpr platform::Colour usual_fore_colour = platform::System_Colour(18);
constexpr platform::Colour usual_back_colour = platform::System_Colour(15);

DWORD Label_Style(const Control_State &control) {
    constexpr DWORD aligned[] = {SS_LEFT, SS_CENTER, SS_RIGHT};
    return aligned[static_cast<int>(control.align)] | (control.middle ? SS_CENTERIMAGE : 0U) |
           (control.frame_colour != -1 ? WS_BORDER : 0U);
}

/// A text box of more than two lines has a scroll bar.
DWORD Text_Box_Style(const Control_State &control) {
    const bool tall = control.bounds.height > 3 * platform::Line_Height(control.font);
    return WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | (tall ? WS_VSCROLL : 0U);
}

DWORD Style_Of(const Control_State &control) {
    switch (control.kind) {
    case Control_Kind::Button:
        return WS_TABSTOP | (control.is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
    case Control_Kind::Check_Box:
        return WS_TABSTOP | BS_AUTOCHECKBOX;
    case Control_Kind::Text_Box:
        return Text_Box_Style(control);
    default:
        return Label_Style(control);
    }
}

const wchar_t *Class_Of(Control_Kind kind) {
    if (kind == Control_Kind::Label)
        return L"STATIC";
    return kind == Control_Kind::Text_Box ? L"EDIT" : L"BUTTON";
}

std::wstring Native_Caption(const Control_State &control) {
    std::wstring text = To_Wide(control.caption);
    return control.kind == Control_Kind::Text_Box ? Without_Breaks(std::move(text)) : text;
}

} // namespace

HWND Dialog_Window::Control_Window(int index) const {
    return index < 0 || index >= static_cast<int>(natives_.size())
               ? nullptr
               : natives_[static_cast<std::size_t>(index)].window;
}

void Dialog_Window::Make_Control(const Control_State &control) {
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    const RECT place = To_Pixels(control.bounds);
    const bool text_box = control.kind == Control_Kind::Text_Box;
    const auto id = static_cast<INT_PTR>(first_id + control.index);
    native.window = Made(CreateWindowExW(
        text_box ? WS_EX_CLIENTEDGE : 0, Class_Of(control.kind), Native_Caption(control).c_str(),
        WS_CHILD | Style_Of(control) | (control.visible ? WS_VISIBLE : 0U) |
            (control.enabled ? 0U : WS_DISABLED),
        place.left, place.top, place.right - place.left, place.bottom - place.top, window_,
        reinterpret_cast<HMENU>(id), GetModuleHandleW(nullptr), nullptr));
    if (text_box)
        Make_Text_Box(native.window);
    if (control.checked)
        SendMessageW(native.window, BM_SETCHECK, BST_CHECKED, 0);
    if (control.is_default)
        SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(id), 0);
    Look_Changed(control);
}

void Dialog_Window::Look_Changed(const Control_State &control) {
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    native.brush.Reset();
    Set_Font(control);
    if (control.kind == Control_Kind::Text_Box)
        SendMessageW(native.window, EM_LIMITTEXT, 0, 0);
    InvalidateRect(native.window, nullptr, TRUE);
}

void Dialog_Window::Set_Font(const Control_State &control) {
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    Unique_Font font = Make_Font(control.font, platform::Dots_Per_Inch());
    SendMessageW(native.window, WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
    // Only now may the one before go.
    native.font = std::move(font);
}

void Dialog_Window::Set_Caption(const Control_State &control) {
    const HWND window = Control_Window(control.index);
    const std::wstring text = Native_Caption(control);
    // An equal text is not written again: it would take the caret to the beginning.
    if (Window_Text(window) == text)
        return;
    updating_ = true;
    SetWindowTextW(window, text.c_str());
    updating_ = false;
}

void Dialog_Window::Place_Control(const Control_State &control) {
    const RECT place = To_Pixels(control.bounds);
    SetWindowPos(Control_Window(control.index), nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Dialog_Window::Enable_Control(const Control_State &control) {
    const HWND window = Control_Window(control.index);
    // A disabled control would keep the keyboard and swallow it.
    if (!control.enabled && GetFocus() == window)
        SendMessageW(window_, WM_NEXTDLGCTL, 0, FALSE);
    EnableWindow(window, control.enabled);
}

void Dialog_Window::Control_Changed(const Control_State &control, Aspect aspect, const platform::Rect &) {
    const HWND window = Control_Window(control.index);
    if (window == nullptr)
        return;
    switch (aspect) {
    case Aspect::Bounds:
        Place_Control(control);
        break;
    case Aspect::Visible:
        ShowWindow(window, control.visible ? SW_SHOWNA : SW_HIDE);
        break;
    case Aspect::Enabled:
        Enable_Control(control);
        break;
    case Aspect::Caption:
        Set_Caption(control);
        break;
    case Aspect::Look:
        Look_Changed(control);
        break;
    case Aspect::Checked:
        SendMessageW(window, BM_SETCHECK, control.checked ? BST_CHECKED : BST_UNCHECKED, 0);
        break;
    default:
        break;
    }
}

void Dialog_Window::Command(int id, int code) {
    if (id == IDCANCEL)
        return Cancel();
    const int index = id - first_id;
    if (Control_Window(index) == nullptr)
        return;
    const Control_State &control = *Model()->controls[static_cast<std::size_t>(index)];
    if (control.kind == Control_Kind::Text_Box) {
        if (code == EN_CHANGE && !updating_)
            Text_Edited(control);
    } else if (control.kind != Control_Kind::Label && code == BN_CLICKED) {
        Click(control);
    }
}

void Dialog_Window::Cancel() {
    if (Open_Modal_Boxes > 0)
        return;
    for (const Control_State *control : Model()->controls) {
        if (!control->is_cancel)
            continue;
        if (control->enabled && control->visible)
            Click(*control);
        return;
    }
    Send(Input_Kind::Close);
}

void Dialog_Window::Click(const Control_State &control) {
    if (Open_Modal_Boxes > 0) {
        // A check box has changed by itself already.
        SendMessageW(Control_Window(control.index), BM_SETCHECK,
                     control.checked ? BST_CHECKED : BST_UNCHECKED, 0);
        return;
    }
    Input_Event event{};
    event.kind = Input_Kind::Clicked;
    event.control = control.index;
    event.checked = SendMessageW(Control_Window(control.index), BM_GETCHECK, 0, 0) == BST_CHECKED;
    Send(event);
}

void Dialog_Window::Text_Edited(const Control_State &control) {
    Input_Event event{};
    event.kind = Input_Kind::Text_Changed;
    event.control = control.index;
    event.text = From_Wide(Without_Breaks(Window_Text(Control_Window(control.index))));
    Send(event);
}

LRESULT Dialog_Window::Colour_Control(HDC dc, HWND window, LRESULT usual) {
    for (const Control_State *control : Model()->controls) {
        Native &native = natives_[static_cast<std::size_t>(control->index)];
        if (native.window != window || control->kind != Control_Kind::Label)
            continue;
        if (control->fore_colour != usual_fore_colour)
            SetTextColor(dc, static_cast<COLORREF>(platform::Resolve_Colour(control->fore_colour)));
        if (control->back_colour == usual_back_colour || control->transparent)
            return usual;
        const auto back = static_cast<COLORREF>(platform::Resolve_Colour(control->back_colour));
        if (!native.brush)
            native.brush.Reset(CreateSolidBrush(back));
        SetBkColor(dc, back);
        return reinterpret_cast<LRESULT>(native.brush.Get());
    }
    return usual;
}

} // namespace win32

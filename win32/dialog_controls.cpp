// Updates native controls from the state of the form's controls. dialog_make.cpp creates the native
// controls, and dialog_events.cpp handles the user's actions.
#include "base/scoped_value.h"
#include "win32/accessible.h"
#include "win32/dialog_edit.h"
#include "win32/dialog_lists.h"
#include "win32/dialog_window.h"
#include "win32/fonts.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <commctrl.h>

#include <utility>

namespace win32 {

using platform::Aspect;
using platform::Control_Kind;
using platform::Control_State;

namespace {

bool Has_Items(const Control_State &control) {
    return control.kind == Control_Kind::Combo_Box || control.kind == Control_Kind::List_Box ||
           control.kind == Control_Kind::Tab_Strip;
}

/// Returns the text of the native window. For a painted control or a control with an accessible name, the
/// text serves only assistive technology.
std::wstring Native_Caption(const Control_State &control) {
    if (control.painted || !control.access.name.empty())
        return To_Wide(Access_Name(control));
    std::wstring text = To_Wide(control.caption);
    return control.kind == Control_Kind::Text_Box || control.kind == Control_Kind::Combo_Box
               ? Without_Breaks(std::move(text))
               : text;
}

} // namespace

HWND Dialog_Window::Control_Window(int index) const {
    return index < 0 || index >= static_cast<int>(natives_.size())
               ? nullptr
               : natives_[static_cast<std::size_t>(index)].window;
}

const Control_State *Dialog_Window::Control_Of(HWND window) const {
    const int index = GetDlgCtrlID(window) - First_Control_Id;
    return window != nullptr && Control_Window(index) == window
               ? Model()->controls[static_cast<std::size_t>(index)]
               : nullptr;
}

const Control_State *Dialog_Window::Tab_Strip() const {
    for (const Control_State *control : Model()->controls)
        if (control->kind == Control_Kind::Tab_Strip)
            return control;
    return nullptr;
}

bool Dialog_Window::Contains(const Control_State &holder, const Control_State &control) const {
    for (const Control_State *each = &control;;
         each = Model()->controls[static_cast<std::size_t>(each->container)]) {
        if (each == &holder)
            return true;
        if (each->container == -1)
            return false;
    }
}

void Dialog_Window::Look_Changed(const Control_State &control) {
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    native.brush.reset();
    if (!control.painted)
        Set_Font(control);
    InvalidateRect(native.window, nullptr, !control.painted);
}

void Dialog_Window::Set_Font(const Control_State &control) {
    const Native &native = natives_[static_cast<std::size_t>(control.index)];
    SendMessageW(native.window, WM_SETFONT, reinterpret_cast<WPARAM>(Find_Font(control.font)), TRUE);
    // A control that is being created has no items yet.
    if (Has_Items(control) && !updating_)
        Fit_Widest_Item(native.window, control);
}

HFONT Dialog_Window::Find_Font(const platform::Font &font) {
    for (const Shared_Font &each : fonts_)
        if (each.font == font)
            return each.native.get();
    fonts_.push_back({font, Make_Font(font, platform::Dots_Per_Inch())});
    return fonts_.back().native.get();
}

void Dialog_Window::Set_Caption(const Control_State &control) {
    const HWND window = Control_Window(control.index);
    if (control.kind == Control_Kind::Slider && slider_tip_.Is_Over(window))
        slider_tip_.Show(window, To_Wide(control.caption));
    const bool shows_text = control.kind != Control_Kind::Slider && (!Has_Items(control) || control.editable);
    if (!shows_text && control.access.name.empty())
        return;
    const std::wstring text = Native_Caption(control);
    // Setting the same text again would move the caret to the beginning.
    if (Window_Text(window) == text)
        return;
    const Scoped_Value updating(updating_, true);
    if (control.kind == Control_Kind::Text_Box)
        Set_Box_Text(window, text);
    else
        SetWindowTextW(window, text.c_str());
}

/// Returns the control's place on the dialog, in pixels.
Rect Dialog_Window::Pixels_Of(const Control_State &control) const {
    const Rect bounds = platform::Place_On_Form(*Model(), control);
    const RECT place = To_Pixels(bounds);
    // A painted control paints from its own corner, so its size in pixels must not depend on its place.
    if (control.painted)
        return {place.left, place.top, To_Pixels(bounds.width), To_Pixels(bounds.height)};
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

void Dialog_Window::Place_Control(const Control_State &control) {
    const HWND window = Control_Window(control.index);
    const Rect place = Pixels_Of(control);
    SetWindowPos(window, nullptr, place.left, place.top, place.width, place.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (control.kind == Control_Kind::Combo_Box)
        Set_Combo_Heights(window, place.height, control);
}

void Dialog_Window::Place_Children(const Control_State &changed, const Rect &before) {
    for (const Control_State *control : Model()->controls) {
        if (Control_Window(control->index) != nullptr && Contains(changed, *control))
            Place_Control(*control);
    }
    if (changed.kind != Control_Kind::Frame) {
        if (Control_Window(changed.index) != nullptr)
            Raise_Over_Painted(changed);
        return;
    }
    // A frame does not paint its inside, so the dialog repaints the frame's old and new areas.
    Rect place = platform::Place_On_Form(*Model(), changed);
    Redraw(place);
    place.left += before.left - changed.bounds.left;
    place.top += before.top - changed.bounds.top;
    place.width = before.width;
    place.height = before.height;
    Redraw(place);
}

/// Invalidates a part of the dialog and its controls, so that the system later paints all of them together.
void Dialog_Window::Redraw(const Rect &place) {
    const RECT pixels = To_Pixels(place);
    RedrawWindow(window_, &pixels, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Dialog_Window::Fill(const Control_State &control) {
    const Scoped_Value updating(updating_, true);
    const HWND window = Control_Window(control.index);
    if (control.kind == Control_Kind::Slider) {
        SendMessageW(window, TBM_SETRANGEMIN, FALSE, control.minimum);
        SendMessageW(window, TBM_SETRANGEMAX, TRUE, control.maximum);
    } else if (control.kind == Control_Kind::Progress_Bar) {
        SendMessageW(window, PBM_SETRANGE32, static_cast<WPARAM>(control.minimum), control.maximum);
    } else if (Has_Items(control)) {
        Fill_List(window, control);
        if (control.kind == Control_Kind::Combo_Box)
            Place_Control(control);
    }
}

void Dialog_Window::Show_Check(const Control_State &control) {
    const HWND window = Control_Window(control.index);
    const LRESULT wanted = control.checked ? BST_CHECKED : BST_UNCHECKED;
    if (SendMessageW(window, BM_GETCHECK, 0, 0) != wanted)
        SendMessageW(window, BM_SETCHECK, static_cast<WPARAM>(wanted), 0);
    if (control.kind == Control_Kind::Option_Button)
        Set_Group_Stop(control.container);
}

/// Lets the Tab key reach the checked option button of a frame, or the first one if none is checked. The
/// key skips the other buttons, because an option button becomes checked when it gets the focus.
void Dialog_Window::Set_Group_Stop(int container) {
    const Control_State *stop = nullptr;
    for (const Control_State *control : Model()->controls) {
        if (control->kind == Control_Kind::Option_Button && control->container == container &&
            (stop == nullptr || (control->checked && !stop->checked)))
            stop = control;
    }
    for (const Control_State *control : Model()->controls) {
        const HWND window = Control_Window(control->index);
        if (control->kind != Control_Kind::Option_Button || control->container != container ||
            window == nullptr)
            continue;
        const LONG style = GetWindowLongW(window, GWL_STYLE);
        const LONG with_stop = style | WS_TABSTOP;
        const LONG wanted = control == stop ? with_stop : with_stop ^ WS_TABSTOP;
        if (style != wanted)
            SetWindowLongW(window, GWL_STYLE, wanted);
    }
}

void Dialog_Window::Show_Choice(const Control_State &control) {
    const Scoped_Value updating(updating_, true);
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    switch (control.kind) {
    case Control_Kind::Check_Box:
    case Control_Kind::Option_Button:
        Show_Check(control);
        break;
    case Control_Kind::Combo_Box:
    case Control_Kind::List_Box:
    case Control_Kind::Tab_Strip:
        if (Selected_Item(native.window, control) != control.selected)
            Select_Item(native.window, control, control.selected);
        break;
    case Control_Kind::Slider:
        if (SendMessageW(native.window, TBM_GETPOS, 0, 0) != control.value)
            SendMessageW(native.window, TBM_SETPOS, TRUE, control.value);
        break;
    case Control_Kind::Progress_Bar:
        SendMessageW(native.window, PBM_SETPOS, static_cast<WPARAM>(control.value), 0);
        break;
    default:
        break;
    }
}

/// Moves the focus away from a hidden or disabled control, which would keep the focus and swallow all keys.
void Dialog_Window::Release_Focus(const Control_State &changed) {
    HWND focus = GetFocus();
    if (focus == nullptr || !IsChild(window_, focus))
        return;
    // In a combo box, the inner text box has the focus.
    while (GetParent(focus) != window_)
        focus = GetParent(focus);
    const Control_State *control = Control_Of(focus);
    if (control == nullptr || !Contains(changed, *control))
        return;
    const Control_State *tabs = Tab_Strip();
    // Move the focus from a hidden or disabled page to the tabs.
    if (changed.kind == Control_Kind::Frame && tabs != nullptr &&
        IsWindowEnabled(Control_Window(tabs->index)))
        SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control_Window(tabs->index)), TRUE);
    else
        SendMessageW(window_, WM_NEXTDLGCTL, 0, FALSE);
}

void Dialog_Window::Update_Children(const Control_State &changed) {
    if (!changed.visible || !changed.enabled)
        Release_Focus(changed);
    if (changed.kind == Control_Kind::Frame && changed.visible && Make_Missing_Controls())
        Update_Tooltips();
    HDWP moves = BeginDeferWindowPos(16);
    bool shown_or_hidden = false;
    for (const Control_State *control : Model()->controls) {
        const HWND window = Control_Window(control->index);
        if (window == nullptr || !Contains(changed, *control))
            continue;
        const bool usable = platform::Is_Usable(*Model(), *control);
        if (usable != (IsWindowEnabled(window) != FALSE))
            EnableWindow(window, usable);
        const bool visible = platform::Is_Shown(*Model(), *control);
        if (visible == ((GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0))
            continue;
        shown_or_hidden = true;
        const UINT flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW |
                           (visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
        if (moves != nullptr)
            moves = DeferWindowPos(moves, window, nullptr, 0, 0, 0, 0, flags);
        else
            SetWindowPos(window, nullptr, 0, 0, 0, 0, flags);
    }
    if (moves != nullptr)
        EndDeferWindowPos(moves);
    // Repaint later, together with the page that replaces a hidden one.
    if (shown_or_hidden)
        Redraw(platform::Place_On_Form(*Model(), changed));
}

void Dialog_Window::Update_Tooltips() {
    std::vector<HWND> windows;
    windows.reserve(natives_.size());
    for (const Native &native : natives_)
        windows.push_back(native.window);
    tooltips_.Update(window_, *Model(), windows);
}

void Dialog_Window::Control_Changed(const Control_State &control, Aspect aspect, const Rect &before) {
    // These aspects also concern the controls inside a frame, even if the frame has no window.
    if (aspect == Aspect::Bounds)
        return Place_Children(control, before);
    if (aspect == Aspect::Visible || aspect == Aspect::Enabled)
        return Update_Children(control);
    const HWND window = Control_Window(control.index);
    if (window == nullptr)
        return;
    switch (aspect) {
    case Aspect::Caption:
    case Aspect::Access:
        Set_Caption(control);
        if (control.painted) {
            InvalidateRect(window, nullptr, FALSE);
            Announce_Change(window);
        }
        break;
    case Aspect::Appearance:
        Look_Changed(control);
        if (control.kind == Control_Kind::Combo_Box)
            Place_Control(control);
        break;
    case Aspect::Items:
        Fill(control);
        Set_Caption(control);
        Show_Choice(control);
        natives_[static_cast<std::size_t>(control.index)].settled_value = control.value;
        break;
    case Aspect::Checked:
    case Aspect::Selected:
        Show_Choice(control);
        Set_Caption(control);
        natives_[static_cast<std::size_t>(control.index)].settled_value = control.value;
        break;
    case Aspect::Tooltip:
        Update_Tooltips();
        break;
    default:
        break;
    }
}

} // namespace win32

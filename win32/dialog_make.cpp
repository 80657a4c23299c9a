// Creates the native controls of dialogs: their classes, styles and order.
#include "base/scoped_value.h"
#include "win32/dialog_edit.h"
#include "win32/dialog_template.h"
#include "win32/dialog_window.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <commctrl.h>

#include <algorithm>

namespace win32 {

using platform::Control_Kind;
using platform::Control_State;

namespace {

DWORD Label_Style(const Control_State &control) {
    constexpr DWORD aligned[] = {SS_LEFT, SS_CENTER, SS_RIGHT};
    // SS_NOTIFY makes the label receive mouse messages, which its tooltip needs.
    return aligned[static_cast<int>(control.align)] | SS_NOTIFY |
           (control.centre_vertically ? SS_CENTERIMAGE : 0U) | (control.frame_colour != -1 ? WS_BORDER : 0U);
}

/// Returns the style of a text box. A multi-line box that is higher than three lines gets a scroll bar.
DWORD Text_Box_Style(const Control_State &control) {
    const bool tall = control.bounds.height > 3 * platform::Line_Height(control.font);
    const DWORD lines = control.single_line ? DWORD{ES_AUTOHSCROLL}
                                            : ES_MULTILINE | ES_AUTOVSCROLL | (tall ? WS_VSCROLL : 0U);
    return WS_TABSTOP | lines | (control.read_only ? ES_READONLY : 0U);
}

DWORD Style_Of(const Control_State &control) {
    switch (control.kind) {
    case Control_Kind::Button:
        return WS_TABSTOP | (control.is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
    case Control_Kind::Check_Box:
        return WS_TABSTOP | BS_AUTOCHECKBOX;
    case Control_Kind::Option_Button:
        return WS_TABSTOP | BS_AUTORADIOBUTTON;
    case Control_Kind::Text_Box:
        return Text_Box_Style(control);
    case Control_Kind::Combo_Box:
        return WS_TABSTOP | WS_VSCROLL | CBS_AUTOHSCROLL |
               (control.editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST);
    case Control_Kind::List_Box:
        return WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
    case Control_Kind::Tab_Strip:
        return WS_TABSTOP | WS_CLIPSIBLINGS | TCS_MULTILINE;
    case Control_Kind::Slider:
        return WS_TABSTOP | TBS_AUTOTICKS;
    case Control_Kind::Frame:
        return BS_GROUPBOX;
    case Control_Kind::Progress_Bar:
        return 0;
    case Control_Kind::Label:
    case Control_Kind::Picture_Box:
        break;
    }
    return Label_Style(control);
}

const wchar_t *Class_Of(Control_Kind kind) {
    switch (kind) {
    case Control_Kind::Text_Box:
        return L"EDIT";
    case Control_Kind::Combo_Box:
        return L"COMBOBOX";
    case Control_Kind::List_Box:
        return L"LISTBOX";
    case Control_Kind::Tab_Strip:
        return WC_TABCONTROLW;
    case Control_Kind::Slider:
        return TRACKBAR_CLASSW;
    case Control_Kind::Progress_Bar:
        return PROGRESS_CLASSW;
    case Control_Kind::Label:
    case Control_Kind::Picture_Box:
        return L"STATIC";
    case Control_Kind::Button:
    case Control_Kind::Check_Box:
    case Control_Kind::Option_Button:
    case Control_Kind::Frame:
        break;
    }
    return L"BUTTON";
}

bool Is_Sunken(Control_Kind kind) {
    return kind == Control_Kind::Text_Box || kind == Control_Kind::List_Box;
}

void Set_Slider_Steps(HWND slider, const Control_State &control) {
    SendMessageW(slider, TBM_SETLINESIZE, 0, 1);
    SendMessageW(slider, TBM_SETPAGESIZE, 0, std::max(1, (control.maximum - control.minimum) / 10));
}

} // namespace

void Dialog_Window::Create() {
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_TAB_CLASSES | ICC_BAR_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&classes);
    Adopt(Make_Dialog(L"Vellatro_" + To_Wide(Model()->name), Procedure));
    SetWindowTextW(window_, To_Wide(Model()->title).c_str());
    natives_.resize(Model()->controls.size());
    Make_Missing_Controls();
    Find_Page_Colour();
    Update_Tooltips();
    Update_Bounds();
    EnableWindow(window_, Model()->enabled);
    // A new dialog has the calendar's scale, but its screen may have another one.
    if (dots_ == 0 && Dots_Of(window_) != 0 && Dots_Of(window_) != platform::Dots_Per_Inch())
        Handle_Scale_Message(Dots_Of(window_), nullptr);
}

/// Creates the controls that have no window yet. Leaves out the controls in a hidden frame until the frame
/// appears, so that a dialog with many pages opens with the controls of only one. Returns whether it created
/// any controls.
bool Dialog_Window::Make_Missing_Controls() {
    int last_made = -1;
    const Scoped_Value updating(updating_, true);
    for (const Control_State *control : Model()->controls) {
        const bool in_sight =
            control->container == -1 ||
            platform::Is_Shown(*Model(), *Model()->controls[static_cast<std::size_t>(control->container)]);
        if (in_sight && Control_Window(control->index) == nullptr && Make_Control(*control))
            last_made = control->index;
    }
    if (last_made == -1)
        return false;
    // The Tab key visits the windows from top to bottom of their stacking order, so move the controls that
    // follow a page created late below that page.
    for (const Control_State *control : Model()->controls)
        if (control->index > last_made && control->container == -1)
            Put_Lowest(*control);
    // Move the tab strip to the bottom, because the other controls are on its page. The Tab order is
    // circular, so the bottom also comes just before the first control.
    if (const Control_State *tabs = Tab_Strip())
        Put_Lowest(*tabs);
    return true;
}

void Dialog_Window::Put_Lowest(const Control_State &control) {
    if (const HWND window = Control_Window(control.index))
        SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

HWND Dialog_Window::Make_Native(const Control_State &control) {
    const int id = First_Control_Id + control.index;
    const Rect place = Pixels_Of(control);
    const DWORD style = WS_CHILD | Group_Style(control);
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    if (control.painted) {
        native.painted = std::make_unique<Painted_Child>(*this, control.index);
        return Require_Window(
            native.painted->Make(window_, id, place, style | (control.tab_stop ? WS_TABSTOP : 0U)));
    }
    return Require_Window(CreateWindowExW(
        Is_Sunken(control.kind) ? WS_EX_CLIENTEDGE : 0, Class_Of(control.kind), nullptr,
        style | Style_Of(control), place.left, place.top, place.width, place.height, window_,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr));
}

/// Creates a control, hidden if the dialog is already visible. Returns false for a control that needs no
/// window.
bool Dialog_Window::Make_Control(const Control_State &control) {
    // A frame without a caption is invisible, so it needs no window.
    if (control.kind == Control_Kind::Frame && control.caption.empty())
        return false;
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    native.window = Make_Native(control);
    // With the style set, instead of a call to ShowWindow, the control appears together with the dialog.
    if (platform::Is_Shown(*Model(), control) && !IsWindowVisible(window_))
        SetWindowLongW(native.window, GWL_STYLE, GetWindowLongW(native.window, GWL_STYLE) | WS_VISIBLE);
    // The WS_DISABLED style alone is not enough: a combo box must also disable its text box.
    if (!platform::Is_Usable(*Model(), control))
        EnableWindow(native.window, FALSE);
    if (control.kind == Control_Kind::Text_Box) {
        Make_Text_Box(native.window);
        SendMessageW(native.window, EM_LIMITTEXT, 0, 0);
    }
    if (control.kind == Control_Kind::Combo_Box && control.editable)
        Make_Text_Box(FindWindowExW(native.window, nullptr, L"EDIT", nullptr));
    if (control.kind == Control_Kind::Slider)
        Set_Slider_Steps(native.window, control);
    if (!control.painted)
        Set_Font(control);
    Fill(control);
    Set_Caption(control);
    Show_Choice(control);
    native.settled_value = control.value;
    if (control.is_default)
        SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(First_Control_Id + control.index), 0);
    Raise_Over_Painted(control);
    return true;
}

/// Returns WS_GROUP for a control that begins a group. The option buttons of a frame and any controls
/// between them form one group, in which the arrow keys move the focus. Every other control begins a group.
DWORD Dialog_Window::Group_Style(const Control_State &control) const {
    bool before = false;
    bool after = control.kind == Control_Kind::Option_Button;
    for (const Control_State *other : Model()->controls) {
        if (other->kind != Control_Kind::Option_Button || other->container != control.container)
            continue;
        before = before || other->index < control.index;
        after = after || other->index > control.index;
    }
    return before && after ? 0U : WS_GROUP;
}

/// Raises a control above the painted controls that precede and overlap it. The system puts new windows
/// below earlier ones, but in a form later controls cover earlier ones.
void Dialog_Window::Raise_Over_Painted(const Control_State &control) {
    const auto covers = [&control](const Control_State *other) {
        return other != nullptr && other->painted && other->index < control.index &&
               other->container == control.container && other->bounds.Intersects(control.bounds);
    };
    // Usually nothing covers the control, so do not enumerate the windows.
    if (std::ranges::none_of(Model()->controls, covers))
        return;
    HWND above = nullptr;
    for (HWND window = GetWindow(window_, GW_CHILD); window != nullptr && !covers(Control_Of(window));
         window = GetWindow(window, GW_HWNDNEXT))
        above = window;
    const HWND own = Control_Window(control.index);
    if (above != own)
        SetWindowPos(own, above == nullptr ? HWND_TOP : above, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

} // namespace win32

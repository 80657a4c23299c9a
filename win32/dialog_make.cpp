// The making of the native controls of dialogs: their classes, styles and order.
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
    // With SS_NOTIFY it sees the mouse, as its tooltip wants.
    return aligned[static_cast<int>(control.align)] | SS_NOTIFY | (control.middle ? SS_CENTERIMAGE : 0U) |
           (control.frame_colour != -1 ? WS_BORDER : 0U);
}

/// A text box of more than two lines has a scroll bar.
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
    // Its screen need not have the calendar's scale, in which it is made.
    if (dots_ == 0 && Dots_Of(window_) != 0 && Dots_Of(window_) != platform::Dots_Per_Inch())
        Handle_Scale_Message(Dots_Of(window_), nullptr);
}

/// What a hidden frame holds is made when the frame is shown for the first time: a dialog of many pages opens
/// with the controls of one. Returns whether there was anything to make.
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
    // The Tab key takes the windows from the top to the bottom: those that come after a page made later lie
    // under it.
    for (const Control_State *control : Model()->controls)
        if (control->index > last_made && control->container == -1)
            Put_Lowest(*control);
    // Under all others, which lie on its page. In the circle of the Tab key its place is the same there as
    // before the first one.
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
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    if (control.painted) {
        native.painted = std::make_unique<Painted_Child>(*this, control.index);
        return Require_Window(native.painted->Make(window_, id));
    }
    return Require_Window(CreateWindowExW(Is_Sunken(control.kind) ? WS_EX_CLIENTEDGE : 0,
                                          Class_Of(control.kind), nullptr, WS_CHILD | Style_Of(control), 0, 0,
                                          0, 0, window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                          GetModuleHandleW(nullptr), nullptr));
}

/// Hidden when the dialog can be seen. Returns false for a control that needs no window.
bool Dialog_Window::Make_Control(const Control_State &control) {
    // Without a caption there is nothing to be seen of a frame.
    if (control.kind == Control_Kind::Frame && control.caption.empty())
        return false;
    Native &native = natives_[static_cast<std::size_t>(control.index)];
    native.window = Make_Native(control);
    const LONG style = GetWindowLongW(native.window, GWL_STYLE);
    const DWORD more = Group_Style(control) | (control.painted && control.tab_stop ? WS_TABSTOP : 0U) |
                       (platform::Is_Shown(*Model(), control) && !IsWindowVisible(window_) ? WS_VISIBLE : 0U);
    SetWindowLongW(native.window, GWL_STYLE, style | static_cast<LONG>(more));
    // Not by the style alone: a combo box tells its text box of it.
    EnableWindow(native.window, platform::Is_Usable(*Model(), control));
    if (control.kind == Control_Kind::Text_Box) {
        Make_Text_Box(native.window);
        SendMessageW(native.window, EM_LIMITTEXT, 0, 0);
    }
    if (control.kind == Control_Kind::Combo_Box && control.editable)
        Make_Text_Box(FindWindowExW(native.window, nullptr, L"EDIT", nullptr));
    if (control.kind == Control_Kind::Slider)
        Set_Slider_Steps(native.window, control);
    Look_Changed(control);
    Place_Control(control);
    Fill(control);
    Set_Caption(control);
    Show_Choice(control);
    native.settled_value = control.value;
    if (control.is_default)
        SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(First_Control_Id + control.index), 0);
    Raise_Over_Painted(control);
    return true;
}

/// The option buttons of one frame are one group, which the arrow keys walk; whatever else is one by itself.
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

/// Windows that were made first lie above the later ones; what is painted over in a form lies below.
void Dialog_Window::Raise_Over_Painted(const Control_State &control) {
    const auto covers = [&control](const Control_State *other) {
        return other != nullptr && other->painted && other->index < control.index &&
               other->container == control.container && other->bounds.Intersects(control.bounds);
    };
    // Nearly always there is none, and the system need not be asked for all its windows.
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

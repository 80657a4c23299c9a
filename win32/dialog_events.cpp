// Handles the user's actions on native controls: sends each to the form as an event.
#include "win32/dialog_edit.h"
#include "win32/dialog_lists.h"
#include "win32/dialog_window.h"
#include "win32/wide_text.h"

#include <commctrl.h>

#include <utility>

namespace win32 {

using platform::Control_Kind;
using platform::Input_Event;
using platform::Input_Kind;

/// Sends an event of the control to the form. Then resets the native control if the form did not accept the
/// new state.
void Dialog_Window::Send_Event(const Control_State &control, Input_Event event) {
    if (updating_)
        return;
    event.control = control.index;
    Send(event);
    // The handler may have closed the dialog.
    if (Model() == nullptr)
        return;
    Show_Choice(control);
    // Checking an option button has unchecked the others in its frame.
    for (const Control_State *other : Model()->controls) {
        if (control.kind == Control_Kind::Option_Button && other->kind == control.kind &&
            other->container == control.container)
            Show_Choice(*other);
    }
}

void Dialog_Window::Send_Event(const Control_State &control, Input_Kind kind, int selected) {
    Input_Event event = Event_Of(kind);
    event.selected = selected;
    Send_Event(control, std::move(event));
}

void Dialog_Window::Handle_Command(int id, int code) {
    if (id == IDCANCEL)
        return Cancel();
    const int index = id - First_Control_Id;
    if (Control_Window(index) == nullptr)
        return;
    const Control_State &control = *Model()->controls[static_cast<std::size_t>(index)];
    switch (control.kind) {
    case Control_Kind::Text_Box:
        if (code == EN_CHANGE)
            Text_Edited(control);
        break;
    case Control_Kind::Button:
    case Control_Kind::Check_Box:
    case Control_Kind::Option_Button:
        if (code == BN_CLICKED)
            Click(control);
        break;
    case Control_Kind::List_Box:
        List_Command(control, code);
        break;
    case Control_Kind::Combo_Box:
        Combo_Command(control, code);
        break;
    default:
        break;
    }
}

void Dialog_Window::Cancel() {
    for (const Control_State *control : Model()->controls) {
        if (!control->is_cancel)
            continue;
        if (platform::Is_Usable(*Model(), *control) && platform::Is_Shown(*Model(), *control))
            Click(*control, VK_ESCAPE);
        return;
    }
    Send(Input_Kind::Close);
}

void Dialog_Window::Click(const Control_State &control, int key) {
    Input_Event event = Event_Of(Input_Kind::Clicked);
    event.key = key;
    event.checked = SendMessageW(Control_Window(control.index), BM_GETCHECK, 0, 0) == BST_CHECKED;
    // An unchecked option button also reports a click when it gets the keyboard focus.
    if (control.kind == Control_Kind::Option_Button && !event.checked)
        return;
    Send_Event(control, std::move(event));
}

void Dialog_Window::Text_Edited(const Control_State &control) {
    if (updating_)
        return;
    Input_Event event = Event_Of(Input_Kind::Text_Changed);
    event.text = From_Wide(Without_Breaks(Window_Text(Control_Window(control.index))));
    event.control = control.index;
    Send(event);
    // A disabled form ignores a text that another program enters, so restore the old text.
    if (Model() != nullptr && !Model()->enabled)
        Set_Caption(control);
}

void Dialog_Window::List_Command(const Control_State &control, int code) {
    const int item = Selected_Item(Control_Window(control.index), control);
    if (code == LBN_SELCHANGE && item >= 0)
        Send_Event(control, Input_Kind::Selected, item);
    else if (code == LBN_DBLCLK && item >= 0)
        Send_Event(control, Input_Kind::Item_Activated, item);
}

void Dialog_Window::Combo_Command(const Control_State &control, int code) {
    const int item = Selected_Item(Control_Window(control.index), control);
    switch (code) {
    case CBN_SELCHANGE:
        if (item >= 0)
            Send_Event(control, Input_Kind::Selected, item);
        break;
    case CBN_EDITCHANGE:
        Text_Edited(control);
        break;
    case CBN_CLOSEUP:
        Combo_Closed(control);
        break;
    default:
        break;
    }
}

/// Handles the closing of a combo box's list. If the user chose no item, the native combo box selects its
/// old item or an item that begins with the typed text, and sends no notification.
void Dialog_Window::Combo_Closed(const Control_State &control) {
    const HWND combo = Control_Window(control.index);
    const int item = Selected_Item(combo, control);
    if (control.editable) {
        if (Window_Text(combo) != Without_Breaks(To_Wide(control.caption)))
            Text_Edited(control);
    } else if (item >= 0 && item != control.selected) {
        Send_Event(control, Input_Kind::Selected, item);
    }
}

void Dialog_Window::Slider_Moved(const Control_State &control, int code) {
    const HWND slider = Control_Window(control.index);
    const auto value = static_cast<int>(SendMessageW(slider, TBM_GETPOS, 0, 0));
    const bool rests = code == TB_ENDTRACK || code == TB_THUMBPOSITION;
    if (code == TB_THUMBTRACK)
        slider_tip_.Show(slider, To_Wide(control.caption));
    if (rests)
        slider_tip_.Hide();
    if (value != control.value)
        Send_Event(control, Input_Kind::Scrolled, value);
    if (Model() == nullptr || !rests)
        return;
    int &settled_value = natives_[static_cast<std::size_t>(control.index)].settled_value;
    const auto left_at = static_cast<int>(SendMessageW(slider, TBM_GETPOS, 0, 0));
    if (std::exchange(settled_value, left_at) != left_at)
        Send_Event(control, Input_Kind::Selected, left_at);
}

bool Dialog_Window::Handle_Notify(NMHDR &notice) {
    if (tooltips_.Answer(notice))
        return true;
    const Control_State *control = Control_Of(notice.hwndFrom);
    if (control == nullptr || control->kind != Control_Kind::Tab_Strip || notice.code != TCN_SELCHANGE)
        return false;
    Send_Event(*control, Input_Kind::Selected, Selected_Item(notice.hwndFrom, *control));
    return true;
}

bool Dialog_Window::Turn_Page(int step) {
    const Control_State *tabs = Tab_Strip();
    if (tabs == nullptr || tabs->items.empty() || !platform::Is_Usable(*Model(), *tabs) ||
        !platform::Is_Shown(*Model(), *tabs))
        return false;
    const auto count = static_cast<int>(tabs->items.size());
    Send_Event(*tabs, Input_Kind::Selected, (tabs->selected + step + count) % count);
    return true;
}

bool Dialog_Window::Preprocess_Message(const MSG &message) {
    if (message.message != WM_KEYDOWN)
        return false;
    const Input_Event event = Key_Event(true, message.wParam, message.lParam);
    if (event.control_key && !event.alt) {
        if (event.key == VK_TAB)
            return Turn_Page(event.shift ? -1 : 1);
        if (event.key == VK_PRIOR || event.key == VK_NEXT)
            return Turn_Page(event.key == VK_PRIOR ? -1 : 1);
    }
    const Control_State *control = Control_Of(message.hwnd);
    if (control == nullptr || control->kind != Control_Kind::List_Box || event.key == VK_TAB ||
        event.key == VK_ESCAPE)
        return false;
    // Enter on a chosen item acts on the item, not on the default button.
    const bool of_item = event.key == VK_RETURN && control->selected >= 0;
    Input_Event list_event = event;
    list_event.control = control->index;
    Send(list_event);
    return of_item || Model() == nullptr;
}

} // namespace win32

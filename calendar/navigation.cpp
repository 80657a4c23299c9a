// Steps from month to month, the keys, and what a day box does on a double click.
#include "calendar/main_frm.h"
#include "platform/message_box.h"

namespace {

// Virtual key codes.
constexpr int key_f1 = 112;
constexpr int key_f2 = 113;
constexpr int key_f3 = 114;
constexpr int key_f4 = 115;
constexpr int key_f5 = 116;

} // namespace

void Main_Frm::Next_Month() {
    if (Cur_Year >= last_year && Cur_Month == 12)
        return;
    if (++Cur_Month == 13) {
        Cur_Month = 1;
        ++Cur_Year;
    }
    Redraw();
}

void Main_Frm::Previous_Month() {
    if (Cur_Year <= first_year && Cur_Month == 1)
        return;
    if (--Cur_Month == 0) {
        Cur_Month = 12;
        --Cur_Year;
    }
    Redraw();
}

void Main_Frm::Redraw() {
    Update_Title();
    Set_Day_Headers();
    Setup_Boxes(Cur_Month, Cur_Year);
    Load_Dates();
    Set_Colours();
    Mark_Today();
}

void Main_Frm::Edit_Box(int index) {
    if (Open_Editor)
        Open_Editor(index);
}

void Main_Frm::Show_Today_Event() {
    const Date today = Today();
    const Stored_Message message = Events.Get_Message(Date_Key(today));
    // The user knows already that the file cannot be read: there may well be an event.
    if (message.incomplete && message.text.empty())
        return;
    platform::Message_Box(Today_Text(today, message.text.empty() ? "No event." : message.text), "Vellatro",
                          platform::Box_Icon::Information);
}

void Main_Frm::Form_KeyUp(const platform::Input_Event &event) {
    // Alt+F4 closes the window; its F4 is no step to the next month.
    if (event.alt)
        return;
    switch (event.key) {
    case key_f1:
        return Show_Today_Event();
    case key_f2:
        return Previous_Month();
    case key_f4:
        return Next_Month();
    case key_f3:
    case key_f5:
        return Redraw();
    default:
        return;
    }
}

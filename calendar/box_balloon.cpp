// The press of a mouse button on a day box, and the balloon with the day's event.
#include "calendar/main_frm.h"
#include "core/settings.h"

using platform::Mouse_Button;

namespace {

constexpr std::int16_t balloon_tooltips = 2;

} // namespace

void Main_Frm::Box_Mouse_Down(Mouse_Button button, int index, Point at) {
    mark_.Set_Day(Date_Of_Box(index).day);
    Update_Mark();
    if (button == Mouse_Button::Right)
        return Popup_Menu(index);
    if (Cur_Settings.Tooltips == balloon_tooltips && !Box_Caption_Lbl[index].Caption().empty())
        Balloon.Hold({Left() + at.x, Top() + at.y}, [this, index] { Show_Box_Balloon(index); });
}

void Main_Frm::Show_Box_Balloon(int index) {
    Tooltip_Box = static_cast<std::int16_t>(index);
    const Stored_Message message = Events.Get_Message(Date_Key(Date_Of_Box(index)));
    // Get_Message may have shown a message box, which takes the mouse and so counts as a release.
    if (!Balloon.Mouse_Released() && !message.text.empty())
        Balloon_Tooltip(index, message.text);
}

void Main_Frm::TimeOut(float seconds) {
    Balloon.TimeOut(static_cast<int>(seconds * 1000));
}

void Main_Frm::Balloon_Tooltip(int index, std::string_view message) {
    Balloon.Show(Date_Of_Box(index), message);
}

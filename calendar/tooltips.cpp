// The tooltips of the day boxes, and the balloon that shows a day's event while the mouse button is held.
#include "calendar/main_frm.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/locale.h"

#include <algorithm>
#include <utility>

using platform::Mouse_Button;

namespace {

constexpr float hold_time = 0.3F; // seconds
constexpr int balloon_width = 4680;
constexpr int balloon_height = 1620;
constexpr std::int16_t balloon_tooltips = 2;

float Seconds_Since_Midnight() {
    const platform::Date_Time now = platform::Now();
    return static_cast<float>(now.hour * 3600 + now.minute * 60 + now.second) +
           static_cast<float>(now.millisecond) / 1000;
}

} // namespace

void Main_Frm::Clear_Tooltips() {
    for (int i = 0; i < box_count; ++i) {
        Box_Caption_Lbl[i].Set_Tooltip({});
        Box_Lbl[i].Set_Tooltip({});
    }
}

void Main_Frm::Box_Mouse_Down(Mouse_Button button, int index) {
    mark_day_ = Date_Of_Box(index).day;
    Update_Mark();
    if (button == Mouse_Button::Right)
        return Popup_Menu(index);
    if (Cur_Settings.Tooltips == balloon_tooltips && !Box_Caption_Lbl[index].Caption().empty())
        Box_Held(index);
}

void Main_Frm::TimeOut(float seconds) {
    const float start = Seconds_Since_Midnight();
    for (float now = start; now < start + seconds && now >= start; now = Seconds_Since_Midnight()) {
        platform::Process_Waiting_Messages();
        if (ended_)
            return;
        const float left = start + seconds - std::max(Seconds_Since_Midnight(), start);
        if (left > 0)
            platform::Wait_For_Messages(static_cast<unsigned>(left * 1000) + 1);
    }
}

void Main_Frm::Box_Held(int index) {
    if (Balloon_Showing())
        return;
    Mouse_Released = false;
    held_box_ = index;
    ++holds_;
    // A second press during the wait: the wait begins anew for it, in the call that is waiting already.
    if (waiting_)
        return;
    waiting_ = true;
    unsigned hold = 0;
    do {
        hold = holds_;
        TimeOut(hold_time);
    } while (hold != holds_ && !Mouse_Released && !ended_);
    waiting_ = false;
    if (Mouse_Released || ended_)
        return;
    Tooltip_Box = static_cast<std::int16_t>(held_box_);
    const Stored_Message message = Events.Get_Message(Date_Key(Date_Of_Box(Tooltip_Box)));
    // Reading may have told the user of a failure, in a box that took the mouse.
    if (!Mouse_Released && !message.text.empty())
        Balloon_Tooltip(Tooltip_Box, message.text);
}

void Main_Frm::Balloon_Tooltip(int index, std::string_view message) {
    const Date date = Date_Of_Box(index);
    Balloon.SetBalloon(platform::Short_Date(date.year, date.month, date.day), message, "i",
                       "Tahoma, if exists", balloon_width, balloon_height);
    Balloon.Show();
    Timer2.Set_Enabled(true);
}

void Main_Frm::Hide_Balloon() {
    Mouse_Released = true;
    Timer2.Set_Enabled(false);
    Balloon.HideBalloon();
}

#include "calendar/held_balloon.h"

#include "platform/clock.h"
#include "platform/locale.h"
#include "platform/message_loop.h"
#include "platform/screen.h"

#include <algorithm>

namespace {

constexpr int hold_time = 300; // milliseconds
constexpr int balloon_width = 4680;
constexpr int balloon_height = 1620;

int Milliseconds_Since_Midnight() {
    const platform::Date_Time now = platform::Now();
    return (now.hour * 3600 + now.minute * 60 + now.second) * 1000 + now.millisecond;
}

} // namespace

Held_Balloon::Held_Balloon() {
    Timer2.On_Timer = [this] {
        if (!platform::Mouse_Button_Held())
            Hide();
    };
}

void Held_Balloon::Hold(Point at, Callback<void()> show) {
    if (Showing())
        return;
    released_ = false;
    show_ = show;
    at_ = at;
    ++press_count_;
    // If another call is already waiting, that call restarts its wait for this press.
    if (waiting_)
        return;
    waiting_ = true;
    unsigned press = 0;
    do {
        press = press_count_;
        TimeOut(hold_time);
    } while (press != press_count_ && !released_ && !ended_);
    waiting_ = false;
    if (!released_ && !ended_)
        Fire(show_);
}

void Held_Balloon::TimeOut(int milliseconds) {
    const int start = Milliseconds_Since_Midnight();
    for (int now = start; now < start + milliseconds && now >= start; now = Milliseconds_Since_Midnight()) {
        platform::Process_Waiting_Messages();
        if (ended_)
            return;
        const int left = start + milliseconds - std::max(Milliseconds_Since_Midnight(), start);
        if (left > 0)
            platform::Wait_For_Messages(static_cast<unsigned>(left) + 1);
    }
}

void Held_Balloon::Show(const Date &date, std::string_view message) {
    Window.SetBalloon(platform::Short_Date(date.year, date.month, date.day), message, "i",
                      "Tahoma, if exists", balloon_width, balloon_height, at_);
    Window.Show();
    Timer2.Set_Enabled(true);
}

void Held_Balloon::Hide() {
    released_ = true;
    Timer2.Set_Enabled(false);
    Window.HideBalloon();
}

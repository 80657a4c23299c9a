// Waits for the next shell's desktop.
#include "app/desktop_return.h"

#include "platform/message_loop.h"
#include "platform/shell.h"

using platform::Broadcast;

namespace {

/// Whether there is a desktop with an icon list that answers.
bool Desktop_Is_There() {
    constexpr unsigned patience = 100; // milliseconds
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    const platform::Shell_Window view = desktop == 0 ? 0 : platform::Find_Shell_View(desktop);
    const platform::Shell_Window list = view == 0 ? 0 : platform::Find_Icon_List(view);
    return list != 0 && platform::Icon_Label_Colours(list, patience).has_value();
}

} // namespace

Desktop_Return::Desktop_Return() {
    timer_.On_Timer = [this] { Poll(); };
    platform::Listen_To_Broadcasts([this](Broadcast broadcast) {
        // A desktop that has stood for some seconds will do, too: not every shell tells of its start, and one
        // that takes a single window down does not start at all.
        if (broadcast == Broadcast::Shell_Started)
            hits_needed_ = 1;
        else if (broadcast == Broadcast::Session_Over || broadcast == Broadcast::Close_Request)
            End();
        return true;
    });
}

Desktop_Return::~Desktop_Return() {
    platform::Listen_To_Broadcasts(nullptr);
}

bool Desktop_Return::Wait() {
    timer_.Set_Enabled(true);
    // The end of the calendar may have asked the loop to end once more than it ran.
    while (timer_.Enabled())
        platform::Run_Message_Loop();
    return desktop_found_;
}

void Desktop_Return::End() {
    timer_.Set_Enabled(false);
    platform::End_Message_Loop();
}

void Desktop_Return::Poll() {
    hits_ = Desktop_Is_There() ? hits_ + 1 : 0;
    desktop_found_ = hits_ >= hits_needed_;
    if (desktop_found_ || --polls_left_ == 0)
        End();
}

#include "app/desktop_return.h"

#include "platform/message_loop.h"
#include "platform/shell.h"

using platform::Broadcast;

namespace {

/// Returns whether a desktop exists and its icon list answers.
bool Desktop_Is_There() {
    constexpr unsigned patience = 100; // milliseconds
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    const auto icons = desktop == 0 ? std::nullopt : platform::Find_Icon_View(desktop);
    return icons && platform::Icon_Label_Colours(icons->list, patience);
}

} // namespace

Desktop_Return::Desktop_Return() {
    timer_.On_Timer = [this] { Poll(); };
    platform::Listen_To_Broadcasts([this](Broadcast broadcast) {
        // After this broadcast, one successful poll is enough. Some shells never send it, and a shell that
        // only recreates a window does not start again. Poll then requires several successes in a row.
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
    // The calendar may have called End_Message_Loop more than once, so the first run may return early.
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

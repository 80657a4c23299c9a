// The message loop, its timers and the system's broadcasts.
#pragma once

#include "base/callback.h"

#include <cstdint>
#include <string>

namespace platform {

/// Dispatches messages until End_Message_Loop ends the loop. Never call this from a handler.
void Run_Message_Loop();

/// Makes Run_Message_Loop return after the current message.
void End_Message_Loop();

/// Dispatches the waiting messages and returns.
void Process_Waiting_Messages();

/// Keeps the program's windows painted during long work. Dispatches waiting paint messages and discards
/// waiting user input, which would otherwise block the shell's icons if the calendar shares the shell's
/// input queue. All other messages, such as timers and requests to close, wait until the work is done.
void Paint_Waiting();

/// Sleeps until a message arrives, at most `milliseconds`.
void Wait_For_Messages(unsigned milliseconds);

/// The identifier of a running timer, 0: none.
using Timer_Id = std::uintptr_t;

/// Calls `tick` every `milliseconds` (1 or more) from the message loop until Stop_Timer. Skips the calls
/// while a menu is open or the user is moving a window. `tick` must not throw, and may stop its own timer.
/// Returns 0 on failure.
Timer_Id Start_Timer(unsigned milliseconds, Callback<void()> tick);
void Stop_Timer(Timer_Id id);

/// Events for the whole program rather than one window. The platform defers the first four while a menu is
/// open or the user is moving a window.
enum class Broadcast {
    Settings_Changed, ///< the regional settings, the work area or another setting changed
    Time_Changed,     ///< the system clock was set
    Display_Changed,  ///< the screen's size or colour depth changed
    Colours_Changed,  ///< the system colours or the theme changed
    Front_Changed,    ///< a window of another program came to the front; dropped during a menu or a move
    Shell_Started,    ///< a shell has created its task bar, at its first start or a restart
    Session_Ends,     ///< the user is about to log off or shut down: the last chance to save
    Session_Forced,   ///< as Session_Ends, but the system does not wait for the user's answers
    Session_Over,     ///< the session ends now, whatever the program answers
    Close_Request,    ///< another program, such as a task manager, asks the program to close
};

/// Sets the only listener to broadcasts. The listener must not throw. Its result matters only for
/// Session_Ends: false asks the system not to end the session. After Session_Forced, Message_Box shows no
/// box and returns the answer that changes least. A hidden top-level window receives the broadcasts, because
/// a window inside the shell's desktop window receives none.
void Listen_To_Broadcasts(Callback<bool(Broadcast)> listener);

/// Sets the reason for refusing Session_Ends; empty: none. Windows Vista and newer show the reason to the
/// user, and do not wait for a program without a visible window unless the program gives a reason.
void Explain_Refusal(const std::string &reason);

} // namespace platform

// The message loop, its timers and the system's broadcasts.
#pragma once

#include "base/callback.h"

#include <cstdint>
#include <string>

namespace platform {

/// Dispatches messages until End_Message_Loop is called. Must not be called from a handler.
void Run_Message_Loop();

/// Makes Run_Message_Loop return after the current message.
void End_Message_Loop();

/// Dispatches the waiting messages and returns.
void Process_Waiting_Messages();

/// Keeps the program's windows painted during long work. Dispatches waiting paint messages and discards
/// waiting user input, which would otherwise block the shell's icons if the calendar shares the shell's
/// queue. All other messages, such as timers and requests to close, wait until the work is done.
void Paint_Waiting();

/// Sleeps until a message arrives, at most `milliseconds`.
void Wait_For_Messages(unsigned milliseconds);

/// The identifier of a running timer, 0: none.
using Timer_Id = std::uintptr_t;

/// Calls `tick` every `milliseconds` (1 or more) from the message loop until Stop_Timer. Skips the calls
/// while a menu is open or the user moves a window. `tick` may stop its own timer. It must not throw. Returns
/// 0 on failure.
Timer_Id Start_Timer(unsigned milliseconds, Callback<void()> tick);
void Stop_Timer(Timer_Id id);

/// Events that the system sends to every program. The first four wait while timers wait.
enum class Broadcast {
    Settings_Changed, ///< regional settings, work area and similar
    Time_Changed,     ///< the system clock was set
    Display_Changed,  ///< the screen's size or depth
    Colours_Changed,  ///< the Windows colours
    Front_Changed,    ///< a window of another program came to the front; dropped while timers wait
    Shell_Started,    ///< a shell has created its task bar, at its first start or a restart
    Session_Ends,     ///< the user is about to log off or shut down: the last chance to save
    Session_Forced,   ///< as Session_Ends, but the system waits for no answer to a question
    Session_Over,     ///< the session ends now, whatever the program answers
    Close_Request,    ///< another program, such as a task manager, asks the program to close
};

/// Sets the only listener to broadcasts. It must not throw. Its result only matters for Session_Ends: false
/// asks the system not to end the session. After Session_Forced no message box appears; each returns the
/// answer that changes least. A hidden top-level window receives the broadcasts, because windows inside the
/// shell's desktop do not.
void Listen_To_Broadcasts(Callback<bool(Broadcast)> listener);

/// Sets the reason for refusing Session_Ends; empty: none. Windows Vista and newer show the reason to the
/// user, and do not wait for a program without a visible window unless it gives one.
void Explain_Refusal(const std::string &reason);

} // namespace platform

// The message loop, its timers and the system's broadcasts: what keeps the program alive.
#pragma once

#include "base/callback.h"

#include <cstdint>
#include <string>

namespace platform {

/// Dispatches messages until End_Message_Loop is called. Not from inside a handler.
void Run_Message_Loop();

/// Makes Run_Message_Loop return after the current message.
void End_Message_Loop();

/// Dispatches the messages that wait now, and returns.
void Process_Waiting_Messages();

/// Keeps the program's windows painted within a long piece of work: paints what has to be painted, and drops
/// what the user does with any of them. Input that waited would keep the shell's icons from theirs, where the
/// calendar shares its queue. All other messages, timers and requests to close among them, wait until the
/// work is done, so that nothing happens beside it.
void Paint_Waiting();

/// Sleeps until a message waits, at most `milliseconds`.
void Wait_For_Messages(unsigned milliseconds);

/// Identifies a running timer; 0 is none.
using Timer_Id = std::uintptr_t;

/// Calls `tick` every `milliseconds` (1 or more) from the message loop until Stop_Timer, but not while a menu
/// is open or the user moves a window. `tick` may stop its own timer. `tick` must not throw.
Timer_Id Start_Timer(unsigned milliseconds, Callback<void()> tick);
void Stop_Timer(Timer_Id id);

/// What the system tells every program. The first four wait as timers do.
enum class Broadcast {
    Settings_Changed, ///< regional settings, work area and the like
    Time_Changed,     ///< the clock was set
    Display_Changed,  ///< the screen's size or depth
    Colours_Changed,  ///< the Windows colours
    Front_Changed,    ///< a window of another program came to the front; not told where timers would wait
    Shell_Started,    ///< a shell has its task bar, the first one or one after another
    Session_Ends,     ///< the user is about to log off or shut down; the last chance to keep something
    Session_Forced,   ///< the same, but the system waits for nobody: a question would not be answered
    Session_Over,     ///< the session ends now, whatever the program says
    Close_Request,    ///< somebody asks the program to close, as a task manager does
};

/// Names the one listener of the broadcasts. It must not throw. Its answer counts for Session_Ends: false
/// asks the system not to end the session. After Session_Forced no message box appears any more: each gets
/// the answer that changes least. A hidden top-level window hears them, because windows inside the
/// shell's desktop do not.
void Listen_To_Broadcasts(Callback<bool(Broadcast)> listener);

/// Sets the reason for which Session_Ends may be refused; empty: there is none. Systems from Vista on show it
/// to the user, and do not wait for a program without a window that gives none.
void Explain_Refusal(const std::string &reason);

} // namespace platform

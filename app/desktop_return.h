// The way back after the shell has taken the calendar's window with it.
#pragma once

#include "toolkit/timer.h"

/// Waits, without a window, for the desktop of the next shell.
class Desktop_Return {
public:
    Desktop_Return();
    Desktop_Return(const Desktop_Return &) = delete;
    Desktop_Return &operator=(const Desktop_Return &) = delete;
    ~Desktop_Return();

    /// Runs the message loop. Returns whether a desktop has come within two minutes; not when the session
    /// ends or somebody asks the program to close.
    bool Wait();

private:
    void Poll();
    void End();

    Timer timer_{1000}; ///< off: the wait is over
    int polls_left_ = 120;
    int hits_needed_ = 5; ///< that find a desktop, one after another
    int hits_ = 0;
    bool desktop_found_ = false;
};

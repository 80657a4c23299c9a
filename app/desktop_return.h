// The wait for a new desktop after the shell has destroyed the calendar's window.
#pragma once

#include "toolkit/timer.h"

/// Waits for the desktop of the next shell. Needs no window.
class Desktop_Return {
public:
    Desktop_Return();
    Desktop_Return(const Desktop_Return &) = delete;
    Desktop_Return &operator=(const Desktop_Return &) = delete;
    ~Desktop_Return();

    /// Runs the message loop. Returns whether a desktop has appeared within two minutes. Returns false early
    /// if the session ends or the program gets a close request.
    bool Wait();

private:
    void Poll();
    void End();

    Timer timer_{1000}; ///< stopped when the wait is over
    int polls_left_ = 120;
    int hits_needed_ = 5; ///< successful polls in a row before the desktop counts as ready
    int hits_ = 0;
    bool desktop_found_ = false;
};

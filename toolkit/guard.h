// The last trap: what no procedure took is told to the user, and the program goes on.
#pragma once

#include "base/callback.h"

#include <string>

/// Runs `action`; an exception of it is shown in a message box that says what failed. Never throws.
void Run_Guarded(Callback_Ref<void()> action) noexcept;

/// The trap for an action that comes again and again by itself, such as a timer's: a failure is told when it
/// begins, and not again while it stays the same.
class Repeated_Guard {
public:
    void Run(Callback_Ref<void()> action) noexcept;

private:
    std::string last_failure_;
};

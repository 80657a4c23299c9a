// Handlers of last resort: they show an uncaught exception to the user, and the program continues.
#pragma once

#include "base/callback.h"

#include <string>

/// Runs `action` and shows an exception of it in a message box. Never throws.
void Run_Guarded(Callback_Ref<void()> action) noexcept;

/// Guards an action that repeats by itself, such as a timer's. Shows a failure when it first occurs, and not
/// again while it stays the same.
class Repeated_Guard {
public:
    void Run(Callback_Ref<void()> action) noexcept;

private:
    std::string last_failure_;
};

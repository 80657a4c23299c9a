// Handlers of last resort: they show an uncaught exception to the user and let the program continue.
#pragma once

#include "base/callback.h"

#include <string>

/// Runs `action`. If it throws, shows the exception in a message box.
void Run_Guarded(Callback_Ref<void()> action) noexcept;

/// A guard for an action that repeats by itself, such as a timer's. Shows a failure once, and again only
/// after a success or a different failure.
class Repeated_Guard {
public:
    void Run(Callback_Ref<void()> action) noexcept;

private:
    std::string last_failure_;
};

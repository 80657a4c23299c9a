// A timer that can be enabled and disabled.
#pragma once

#include "platform/message_loop.h"
#include "toolkit/guard.h"
#include "toolkit/handler.h"

#include <memory>

/// Calls On_Timer from the message loop every `interval_ms` milliseconds while it is enabled. Enabling a
/// disabled timer starts a new interval. If On_Timer fails in the same way at every tick, shows the failure
/// only once.
class Timer {
public:
    explicit Timer(unsigned interval_ms) : interval_ms_(interval_ms) {}
    Timer(const Timer &) = delete;
    Timer &operator=(const Timer &) = delete;
    ~Timer() { Set_Enabled(false); }

    bool Enabled() const { return id_ != 0; }
    void Set_Enabled(bool enabled);

    Handler<> On_Timer;

private:
    unsigned interval_ms_;
    platform::Timer_Id id_ = 0;
    std::shared_ptr<Repeated_Guard> guard_; ///< new each time the timer is enabled
};

#include "toolkit/timer.h"

#include <utility>

void Timer::Set_Enabled(bool enabled) {
    if (enabled == Enabled())
        return;
    if (enabled) {
        guard_ = std::make_shared<Repeated_Guard>();
        id_ = platform::Start_Timer(interval_ms_, [this] {
            // Copy both, because the handler may enable the timer again or destroy the timer's owner.
            const auto guard = guard_;
            const auto handler = On_Timer;
            if (handler)
                guard->Run([&handler] { handler(); });
        });
    } else {
        platform::Stop_Timer(std::exchange(id_, 0));
    }
}

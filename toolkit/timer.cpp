// The switch of a timer and the trap around its ticks.
#include "toolkit/timer.h"

#include "toolkit/guard.h"

#include <memory>
#include <utility>

void Timer::Set_Enabled(bool enabled) {
    if (enabled == Enabled())
        return;
    if (enabled) {
        const auto guard = std::make_shared<Repeated_Guard>();
        id_ = platform::Start_Timer(interval_, [this, guard] {
            // Copies, because the handler may switch the timer off or end its owner.
            const auto kept = guard;
            const auto handler = On_Timer;
            if (handler)
                kept->Run([&handler] { handler(); });
        });
    } else {
        platform::Stop_Timer(std::exchange(id_, 0));
    }
}

#include "transfer/progress.h"

#include "platform/clock.h"

namespace {

constexpr unsigned first_wait = 1000; ///< in milliseconds
constexpr unsigned next_wait = 500;
/// The number of steps between two readings of the clock. A reading takes longer than a step.
constexpr unsigned steps_per_reading = 64;

} // namespace

void Progress::Begin() {
    start_time_ = platform::Milliseconds();
    wait_ = first_wait;
    steps_ = 0;
}

bool Progress::Due() {
    return ++steps_ % steps_per_reading == 0 && platform::Milliseconds() - start_time_ >= wait_;
}

void Progress::Show(std::size_t done, std::size_t total) {
    if (On_Show)
        On_Show(total == 0
                    ? 100
                    : static_cast<int>(100.0 * static_cast<double>(done) / static_cast<double>(total)));
    // Count from now, because showing the progress takes time, too.
    wait_ = platform::Milliseconds() - start_time_ + next_wait;
}

void Progress::End() {
    if (On_End)
        On_End();
}

// The clock stands still at the time that the test sets.
#include "platform/clock.h"
#include "tests/fakes/fakes.h"

namespace platform {

Date_Time Now() {
    return Fakes().now;
}

} // namespace platform

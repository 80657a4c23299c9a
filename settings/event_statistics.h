// The counts of events on the "Events" page. events_page.h has the labels that show them.
#pragma once

#include "core/date.h"
#include "core/events.h"

#include <array>
#include <cstdint>

/// The counts of events. A counter stops at 32767.
struct Event_Statistics {
    std::int16_t total = 0; ///< this counter and the next three leave out yearly events
    std::int16_t this_year = 0;
    std::int16_t future = 0; ///< later than today
    std::int16_t past = 0;
    std::array<std::int16_t, 12> months{}; ///< this year's events by month, and all yearly ones
    friend bool operator==(const Event_Statistics &, const Event_Statistics &) = default;
};

/// Adds one event to the counts.
void Workout_Stats(Event_Statistics &statistics, const Event &event, const Date &today);

// The counts of events on the Events page. The labels that show them are in events_page.h.
#pragma once

#include "core/date.h"
#include "core/event_entries.h"

#include <array>
#include <cstdint>

/// How many events there are. A counter that is full stays at its greatest value.
struct Event_Statistics {
    std::int16_t total = 0; ///< this and the next three count no yearly events
    std::int16_t this_year = 0;
    std::int16_t future = 0; ///< later than today
    std::int16_t past = 0;
    std::array<std::int16_t, 12> months{}; ///< of this year, with all yearly events
    friend bool operator==(const Event_Statistics &, const Event_Statistics &) = default;
};

/// Counts one event in.
void Workout_Stats(Event_Statistics &statistics, const Event &event, const Date &today);

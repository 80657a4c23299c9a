// Merging the events of a calendar file into the records of the data file, in memory. merging.h merges a
// single event.
#pragma once

#include "transfer/event_days.h"

#include <cstddef>
#include <string>
#include <vector>

/// The events of a calendar file, counted by their outcome.
struct Merge_Counts {
    std::size_t imported = 0;
    std::size_t already_there = 0; ///< on all of their days
    std::size_t skipped = 0;       ///< without any days
    std::size_t unsupported = 0;   ///< on their first day only, because their repetition is not supported
};

/// Merges each event of a calendar file into the records of its days. Skips the days that already have the
/// event's text.
Merge_Counts Merge_Calendar(const Calendar_File &file, const Event_Days &days,
                            std::vector<std::string> &records);

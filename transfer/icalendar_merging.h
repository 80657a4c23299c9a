// The events of a calendar file folded into the records of the data file, in memory. How a single event joins
// a record is in merging.h.
#pragma once

#include "transfer/event_days.h"

#include <cstddef>
#include <string>
#include <vector>

/// What has become of the events of a calendar file.
struct Join_Counts {
    std::size_t imported = 0;
    std::size_t already_there = 0; ///< on all of their days
    std::size_t skipped = 0;       ///< they have no days
    std::size_t unsupported = 0;   ///< of the first two, those whose repetition is not known here
};

/// Folds the events of a calendar file into the records, on each of their days on which their texts do not
/// stand yet.
Join_Counts Join_Events(const Calendar_File &file, const Event_Days &days, std::vector<std::string> &records);

// Imported events folded into the records of the data file, in memory.
#pragma once

#include "core/date.h"
#include "transfer/event_days.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

/// Folds events into the records as they are stored: an event joins the first record of its day, be that one
/// an exact or an every-year one, and otherwise becomes the last record. Knows each day's first record, so
/// that no event costs a search.
class Record_Merger {
public:
    /// `records` must outlive the merger, and nobody else may change it.
    explicit Record_Merger(std::vector<std::string> &records);
    void Merge(const Date &date, const std::string &text);

private:
    std::vector<std::string> &records_;
    std::unordered_map<std::string, std::size_t> first_; ///< key to index
};

/// What has become of the events of a calendar file.
struct Join_Counts {
    std::size_t imported = 0;
    std::size_t already_there = 0;  ///< on all of their days
    std::size_t passed_over = 0;    ///< they have no days
    std::size_t not_understood = 0; ///< of the first two, those whose repetition is not known here
};

/// Folds the events of a calendar file into the records, on each of their days on which their texts do not
/// stand yet.
Join_Counts Join_Events(const Calendar_File &file, const Event_Days &days, std::vector<std::string> &records);

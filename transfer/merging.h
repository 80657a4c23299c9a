// Merging imported events into the stored records, and removing one of them again.
#pragma once

#include "core/events.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Separates the texts of events that share a record.
inline constexpr std::string_view text_separator = " + ";

/// Merges events into the stored records. An event joins the first record of its day, exact or yearly, or
/// becomes a new last record. The merger remembers the first record of each day, so that no event needs a
/// search.
class Record_Merger {
public:
    /// `records` must outlive the merger, and nothing else may change it meanwhile.
    explicit Record_Merger(std::vector<std::string> &records);
    /// Adds the event's text to its day, which may be a day of `every_year`. Sets the event's key to that of
    /// the record, and its place to that of the text in the record.
    void Merge(Event &event);

private:
    std::vector<std::string> &records_;
    std::unordered_map<std::string, std::size_t> first_; ///< key to index
};

/// Removes event number `line` from `staged`, which holds merged events in the order of their merging. Also
/// removes the event's text from its record, or the whole record if it holds nothing else. If the text is no
/// longer in the records, removes only the event and returns false.
bool Unmerge(std::vector<std::string> &records, std::vector<Event> &staged, std::size_t line);

// How imported events join those that are stored, and how one of them is taken out again. How they are read
// is in csv.h.
#pragma once

#include "core/event_entries.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Stands between the texts of a record that several events have joined.
inline constexpr std::string_view text_separator = " + ";

/// Folds events into the records as they are stored: an event joins the first record of its day, be that one
/// an exact or an every-year one, and otherwise becomes the last record. Knows each day's first record, so
/// that no event costs a search.
class Record_Merger {
public:
    /// `records` must outlive the merger, and nobody else may change it.
    explicit Record_Merger(std::vector<std::string> &records);
    /// Stores the event's text on its day, and notes the key and the place where it is now. A day of
    /// `every_year` is that of all years.
    void Merge(Event &event);

private:
    std::vector<std::string> &records_;
    std::unordered_map<std::string, std::size_t> first_; ///< key to index
};

/// Takes the event of a line of `staged`, which were merged in this order, out of both lists: out of its
/// record the text that joined it, and the whole record when it holds nothing else. False when the records do
/// not hold it any more; then only the line goes.
bool Unmerge(std::vector<std::string> &records, std::vector<Event> &staged, std::size_t line);

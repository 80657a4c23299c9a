// Reads the data file one event at a time, for the list of all events and for the export. These functions
// show no messages and skip malformed records. The calendar itself reads through core/event_store.h, which
// reports failures.
#pragma once

#include "base/callback.h"
#include "core/date.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// An event of the data file or of an import.
struct Event {
    Date date; ///< yearly: the year passed to the reader, or `every_year` for an event of a calendar file
    bool yearly = false;
    std::string key{}; ///< the record's key, as written in the data file
    std::string text{};
    std::size_t place = 0; ///< index of the record in the file; for an imported event, offset of its text in
                           ///< the record's text
};

/// Reads a record into `event`. The key of a yearly event has the year "9999" or "yyyy"; the event gets the
/// year `year`. In a year without 29 February, a yearly event of that day moves to the 28th, so that it stays
/// in February. Returns false for a malformed record: one without "=", or with a key that is not an existing
/// date of the year 100 or later.
bool Parse_Event(std::string_view record, std::int16_t year, Event &event);

enum class Read_Result {
    No_File,
    Incomplete, ///< reading failed before the end of the file
    Complete
};

/// Calls `take` for each event of the data file, in file order. Yearly events get the year `year`.
Read_Result Read_Events(std::int16_t year, Callback_Ref<void(const Event &)> take);

enum class Sort_Order { Ascending_Date, Descending_Date, Date_Added };

/// Replaces `events` with the events of the data file, sorted by `order`. Events of one day keep their file
/// order, or its reverse in descending order. Skips everything that it cannot read. Yearly events get the
/// year of `today`.
Read_Result Load_Events(std::vector<Event> &events, Sort_Order order, const Date &today);

/// Removes the record of the event from `records`, the items of the data file. Returns false if the record is
/// not among them.
bool Remove_Record(std::vector<std::string> &records, const Event &event);

/// Returns the start of an event's line: the date in the user's short format, a note for a yearly event, and
/// a separator.
std::string Date_Prefix(const Event &event);

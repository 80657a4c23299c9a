// Reading the data file one event at a time, for the list of all events and for the export. This reading
// shows no messages and skips malformed records. The calendar's own reading, which reports failures, is in
// core/event_store.h.
#pragma once

#include "base/callback.h"
#include "core/date.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// One event of the data file. The views are valid only during the call that receives the entry.
struct Event_Entry {
    std::string_view key; ///< as written in the file
    std::string_view text;
    Date date; ///< the year of a yearly event is `every_year`
    bool yearly = false;
    std::size_t place = 0; ///< index of the record among the items of the file
};

/// Reads the parts of a record into `entry`. The year of a yearly event is "9999" or "yyyy", and its day may
/// be 29 February. Returns false for a malformed record: one without "=", or whose key is not a date in the
/// calendar's years.
bool Read_Entry(std::string_view record, Event_Entry &entry);

enum class Read_Result {
    No_File,
    Incomplete, ///< the file, or the rest of it, could not be read
    Complete
};

/// Calls `take` for each event of the data file, in file order. Shows no message.
Read_Result Read_Entries(Callback_Ref<void(const Event_Entry &)> take);

/// Returns the date of an event; a yearly event gets the year `year`. In a year without 29 February, a yearly
/// event of that day moves to the 28th, so that it stays in its month and counts there.
Date Day_In_Year(const Event_Entry &entry, std::int16_t year);

enum class Sort_Order { Ascending_Date, Descending_Date, Date_Added };

/// One event, ready to be sorted and shown.
struct Event {
    std::int32_t number = 0; ///< day number of `date`
    Date date;               ///< a yearly event has the current year
    bool yearly = false;
    std::string key; ///< key of the record, as written in the data file
    std::string text;
    std::size_t place = 0; ///< index of the record in the file; for an imported event, offset of its text in
                           ///< the record's text
};

/// Replaces `entries` by the events of the data file, sorted by `order`. Events of one day keep their file
/// order, or its reverse in descending order. Skips everything that cannot be read. Yearly events get the
/// year of `today`.
Read_Result Load_Entries(std::vector<Event> &entries, Sort_Order order, const Date &today);

/// Removes the record of the event from `records`, the items of the data file. Returns false if the record is
/// not among them.
bool Remove_Record(std::vector<std::string> &records, const Event &event);

/// Returns the beginning of an event's line: its date in the user's short format and a separator.
std::string Line_Head(const Event &entry);

// The data file read one event at a time, for the list of all events and their export: silently, and past
// malformed records. The calendar's own reading, which tells of failures, is in core/event_store.h.
#pragma once

#include "base/callback.h"
#include "core/date.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// One event of the data file. The views last for the call that gets it.
struct Event_Entry {
    std::string_view key; ///< as it is written in the file
    std::string_view text;
    Date date; ///< of a yearly event the year is `every_year`
    bool yearly = false;
    std::size_t place = 0; ///< of the record among the items of the file, from 0
};

/// Takes a record apart; false for a malformed one: without "=" or with a key that is no day of the years
/// that the calendar shows. The year of a yearly event is "9999" or "yyyy"; it can be on 29 February.
bool Read_Entry(std::string_view record, Event_Entry &entry);

enum class Read_Result {
    No_File,
    Incomplete, ///< the file, or the rest of it, cannot be read
    Complete
};

/// Calls `take` for each event of the data file in file order. Shows no message.
Read_Result Read_Entries(Callback_Ref<void(const Event_Entry &)> take);

/// The day of an event's date, of a yearly one in `year`. In a year without a 29 February its events are on
/// the 28th: the event stays in its month, where it is counted too.
Date Day_In_Year(const Event_Entry &entry, std::int16_t year);

enum class Sort_Order { Ascending_Date, Descending_Date, Date_Added };

/// One event, ready to be sorted and shown.
struct Event {
    std::int32_t number = 0; ///< day number of the date
    Date date;               ///< of a yearly event in the current year
    bool yearly = false;
    std::string key; ///< of its record, as it is written in the data file
    std::string text;
    std::size_t place = 0; ///< of its record in the file; of an imported event, of its text in the record's
};

/// Replaces `entries` by the events of the data file, by `order`: by date, the events of a day in file order
/// and, descending, in the reverse of that; or all in file order. What cannot be read is left out.
Read_Result Load_Entries(std::vector<Event> &entries, Sort_Order order, const Date &today);

/// Takes the record of the event out of `records`, the items of the data file. False when it is not among
/// them any more.
bool Remove_Record(std::vector<std::string> &records, const Event &event);

/// What stands before the text in the line of an event: its date in the user's short form, and the separator.
std::string Line_Head(const Event &entry);

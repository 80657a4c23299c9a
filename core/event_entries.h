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

/// One event, of the data file or of an import.
struct Event {
    Date date; ///< of a yearly event in the current year
    bool yearly = false;
    std::string key{}; ///< of its record, as it is written in the data file
    std::string text{};
    std::size_t place = 0; ///< of its record in the file; of an imported event, of its text in the record's
};

/// Takes a record apart; false for a malformed one: without "=" or with a key that is no day of the years
/// that the calendar shows. The year of a yearly event is "9999" or "yyyy"; it gets its day in `year`. In a
/// year without a 29 February its events are on the 28th: the event stays in its month, where it is counted
/// too.
bool Parse_Event(std::string_view record, std::int16_t year, Event &event);

enum class Read_Result {
    No_File,
    Incomplete, ///< the file, or the rest of it, cannot be read
    Complete
};

/// Calls `take` for each event of the data file in file order, with yearly ones on their days in `year`.
/// Shows no message.
Read_Result Read_Events(std::int16_t year, Callback_Ref<void(const Event &)> take);

enum class Sort_Order { Ascending_Date, Descending_Date, Date_Added };

/// Replaces `events` by the events of the data file, by `order`: by date, the events of a day in file order
/// and, descending, in the reverse of that; or all in file order. What cannot be read is left out.
Read_Result Load_Events(std::vector<Event> &events, Sort_Order order, const Date &today);

/// Takes the record of the event out of `records`, the items of the data file. False when it is not among
/// them any more.
bool Remove_Record(std::vector<std::string> &records, const Event &event);

/// What stands before the text in the line of an event: its date in the user's short form, and the separator.
std::string Line_Head(const Event &event);

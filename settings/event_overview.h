// The overview of all events: sort entries made from the data file, and the line that shows one. The list box
// that holds the lines is in events_page.h.
#pragma once

#include "core/date.h"
#include "settings/event_entries.h"

#include <cstdint>
#include <string>
#include <vector>

enum class Sort_Order { Ascending_Date, Descending_Date, Date_Added };

/// One event, ready to be sorted and shown.
struct Sort_Entry {
    std::int32_t number = 0; ///< day number of the date
    Date date;               ///< of a yearly event in the current year
    bool yearly = false;
    std::string key; ///< of its record, as it is written in the data file
    std::string text;
};

/// Replaces `entries` by the events of the data file, by `order`: by date, the events of a day in file order
/// and, descending, in the reverse of that; or all in file order. What cannot be read is left out.
Reading Load_Entries(std::vector<Sort_Entry> &entries, Sort_Order order, const Date &today);

/// The line of an event: its date in the user's short form, the separator and the text, in which every line
/// end or other control character is a blank.
std::string Overview_Line(const Sort_Entry &entry);

/// "12 days" from today to the event, with a "-" for a past one.
std::string Countdown_Text(const Sort_Entry &entry, const Date &today);

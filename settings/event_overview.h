// The overview of all events: the line that shows one. The list box that holds the lines is in events_page.h,
// the reading and sorting in core/event_entries.h.
#pragma once

#include "core/event_entries.h"

#include <string>

/// The line of an event: its date in the user's short form, the separator and the text, in which every line
/// end or other control character is a blank.
std::string Overview_Line(const Event &event);

/// "12 days" from today to the event, with a "-" for a past one.
std::string Countdown_Text(const Event &event, const Date &today);

// The lines of the overview of all events. events_page.h has the list box; core/events.h reads and sorts the
// events.
#pragma once

#include "core/events.h"

#include <string>

/// Returns the line of an event: its date in the user's short form, the separator and the text. Line endings
/// and other control characters become spaces.
std::string Overview_Line(const Event &event);

/// Returns the number of days from today to the event: "12 days", or "-12 days" for a past event.
std::string Countdown_Text(const Event &event, const Date &today);

// Placing the events of a calendar file on the days of the program's calendar.
#pragma once

#include "transfer/icalendar.h"

#include <cstdint>
#include <string>
#include <vector>

/// An event on one of its days. All days of one occurrence carry the time of its beginning, so that they show
/// the same text.
struct Event_Day {
    std::uint32_t event = 0;  ///< index in the file
    std::int16_t minute = -1; ///< of the day; -1: an all-day event
    Date date;                ///< a yearly event has the year `every_year`
};

/// The days of a file's events. The days of each event are adjacent.
struct Event_Days {
    std::vector<Event_Day> days;
    /// The number of events that fall on their first day only, because their rule is not supported.
    std::size_t unsupported = 0;
};

/// Returns the days of all events. An event without repetitions falls on all of its days, and a plain yearly
/// event on its days in every year. Any other repeating event falls on at most 1,000 days, from the first of
/// the month before `today` to the end of the next year. A single occurrence lasts at most 366 days. An event
/// has no days if it is cancelled, if it has no start or no text, or if it lies outside these limits or the
/// calendar's years.
Event_Days Find_Event_Days(const Calendar_File &file, const Date &today, Progress &progress);

/// Returns the event's text, preceded by the time of day unless `day` is of an all-day event.
std::string Text_On(const Event_Day &day, const Calendar_Event &event);

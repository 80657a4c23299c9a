// On which days of the program's calendar the events of a calendar file fall, and at which times.
#pragma once

#include "transfer/icalendar.h"

#include <cstdint>
#include <string>
#include <vector>

/// An event on one of its days. Of an event of several days each has the time at which it begins, so that all
/// of its days read the same.
struct Event_Day {
    std::uint32_t event = 0;  ///< its index in the file
    std::int16_t minute = -1; ///< of the day; -1: it is one of whole days
    Date date;                ///< of an event of every year with `every_year`
};

/// The days of a file's events, those of an event together.
struct Event_Days {
    std::vector<Event_Day> days;
    std::size_t unsupported = 0; ///< events that are on their first day only, because of their rule
};

/// Finds the days of all events. An event that is not repeated has its own days, one of every year all years,
/// and any other repetition its days from the first of the month before `today` to the end of the year after,
/// at most 1,000. An event is on at most 366 days. One without a start or a text, a cancelled one, and one
/// beyond the years of the calendar, is on none.
Event_Days Find_Event_Days(const Calendar_File &file, const Date &today, Progress &progress);

/// The text of an event on a day: the time before its own.
std::string Text_On(const Event_Day &day, const Calendar_Event &event);

// Moments, durations and repetitions as calendar files write them, and the days on which a repetition falls.
// Nothing here knows of time zones or events.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

constexpr std::int64_t seconds_a_day = 86400;

/// A date, or a date and time by the clock for which it is written.
struct Moment {
    std::int64_t seconds = 0; ///< from the beginning of day 0 (core/date.h); of a date at its beginning
    bool timed = false;
    bool utc = false; ///< by Coordinated Universal Time and not by a local clock
};

/// The day on which a number of seconds falls, and the seconds of that day.
std::int32_t Day_Of(std::int64_t seconds);
std::int64_t Second_Of_Day(std::int64_t seconds);

/// Reads 20020305, 20020305T1030, 20020305T103000 or 20020305T103000Z of the years 0 to 9999, in any letter
/// case. Nothing for a text that is no such date.
std::optional<Moment> Read_Moment(std::string_view text);

/// Reads a duration such as P1D, PT1H30M or -P2W in seconds. Nothing for a text that is none.
std::optional<std::int64_t> Read_Duration(std::string_view text);

/// A weekday that repeats, in a month or a year perhaps only the first or the last but one.
struct Repeated_Weekday {
    int weekday = 0; ///< Sunday = 0
    int ordinal = 0; ///< 0: each; less than 0: from the end
};

/// A rule by which something repeats on whole days, always at the time of day of its start. A list that is
/// empty limits nothing. Numbers below 0 count from the end.
struct Recurrence {
    enum Frequency { Daily, Weekly, Monthly, Yearly };
    enum List {
        Months,
        Week_Numbers,
        Year_Days,
        Month_Days,
        Set_Positions,
        Hours,
        Minutes,
        Seconds,
        List_Count
    };
    Frequency frequency = Daily;
    std::int64_t interval = 1;
    std::optional<std::int64_t> count;
    std::optional<Moment> until; ///< the last moment that may be one
    int week_start = 1;
    std::array<std::vector<int>, List_Count> numbers;
    std::vector<Repeated_Weekday> weekdays;
};

/// Reads a rule, and completes it by what it takes from its start. Nothing for a rule that is not understood
/// to its last part, or that repeats within the day.
std::optional<Recurrence> Read_Recurrence(std::string_view text, const Moment &start);

/// Whether the rule only says "on this day of each year, without an end".
bool Is_Plain_Yearly(const Recurrence &rule, const Moment &start);

/// Adds to `moments` the moments of the rule on the days `first` to `last`, in their order, at most
/// `most`. Those of Coordinated Universal Time are counted by that clock; `until` must be by the same clock
/// as `start`. False, with nothing added, for a rule whose count begins too long before `first` to be
/// counted.
bool Expand_Recurrence(const Recurrence &rule, const Moment &start, std::int32_t first, std::int32_t last,
                       std::size_t most, std::vector<std::int64_t> &moments);

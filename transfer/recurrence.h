// Moments, durations and repetitions as calendar files write them, and the expansion of repetitions into
// days. Time zones and events are not known here.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

constexpr std::int64_t seconds_a_day = 86400;

/// A date, or a date and time by the clock for which it is written.
struct Moment {
    std::int64_t seconds = 0; ///< since the beginning of day 0 (core/date.h); a date counts as its beginning
    bool timed = false;
    bool utc = false; ///< in Coordinated Universal Time (UTC) instead of local time
};

/// Returns the day of a time in seconds, or the seconds since the beginning of that day.
std::int32_t Day_Of(std::int64_t seconds);
std::int64_t Second_Of_Day(std::int64_t seconds);

/// Reads 20020305, 20020305T1030, 20020305T103000 or 20020305T103000Z, in any letter case, for the years 0 to
/// 9999. Returns nullopt for any other text.
std::optional<Moment> Read_Moment(std::string_view text);

/// Reads a duration such as P1D, PT1H30M or -P2W and returns it in seconds. Returns nullopt for any other
/// text.
std::optional<std::int64_t> Read_Duration(std::string_view text);

/// A weekday in a rule, optionally limited by an ordinal, such as the first or the second to last of a month
/// or year.
struct Repeated_Weekday {
    int weekday = 0; ///< Sunday = 0
    int ordinal = 0; ///< 0: every one; negative: from the end
};

/// A rule that repeats on whole days, at the time of day of its start. An empty list sets no limit. Negative
/// numbers count from the end.
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
    std::int64_t interval = 1; ///< in the unit of `frequency`
    std::optional<std::int64_t> count;
    std::optional<Moment> until; ///< the latest possible repetition
    int week_start = 1;          ///< Sunday = 0
    std::array<std::vector<int>, List_Count> numbers;
    std::vector<Repeated_Weekday> weekdays;
};

/// Reads a rule and completes it with limits from its start. Returns nullopt if any part of the rule is
/// unknown, or if it repeats more than once a day.
std::optional<Recurrence> Read_Recurrence(std::string_view text, const Moment &start);

/// Returns whether the rule means exactly: on this date of every year, forever.
bool Is_Plain_Yearly(const Recurrence &rule, const Moment &start);

/// Appends the moments of the rule on the days `first` to `last` to `moments`, in order, at most `most` of
/// them. Moments are by the clock of `start`, UTC or local, and `until` must be by the same clock. Returns
/// false and adds nothing if the rule has a count and starts more than a hundred years before `first`.
bool Expand_Recurrence(const Recurrence &rule, const Moment &start, std::int32_t first, std::int32_t last,
                       std::size_t most, std::vector<std::int64_t> &moments);

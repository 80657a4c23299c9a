// Moments, durations and repetitions as calendar files write them, and the expansion of repetitions into
// days. The functions know neither time zones nor events.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

constexpr std::int64_t seconds_a_day = 86400;

/// A date, or a date and time by the clock of its zone.
struct Moment {
    std::int64_t seconds = 0; ///< since day 0 began (core/date.h); a date counts as the beginning of its day
    bool timed = false;
    bool utc = false; ///< in Coordinated Universal Time (UTC) instead of local time
};

/// Return the day of a time in seconds, and the seconds since the beginning of that day.
std::int32_t Day_Of(std::int64_t seconds);
std::int64_t Second_Of_Day(std::int64_t seconds);

/// Returns the moment of a text such as 20020305, 20020305T1030, 20020305T103000 or 20020305T103000Z, in any
/// letter case, for the years 0 to 9999. Returns nullopt for any other text.
std::optional<Moment> Read_Moment(std::string_view text);

/// Returns a duration such as P1D, PT1H30M or -P2W in seconds, or nullopt for any other text.
std::optional<std::int64_t> Read_Duration(std::string_view text);

/// A weekday in a rule, optionally limited by an ordinal, such as the first or the second to last of a month
/// or year.
struct Repeated_Weekday {
    int weekday = 0; ///< Sunday = 0
    int ordinal = 0; ///< 0: every one; negative: from the end
};

/// A rule that repeats at most once a day, at the time of day of its start. An empty list sets no limit.
/// Negative numbers count from the end.
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

/// Returns the rule that `text` describes, completed with limits from its start. Returns nullopt if any part
/// of the rule is unknown or invalid, or if the rule repeats at any time of day other than the start's.
std::optional<Recurrence> Read_Recurrence(std::string_view text, const Moment &start);

/// Returns whether the rule repeats on the date of its start in every year, forever, and on no other date.
bool Is_Plain_Yearly(const Recurrence &rule, const Moment &start);

/// Appends to `moments` the first `most` moments of the rule on the days from `first` to `last`, in order.
/// Moments are by the clock of `start`, UTC or local, and `until` must be by the same clock. Returns false
/// and adds nothing if the rule has a count and starts more than a hundred years before `first`.
bool Expand_Recurrence(const Recurrence &rule, const Moment &start, std::int32_t first, std::int32_t last,
                       std::size_t most, std::vector<std::int64_t> &moments);

// Formats the calendar's title, and times by the patterns that users type.
#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Formats a time by a pattern of these fields; every other character is literal:
///   H, HH, h, hh  the hour: 1 to 12 if the pattern contains AM/PM or A/P, otherwise 0 to 23
///   m, mm         minutes if the field before is an hour or the field after is seconds, otherwise the month
///   s, ss         seconds
///   d, dd         the day
///   yy, yyyy      the year
///   AM/PM, A/P    the half of the day, in the letter case of the pattern
/// Doubled letters pad with a zero. Longer runs count as the longest form of the field; a single y is
/// literal. "\" makes the next character literal, and quotes make the text between them literal; an unclosed
/// quote extends to the end. Every pattern is valid. Only the first 255 bytes of a pattern count, so the
/// result has at most 510 bytes.
std::string Format_Pattern(std::string_view pattern, const platform::Date_Time &time);

/// Returns the date formats of the title.
const std::vector<std::string> &Bar_Date_Formats();

/// Returns the title of a calendar that shows the month of `now`. An unknown `date_format` counts as
/// "Weekday - d month - yyyy".
std::string Title_Of_Today(bool show_time, const std::string &time_format, const std::string &date_format,
                           const platform::Date_Time &now);

/// Returns the title of a calendar that shows `month` of `year` at the time `now`. If that is the current
/// month and `date_format` is unknown, sets "Bar Date Format" in Cur_Settings and in the store to "Weekday -
/// d month - yyyy". If the store refuses, the next start tries again.
std::string Bar_Date_Text(bool show_time, const std::string &time_format, const std::string &date_format,
                          std::int16_t month, std::int16_t year, const platform::Date_Time &now);

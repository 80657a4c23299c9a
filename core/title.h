// The text of the calendar's title, and the formatter of the patterns that users type for its time.
#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Formats a time by a pattern of these fields; all else stands for itself:
///   H, HH, h, hh  the hour; with an AM/PM or A/P anywhere in the pattern 1 to 12, else 0 to 23
///   m, mm         minutes where the field before it is an hour or the one after it seconds, else the month
///   s, ss         seconds
///   d, dd         the day
///   yy, yyyy      the year
///   AM/PM, A/P    the half of the day, in the letter case of the pattern
/// Two letters pad with a zero. More letters than a field has count as its longest form; one y alone is text.
/// "\" makes the next character text, and quotes all that is between them (an open quote: to the end). Any
/// pattern gives something: of one longer than 255 bytes the rest is left out, so that the result is at most
/// 510 bytes.
std::string Format_Pattern(std::string_view pattern, const platform::Date_Time &time);

/// The date formats of the title.
const std::vector<std::string> &Bar_Date_Formats();

/// The title of a calendar that shows the month of `now`. An unknown `date_format` counts as "Weekday - d
/// month - yyyy".
std::string Title_Of_Today(bool show_time, const std::string &time_format, const std::string &date_format,
                           const platform::Date_Time &now);

/// The title of a calendar that shows `month` of `year` at the time `now`. In place of an unknown
/// `date_format` the name "Weekday - d month - yyyy" is written back to the setting "Bar Date Format": to
/// Cur_Settings and to the store. A store that refuses keeps its name, which is repaired again at the next
/// start; that is no error of the title.
std::string Bar_Date_Text(bool show_time, const std::string &time_format, const std::string &date_format,
                          std::int16_t month, std::int16_t year, const platform::Date_Time &now);

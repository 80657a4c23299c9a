// Names and dates according to the user's regional settings. All dates are Gregorian, whichever calendar the
// user has chosen.
#pragma once

#include "platform/clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// Returns the full name of a month, 1 to 12.
std::string Month_Name(int month);

/// Returns the full or the abbreviated name of a weekday, Sunday = 0 to Saturday = 6.
std::string Weekday_Name(int weekday);
std::string Short_Weekday_Name(int weekday);

/// Returns the first day of the user's week, Sunday = 0 to Saturday = 6.
int First_Weekday();

/// Returns the date in the user's short date format. The year is 100 to 9999. Read_Date reads the text as
/// the same date if the format shows all digits of the year.
std::string Short_Date(int year, int month, int day);

/// Returns a date and time of day in the user's short date format and time format.
std::string Date_Time_Text(const Date_Time &time);

/// Returns the date in `text`. The regional settings determine the order of day and month. Ignores a time of
/// day. Returns nothing if the text is not a date of the years 100 to 9999.
std::optional<Date_Time> Read_Date(std::string_view text);

} // namespace platform

// What the user's regional settings say about names and dates. All dates are Gregorian, whichever calendar
// the user has there.
#pragma once

#include "platform/clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// Full name of month 1 to 12.
std::string Month_Name(int month);

/// Full and abbreviated name of a weekday, Sunday = 0 to Saturday = 6.
std::string Weekday_Name(int weekday);
std::string Short_Weekday_Name(int weekday);

/// The weekday on which the user's week begins, Sunday = 0 to Saturday = 6.
int First_Weekday();

/// A date of the years 100 to 9999 in the user's short date form, which Read_Date takes for the same day if
/// its year is whole.
std::string Short_Date(int year, int month, int day);

/// A date and time of day in the user's short date form and time form.
std::string Date_Time_Text(const Date_Time &time);

/// The date that a user means by `text`, in the order of day and month of the regional settings. A time of
/// day in it is passed over. Nothing for a text that is no date of the years 100 to 9999.
std::optional<Date_Time> Read_Date(std::string_view text);

} // namespace platform

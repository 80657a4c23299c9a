// What the user's regional settings say about names and dates.
#pragma once

#include <string>

namespace platform {

/// Full name of month 1 to 12.
std::string Month_Name(int month);

/// Full and abbreviated name of a weekday, Sunday = 0 to Saturday = 6.
std::string Weekday_Name(int weekday);
std::string Short_Weekday_Name(int weekday);

/// The weekday on which the user's week begins, Sunday = 0 to Saturday = 6.
int First_Weekday();

/// A date of the years 100 to 9999 in the user's short date form.
std::string Short_Date(int year, int month, int day);

} // namespace platform

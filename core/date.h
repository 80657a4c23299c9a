// Calendar dates: weekdays, month lengths, day numbers, and the keys under which events are stored.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A day of the Gregorian calendar.
struct Date {
    std::int16_t year = 0;
    std::int16_t month = 0;
    std::int16_t day = 0;
    friend bool operator==(const Date &, const Date &) = default;
};

/// The years that the calendar can show, 100 to 9998.
constexpr std::int16_t first_year = 100;
constexpr std::int16_t last_year = 9998;

/// The year that stands for "every year" in a date key.
constexpr std::int16_t every_year = 9999;

/// Returns today's date by the local clock.
Date Today();

/// Returns the weekday of a date, from Sunday = 0 to Saturday = 6.
int Weekday(const Date &date);

/// Returns the number of days in the month of `date`, 28 to 31.
std::int32_t DaysInMonth(const Date &date);

/// Returns the number of days from 30 December 1899 to the date. Earlier dates have negative numbers.
std::int32_t Day_Number(const Date &date);

/// Returns the date of a day number. The year of the date must fit into 16 bits.
Date Date_Of(std::int32_t day_number);

/// Returns the exact key of a date, such as 5/3/2002.
std::string Date_Key(const Date &date);

/// Returns a date key with its year replaced by 9999, such as 5/3/9999.
std::string Every_Year_Key(const std::string &key);

/// Returns the three numbers of a date key, split at its first two "/". Each may have a sign, and blanks
/// around it. The date need not exist. Throws Conversion_Error (core/convert.h) if a "/" is missing or a part
/// is not a 16-bit integer.
Date Parse_Date_Key(std::string_view key);

/// Returns a text that is different for each day, such as 5:3:2002.
std::string Date_Stamp(const Date &date);

/// Returns "st", "nd", "rd" or "th" for a day from 1 to 31.
std::string Ordinal_Suffix(int day);

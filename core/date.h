// Calendar dates: validity, weekdays, month lengths, and the keys under which events are stored.
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

/// The years that the calendar can show.
constexpr std::int16_t first_year = 100;
constexpr std::int16_t last_year = 9998;

/// The year that stands for "every year" in a date key.
constexpr std::int16_t every_year = 9999;

/// Today by the local clock.
Date Today();

/// Weekday of a date, Sunday = 0 to Saturday = 6.
int Weekday(const Date &date);

/// Number of days in the month of `date`, 28 to 31.
std::int32_t DaysInMonth(const Date &date);

/// Days from 30 December 1899, which is day 0, to a date; less than 0 for an earlier one.
std::int32_t Day_Number(const Date &date);

/// The date of a day number; its year must be one of 16 bits.
Date Date_Of(std::int32_t day_number);

/// The exact key of a date: 5/3/2002.
std::string Date_Key(const Date &date);

/// The every-year key of an exact key with a four-digit year: 5/3/9999.
std::string Every_Year_Key(const std::string &key);

/// The numbers of a date key, split at its first two "/"; each may have a sign and blanks around it. They
/// need not be a date that exists. Throws Conversion_Error (core/convert.h) when there are no two "/" or a
/// part is no 16-bit integer.
Date Parse_Date_Key(std::string_view key);

/// The stamp that tells one day from another: 5:3:2002.
std::string Date_Stamp(const Date &date);

/// "st", "nd", "rd" or "th" for a day 1 to 31.
std::string Ordinal_Suffix(int day);

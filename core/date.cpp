#include "core/date.h"

#include "base/joined.h"
#include "core/convert.h"
#include "platform/clock.h"

#include <chrono>

namespace {

constexpr std::chrono::sys_days day_0 = std::chrono::year(1899) / std::chrono::December / 30;

std::chrono::year_month_day Calendar_Day(const Date &date) {
    return std::chrono::year(date.year) / std::chrono::month(static_cast<unsigned>(date.month)) /
           std::chrono::day(static_cast<unsigned>(date.day));
}

/// Reads one to four digits and the `separator` after them, the form in which the program writes its keys.
/// '\0' stands for the end of the text. Moves `at` past the separator. Returns false for any other text.
bool Parse_Number(const char *&at, const char *end, char separator, std::int16_t &number) {
    int value = 0;
    const char *digit = at;
    for (; digit != end && *digit >= '0' && *digit <= '9'; ++digit) {
        if (digit - at == 4)
            return false;
        value = value * 10 + (*digit - '0');
    }
    if (digit == at || (digit == end) != (separator == '\0') || (digit != end && *digit != separator))
        return false;
    at = digit == end ? end : digit + 1;
    number = static_cast<std::int16_t>(value);
    return true;
}

/// Returns day, month and year, separated by `separator`.
std::string Join_Date(std::string_view separator, const Date &date) {
    return Joined({std::to_string(date.day), separator, std::to_string(date.month), separator,
                   std::to_string(date.year)});
}

} // namespace

Date Today() {
    const platform::Date_Time now = platform::Now();
    return {static_cast<std::int16_t>(now.year), static_cast<std::int16_t>(now.month),
            static_cast<std::int16_t>(now.day)};
}

int Weekday(const Date &date) {
    // Day 0 was a Saturday.
    const int weekday = (Day_Number(date) + 6) % 7;
    return weekday < 0 ? weekday + 7 : weekday;
}

std::int32_t DaysInMonth(const Date &date) {
    const std::chrono::year_month_day day = Calendar_Day(date);
    const std::chrono::day last = (day.year() / day.month() / std::chrono::last).day();
    return static_cast<std::int32_t>(static_cast<unsigned>(last));
}

std::int32_t Day_Number(const Date &date) {
    return static_cast<std::int32_t>((std::chrono::sys_days(Calendar_Day(date)) - day_0).count());
}

Date Date_Of(std::int32_t day_number) {
    const std::chrono::year_month_day day(day_0 + std::chrono::days(day_number));
    return {static_cast<std::int16_t>(static_cast<int>(day.year())),
            static_cast<std::int16_t>(static_cast<unsigned>(day.month())),
            static_cast<std::int16_t>(static_cast<unsigned>(day.day()))};
}

std::string Date_Key(const Date &date) {
    return Join_Date("/", date);
}

std::string Every_Year_Key(const std::string &key) {
    // Cut the year at its slash: a year before 1000 has fewer than four digits.
    return key.substr(0, key.rfind('/') + 1) + std::to_string(every_year);
}

Date Parse_Date_Key(std::string_view key) {
    Date date;
    const char *at = key.data();
    const char *const end = at + key.size();
    if (Parse_Number(at, end, '/', date.day) && Parse_Number(at, end, '/', date.month) &&
        Parse_Number(at, end, '\0', date.year))
        return date;
    const std::size_t first = key.find('/');
    const std::size_t second = first == std::string_view::npos ? first : key.find('/', first + 1);
    if (second == std::string_view::npos)
        throw Conversion_Error("a date of the form day/month/year");
    date.day = To_Int16(key.substr(0, first));
    date.month = To_Int16(key.substr(first + 1, second - first - 1));
    date.year = To_Int16(key.substr(second + 1));
    return date;
}

std::string Date_Stamp(const Date &date) {
    return Join_Date(":", date);
}

std::string Ordinal_Suffix(int day) {
    if (day >= 11 && day <= 13)
        return "th";
    switch (day % 10) {
    case 1:
        return "st";
    case 2:
        return "nd";
    case 3:
        return "rd";
    default:
        return "th";
    }
}

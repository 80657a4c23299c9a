// Names and the short date form, as the test sets them.
#include "platform/locale.h"
#include "tests/fakes/fakes.h"

namespace platform {

namespace {

std::string Padded(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

} // namespace

std::string Month_Name(int month) {
    return Fakes().months.at(static_cast<std::size_t>(month - 1));
}

std::string Weekday_Name(int weekday) {
    return Fakes().weekdays.at(static_cast<std::size_t>(weekday));
}

std::string Short_Weekday_Name(int weekday) {
    return Fakes().short_weekdays.at(static_cast<std::size_t>(weekday));
}

int First_Weekday() {
    return Fakes().first_weekday;
}

std::string Short_Date(int year, int month, int day) {
    const std::string &pattern = Fakes().short_date_pattern;
    std::string text;
    for (std::size_t i = 0; i < pattern.size();) {
        std::size_t run = pattern.find_first_not_of(pattern[i], i);
        run = (run == std::string::npos ? pattern.size() : run) - i;
        switch (pattern[i]) {
        case 'd':
            text += Padded(day, run);
            break;
        case 'm':
            text += Padded(month, run);
            break;
        case 'y':
            text += Padded(year, run);
            break;
        default:
            text.append(pattern, i, run);
        }
        i += run;
    }
    return text;
}

} // namespace platform

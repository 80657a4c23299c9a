// A rule is a test of single days. The expansion searches each period of the rule (day, week, month or year)
// for the days that pass.
#include "transfer/recurrence.h"

#include "base/letters.h"
#include "core/date.h"

#include <algorithm>
#include <charconv>

namespace {

/// The most days over which the expansion follows a count: a hundred years.
constexpr std::int64_t longest_count = 36'600;
constexpr std::size_t longest_list = 1000; ///< no list has more distinct numbers

/// Reads the whole text as a number from `least` to `most`, with an optional plus sign. Returns false for any
/// other text.
template <typename Integer>
bool Read_Number(std::string_view text, Integer least, Integer most, Integer &number) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    const std::from_chars_result read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && read.ptr == text.data() + text.size() && number >= least &&
           number <= most && !text.empty();
}

/// Removes the first field of `text` and the separator after it. Returns the field.
std::string_view Next_Field(std::string_view &text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

int Read_Weekday(std::string_view name) {
    constexpr std::string_view names[] = {"SU", "MO", "TU", "WE", "TH", "FR", "SA"};
    return static_cast<int>(std::find(std::begin(names), std::end(names), name) - names);
}

/// Returns the number that the two digits at index `at` form, or -1 if there are not two digits.
int Two_Digits(std::string_view text, std::size_t at) {
    // Signs and blanks are less than '0'.
    int number = -1;
    return at + 2 <= text.size() && text[at] >= '0' && Read_Number(text.substr(at, 2), 0, 99, number) ? number
                                                                                                      : -1;
}

/// The range of numbers in one list of a rule.
struct List_Row {
    std::string_view name;
    int least;
    int most;
    bool from_end; ///< also allows the negative numbers
};

constexpr List_Row list_rows[Recurrence::List_Count] = {
    {"BYMONTH", 1, 12, false},   {"BYWEEKNO", 1, 53, true},  {"BYYEARDAY", 1, 366, true},
    {"BYMONTHDAY", 1, 31, true}, {"BYSETPOS", 1, 366, true}, {"BYHOUR", 0, 23, false},
    {"BYMINUTE", 0, 59, false},  {"BYSECOND", 0, 60, false}};

bool Read_List(std::string_view text, const List_Row &row, std::vector<int> &numbers) {
    numbers.clear();
    while (!text.empty()) {
        int number = 0;
        if (numbers.size() == longest_list ||
            !Read_Number(Next_Field(text, ','), row.from_end ? -row.most : row.least, row.most, number) ||
            (number == 0 && row.least > 0))
            return false;
        numbers.push_back(number);
    }
    return !numbers.empty();
}

bool Read_Weekdays(std::string_view text, std::vector<Repeated_Weekday> &weekdays) {
    weekdays.clear();
    while (!text.empty()) {
        const std::string_view part = Next_Field(text, ',');
        if (part.size() < 2 || weekdays.size() == longest_list)
            return false;
        Repeated_Weekday day;
        day.weekday = Read_Weekday(part.substr(part.size() - 2));
        const std::string_view ordinal = part.substr(0, part.size() - 2);
        if (day.weekday > 6 ||
            (!ordinal.empty() && (!Read_Number(ordinal, -53, 53, day.ordinal) || day.ordinal == 0)))
            return false;
        weekdays.push_back(day);
    }
    return !weekdays.empty();
}

bool Read_Part(std::string_view name, std::string_view value, Recurrence &rule) {
    if (name == "FREQ") {
        constexpr std::string_view words[] = {"DAILY", "WEEKLY", "MONTHLY", "YEARLY"};
        const auto *const word = std::find(std::begin(words), std::end(words), value);
        rule.frequency = static_cast<Recurrence::Frequency>(word - words);
        return word != std::end(words);
    }
    if (name == "INTERVAL")
        return Read_Number(value, std::int64_t{1}, std::int64_t{1'000'000}, rule.interval);
    if (name == "COUNT")
        return Read_Number(value, std::int64_t{1}, INT64_MAX, rule.count.emplace());
    if (name == "UNTIL")
        return (rule.until = Read_Moment(value)).has_value();
    if (name == "WKST")
        return (rule.week_start = Read_Weekday(value)) < 7;
    if (name == "BYDAY")
        return Read_Weekdays(value, rule.weekdays);
    for (const List_Row &row : list_rows)
        if (name == row.name)
            return Read_List(value, row, rule.numbers[static_cast<std::size_t>(&row - list_rows)]);
    return name == "RSCALE" && value == "GREGORIAN";
}

/// Adds the limits that a rule takes from its start if it has none of its own.
void Add_Implied_Limits(Recurrence &rule, const Moment &start) {
    const Date date = Date_Of(Day_Of(start.seconds));
    std::vector<int> &months = rule.numbers[Recurrence::Months];
    std::vector<int> &month_days = rule.numbers[Recurrence::Month_Days];
    if (!rule.weekdays.empty() || !month_days.empty() || !rule.numbers[Recurrence::Year_Days].empty())
        return;
    const bool by_week = !rule.numbers[Recurrence::Week_Numbers].empty();
    if (rule.frequency == Recurrence::Weekly || by_week)
        rule.weekdays.push_back({Weekday(date), 0});
    else if (rule.frequency != Recurrence::Daily)
        month_days.push_back(date.day);
    if (rule.frequency == Recurrence::Yearly && months.empty() && !by_week)
        months.push_back(date.month);
}

/// Returns whether the lists of hours, minutes and seconds hold nothing but the time of the start.
bool At_Time_Of_Start(const Recurrence &rule, const Moment &start) {
    const auto second = static_cast<int>(Second_Of_Day(start.seconds));
    const int own[] = {second / 3600, second / 60 % 60, second % 60};
    for (std::size_t i = 0; i < 3; ++i) {
        const std::vector<int> &numbers = rule.numbers[Recurrence::Hours + i];
        if (std::any_of(numbers.begin(), numbers.end(), [&](int number) { return number != own[i]; }))
            return false;
    }
    return true;
}

/// Returns whether a list is empty or contains `number`, counted from 1, or its negative form, counted from
/// the end of `all` numbers.
bool Allows(const std::vector<int> &numbers, int number, int all) {
    return numbers.empty() || std::any_of(numbers.begin(), numbers.end(), [=](int each) {
               return each == number || each == number - all - 1;
           });
}

/// Returns the first day of week 1 of a year: the first week with at least four days in the year.
std::int32_t First_Week(std::int16_t year, int week_start) {
    const Date fourth{year, 1, 4};
    return Day_Number(fourth) - (Weekday(fourth) - week_start + 7) % 7;
}

bool Allows_Week(const Recurrence &rule, std::int32_t day, std::int16_t year) {
    const std::vector<int> &numbers = rule.numbers[Recurrence::Week_Numbers];
    if (numbers.empty())
        return true;
    const auto next = static_cast<std::int16_t>(year + 1);
    const auto before = static_cast<std::int16_t>(year - 1);
    std::int32_t begin = First_Week(year, rule.week_start), end = First_Week(next, rule.week_start);
    if (day < begin) {
        end = begin;
        begin = First_Week(before, rule.week_start);
    } else if (day >= end) {
        begin = end;
        end = First_Week(static_cast<std::int16_t>(year + 2), rule.week_start);
    }
    return Allows(numbers, (day - begin) / 7 + 1, (end - begin) / 7);
}

/// Returns whether a date is one of the rule's weekdays. Ordinals count within the month, or within the year
/// for a yearly rule without months. They have no effect in weekly and daily rules.
bool Allows_Weekday(const Recurrence &rule, const Date &date, int year_day, int year_length) {
    if (rule.weekdays.empty())
        return true;
    const bool in_year = rule.frequency == Recurrence::Yearly && rule.numbers[Recurrence::Months].empty();
    const bool ordinals = in_year || rule.frequency >= Recurrence::Monthly;
    const int place = in_year ? year_day : date.day;
    const int length = in_year ? year_length : DaysInMonth(date);
    const int weekday = Weekday(date);
    for (const Repeated_Weekday &day : rule.weekdays) {
        const int ordinal = day.ordinal < 0 ? -((length - place) / 7 + 1) : (place - 1) / 7 + 1;
        if (day.weekday == weekday && (!ordinals || day.ordinal == 0 || day.ordinal == ordinal))
            return true;
    }
    return false;
}

bool Allows_Day(const Recurrence &rule, std::int32_t day) {
    const Date date = Date_Of(day);
    if (!Allows(rule.numbers[Recurrence::Months], date.month, 12) ||
        !Allows(rule.numbers[Recurrence::Month_Days], date.day, DaysInMonth(date)))
        return false;
    const std::int32_t new_year = Day_Number({date.year, 1, 1});
    const int length = DaysInMonth({date.year, 2, 1}) + 337;
    return Allows(rule.numbers[Recurrence::Year_Days], day - new_year + 1, length) &&
           Allows_Weekday(rule, date, day - new_year + 1, length) && Allows_Week(rule, day, date.year);
}

/// The periods of a rule. Number 0 is the period of its start.
class Periods {
public:
    Periods(const Recurrence &rule, std::int32_t start)
        : frequency_(rule.frequency), interval_(rule.interval), start_(Date_Of(start)),
          first_(rule.frequency == Recurrence::Weekly ? start - (Weekday(start_) - rule.week_start + 7) % 7
                                                      : start) {}

    /// Returns the number of the last period of the rule that begins on or before `day`, which must not be
    /// before the start.
    std::int64_t At(std::int32_t day) const {
        const Date date = Date_Of(day);
        if (frequency_ == Recurrence::Yearly)
            return (date.year - start_.year) / interval_;
        if (frequency_ == Recurrence::Monthly)
            return ((date.year - start_.year) * 12 + date.month - start_.month) / interval_;
        return (day - first_) / (interval_ * (frequency_ == Recurrence::Weekly ? 7 : 1));
    }
    /// Sets `begin` to the first day of a period and `end` to the day after its last. Returns false if the
    /// period is after the last possible date.
    bool Find(std::int64_t number, std::int32_t &begin, std::int32_t &end) const {
        if (frequency_ <= Recurrence::Weekly) {
            const std::int64_t length = frequency_ == Recurrence::Weekly ? 7 : 1;
            const std::int64_t day = first_ + number * interval_ * length;
            begin = static_cast<std::int32_t>(std::min<std::int64_t>(day, INT32_MAX / 2));
            end = begin + static_cast<std::int32_t>(length);
            return day < Day_Number({every_year, 12, 31});
        }
        const bool yearly = frequency_ == Recurrence::Yearly;
        const std::int64_t months = yearly ? (start_.year + number * interval_) * 12
                                           : start_.year * 12 + start_.month - 1 + number * interval_;
        if (months / 12 >= every_year)
            return false;
        const auto year = static_cast<std::int16_t>(months / 12);
        const auto month = static_cast<std::int16_t>(months % 12 + 1);
        begin = Day_Number({year, month, 1});
        end = yearly ? Day_Number({static_cast<std::int16_t>(year + 1), 1, 1})
                     : begin + DaysInMonth({year, month, 1});
        return true;
    }

private:
    Recurrence::Frequency frequency_;
    std::int64_t interval_;
    Date start_;
    std::int32_t first_;
};

/// Sets `set` to the days of a period that the rule allows, limited to its set positions.
void Find_Set(const Recurrence &rule, std::int32_t begin, std::int32_t end, std::vector<std::int32_t> &set) {
    set.clear();
    for (std::int32_t day = begin; day < end; ++day)
        if (Allows_Day(rule, day))
            set.push_back(day);
    const std::vector<int> &positions = rule.numbers[Recurrence::Set_Positions];
    if (positions.empty())
        return;
    const int all = static_cast<int>(set.size());
    int position = 0;
    std::erase_if(set, [&](std::int32_t) { return !Allows(positions, ++position, all); });
}

} // namespace

std::int32_t Day_Of(std::int64_t seconds) {
    return static_cast<std::int32_t>((seconds - Second_Of_Day(seconds)) / seconds_a_day);
}

std::int64_t Second_Of_Day(std::int64_t seconds) {
    return (seconds % seconds_a_day + seconds_a_day) % seconds_a_day;
}

std::optional<Moment> Read_Moment(std::string_view text) {
    const int century = Two_Digits(text, 0), year = Two_Digits(text, 2), month = Two_Digits(text, 4),
              day = Two_Digits(text, 6);
    if (century < 0 || year < 0 || month < 1 || month > 12 || day < 1)
        return std::nullopt;
    const Date date{static_cast<std::int16_t>(century * 100 + year), static_cast<std::int16_t>(month),
                    static_cast<std::int16_t>(day)};
    if (day > DaysInMonth(date))
        return std::nullopt;
    Moment moment{Day_Number(date) * seconds_a_day, false, false};
    if (text.size() == 8)
        return moment;
    moment.timed = To_Upper(text[8]) == 'T';
    moment.utc = To_Upper(text.back()) == 'Z';
    const std::string_view time = text.substr(9, text.size() - 9 - (moment.utc ? 1 : 0));
    const int hour = Two_Digits(time, 0), minute = Two_Digits(time, 2);
    const int second = time.size() == 4 ? 0 : Two_Digits(time, 4);
    const bool end_of_day = hour == 24 && minute == 0 && second == 0;
    // A leap second counts as the second before it.
    if (!moment.timed || time.size() > 6 || hour < 0 || (hour > 23 && !end_of_day) || minute < 0 ||
        minute > 59 || second < 0 || second > 60)
        return std::nullopt;
    moment.seconds += hour * 3600 + minute * 60 + std::min(second, 59);
    return moment;
}

std::optional<std::int64_t> Read_Duration(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.size() < 2 || To_Upper(text[0]) != 'P')
        return std::nullopt;
    std::int64_t seconds = 0, number = 0;
    bool digits = false, time = false;
    for (const char character : text.substr(1)) {
        const char c = To_Upper(character);
        if (c >= '0' && c <= '9') {
            number = std::min<std::int64_t>(number * 10 + (c - '0'), INT32_MAX);
            digits = true;
        } else if (c == 'T' && !time && !digits) {
            time = true;
        } else {
            const std::int64_t unit = c == 'W' && !time   ? 7 * seconds_a_day
                                      : c == 'D' && !time ? seconds_a_day
                                      : c == 'H' && time  ? 3600
                                      : c == 'M' && time  ? 60
                                      : c == 'S' && time  ? 1
                                                          : 0;
            if (!digits || unit == 0)
                return std::nullopt;
            seconds += number * unit;
            number = 0;
            digits = false;
        }
    }
    return digits ? std::nullopt : std::optional(negative ? -seconds : seconds);
}

std::optional<Recurrence> Read_Recurrence(std::string_view text, const Moment &start) {
    const std::string capitals = To_Upper(text);
    Recurrence rule;
    bool has_frequency = false;
    for (std::string_view rest = capitals; !rest.empty();) {
        std::string_view value = Next_Field(rest, ';');
        if (value.empty()) // as after a final semicolon
            continue;
        const std::string_view name = Next_Field(value, '=');
        has_frequency = has_frequency || name == "FREQ";
        if (!Read_Part(name, value, rule))
            return std::nullopt;
    }
    if (!has_frequency || !At_Time_Of_Start(rule, start))
        return std::nullopt;
    Add_Implied_Limits(rule, start);
    return rule;
}

bool Is_Plain_Yearly(const Recurrence &rule, const Moment &start) {
    const Date date = Date_Of(Day_Of(start.seconds));
    const auto only = [&](Recurrence::List list, int number) {
        return rule.numbers[list] == std::vector<int>{number};
    };
    return rule.frequency == Recurrence::Yearly && rule.interval == 1 && !rule.count && !rule.until &&
           rule.weekdays.empty() && only(Recurrence::Months, date.month) &&
           only(Recurrence::Month_Days, date.day) && rule.numbers[Recurrence::Week_Numbers].empty() &&
           rule.numbers[Recurrence::Year_Days].empty() && rule.numbers[Recurrence::Set_Positions].empty();
}

bool Expand_Recurrence(const Recurrence &rule, const Moment &start, std::int32_t first, std::int32_t last,
                       std::size_t most, std::vector<std::int64_t> &moments) {
    const std::int32_t start_day = Day_Of(start.seconds);
    if (rule.count && std::int64_t{first} - start_day > longest_count)
        return false;
    std::int64_t end_moment = INT64_MAX;
    if (rule.until) // a date includes its whole day
        end_moment = rule.until->timed && start.timed ? rule.until->seconds
                                                      : (Day_Of(rule.until->seconds) + 1) * seconds_a_day - 1;
    const Periods periods(rule, start_day);
    std::vector<std::int32_t> set;
    std::int64_t left = rule.count.value_or(INT64_MAX);
    std::size_t added = 0;
    std::int32_t begin = 0, end = 0;
    for (std::int64_t number = rule.count ? 0 : periods.At(std::max(first, start_day));
         periods.Find(number, begin, end) && begin <= last; ++number) {
        Find_Set(rule, begin, end, set);
        for (const std::int32_t day : set) {
            const std::int64_t moment = day * seconds_a_day + Second_Of_Day(start.seconds);
            if (day < start_day)
                continue;
            if (moment > end_moment || day > last || --left < 0 || added == most)
                return true;
            if (day < first)
                continue;
            moments.push_back(moment);
            ++added;
        }
    }
    return true;
}

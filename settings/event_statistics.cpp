// Counting events, and the wording of the counts.
#include "settings/event_statistics.h"

#include <limits>

namespace {

constexpr const char *month_titles[] = {"Jan: ",  "Feb: ", "Mar: ", "Apr: ", "May: ", "Jun: ",
                                        "July: ", "Aug: ", "Sep: ", "Oct: ", "Nov: ", "Dec: "};

std::string Line(const char *title, std::int16_t count) {
    return title + std::to_string(count);
}

void Count(std::int16_t &counter) {
    if (counter < std::numeric_limits<std::int16_t>::max())
        ++counter;
}

} // namespace

void Workout_Stats(Event_Statistics &statistics, const Event_Entry &entry, const Date &today) {
    std::int16_t &month = statistics.months.at(static_cast<std::size_t>(entry.date.month - 1));
    if (entry.yearly)
        return Count(month);
    const std::int32_t days = Day_Number(entry.date) - Day_Number(today);
    if (days > 0)
        Count(statistics.future);
    else if (days < 0)
        Count(statistics.past);
    Count(statistics.total);
    if (entry.date.year != today.year)
        return;
    Count(statistics.this_year);
    Count(month);
}

std::string Total_Line(const Event_Statistics &statistics) {
    return Line("Total Events: ", statistics.total);
}

std::string Year_Line(const Event_Statistics &statistics) {
    return Line("Events This Year: ", statistics.this_year);
}

std::string Before_Line(const Event_Statistics &statistics) {
    return Line("No. Before Today: ", statistics.future);
}

std::string After_Line(const Event_Statistics &statistics) {
    return Line("No. After Today: ", statistics.past);
}

std::string Month_Line(const Event_Statistics &statistics, int month) {
    const auto index = static_cast<std::size_t>(month);
    return Line(month_titles[index], statistics.months.at(index));
}

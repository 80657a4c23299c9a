#include "settings/event_statistics.h"

#include <limits>

namespace {

void Count(std::int16_t &counter) {
    if (counter < std::numeric_limits<std::int16_t>::max())
        ++counter;
}

} // namespace

void Workout_Stats(Event_Statistics &statistics, const Event &event, const Date &today) {
    std::int16_t &month = statistics.months.at(static_cast<std::size_t>(event.date.month - 1));
    if (event.yearly)
        return Count(month);
    const std::int32_t days = Day_Number(event.date) - Day_Number(today);
    if (days > 0)
        Count(statistics.future);
    else if (days < 0)
        Count(statistics.past);
    Count(statistics.total);
    if (event.date.year != today.year)
        return;
    Count(statistics.this_year);
    Count(month);
}

// Prints the days of a calendar file for tests/icalendar_days.py, as lines "YEAR-MONTH-DAY text". The year
// 9999 stands for every year.
//
//     calendar_days FILE YEAR MONTH DAY    the date counts as today
#include "tests/fakes/fakes.h"
#include "transfer/event_days.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

int main(int count, char **arguments) {
    if (count != 5)
        return 2;
    std::ifstream file(arguments[1], std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    Fakes().now = {std::atoi(arguments[2]), std::atoi(arguments[3]), std::atoi(arguments[4])};
    Progress progress;
    const Calendar_File calendar = Read_ICalendar(bytes, progress);
    for (const Event_Day &day : Find_Event_Days(calendar, Today(), progress).days)
        std::printf("%04d-%02d-%02d %s\n", day.date.year, day.date.month, day.date.day,
                    Text_On(day, calendar.events[day.event]).c_str());
    return 0;
}

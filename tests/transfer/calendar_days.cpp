// For tests/icalendar_days.py, which compares the program with another one: the days of a calendar file, or
// the export of a data file.
//
//     calendar_days days FILE YEAR MONTH DAY     a line "YEAR-MONTH-DAY text" for each; the year 9999: every
//     year calendar_days export FILE YEAR MONTH DAY   the bytes of the export
//
// The date is today.
#include "core/event_store.h"
#include "tests/fakes/fakes.h"
#include "transfer/event_days.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

int main(int count, char **arguments) {
    if (count != 6)
        return 2;
    std::string bytes;
    std::FILE *const file = std::fopen(arguments[2], "rb");
    if (file == nullptr)
        return 2;
    for (int c = 0; (c = std::getc(file)) != EOF;)
        bytes += static_cast<char>(c);
    std::fclose(file);
    Fakes().now = {std::atoi(arguments[3]), std::atoi(arguments[4]), std::atoi(arguments[5])};
    Progress progress;
    if (std::string_view(arguments[1]) == "export") {
        Fakes().files[Event_Store::Data_File()] = bytes;
        std::vector<Event> events;
        Load_Events(events, Sort_Order::Ascending_Date, Today());
        const std::string exported = ICalendar_Bytes(events, progress);
        std::fwrite(exported.data(), 1, exported.size(), stdout);
        return 0;
    }
    const Calendar_File calendar = Read_ICalendar(bytes, progress);
    for (const Event_Day &day : Find_Event_Days(calendar, Today(), progress).days)
        std::printf("%04d-%02d-%02d %s\n", day.date.year, day.date.month, day.date.day,
                    Text_On(day, calendar.events[day.event]).c_str());
    return 0;
}

// Checks that the iCalendar reader takes any bytes as a calendar or refuses them. The joined records can be
// written and read back, and joining the same file again changes nothing. The export of the records reads
// back as the same events, and joining it changes nothing.
#include "core/sequential.h"
#include "tests/fakes/fakes.h"
#include "transfer/icalendar_merging.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

const Date today{2026, 11, 22};

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

/// Joins the events of the file to the records. Checks that each of their days is in the calendar's years,
/// that no text has a quote or line break, and that each event is counted once.
void Join(const Calendar_File &file, std::vector<std::string> &records, Progress &progress) {
    const Event_Days days = Find_Event_Days(file, today, progress);
    for (const Event_Day &day : days.days) {
        Demand(day.date.year >= first_year && day.date.year <= every_year && day.event < file.events.size());
        Demand(Text_On(day, file.events[day.event]).find_first_of("\"\r\n") == std::string::npos);
    }
    const Merge_Counts counts = Merge_Calendar(file, days, records);
    Demand(counts.imported + counts.already_there + counts.skipped == file.events.size());
}

std::vector<std::string> Read_Back(const std::string &bytes) {
    std::vector<std::string> records;
    Sequential_Reader reader(bytes);
    for (std::string_view item; reader.Next(item);)
        records.emplace_back(item);
    return records;
}

/// Returns one event for each record that has a date.
std::vector<Event> Events(const std::vector<std::string> &records) {
    std::vector<Event> events;
    Event event;
    for (const std::string &record : records)
        if (Parse_Event(record, today.year, event))
            events.push_back(event);
    return events;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Reset_Fakes();
    Fakes().zone_minutes = 90;
    Progress progress;
    Calendar_File file;
    try {
        file = Read_ICalendar({reinterpret_cast<const char *>(data), size}, progress);
    } catch (const ICalendar_Error &) {
        return 0;
    }
    std::vector<std::string> records{"1/1/9999=New Year", "no record", "25/12/2026=x"};
    Join(file, records, progress);
    std::vector<std::string> again = records;
    Join(file, again, progress);
    Demand(again == records);
    std::string bytes;
    for (const std::string &record : records)
        Append_Item(bytes, record);
    Demand(Read_Back(bytes) == records);

    const std::vector<Event> events = Events(records);
    const Calendar_File exported = Read_ICalendar(ICalendar_Bytes(events, progress), progress);
    Demand(exported.events.size() == events.size());
    const Event_Days days = Find_Event_Days(exported, today, progress);
    for (const Event_Day &day : days.days)
        Demand(Date_Key(day.date) == events[day.event].key && day.minute < 0);
    Join(exported, again, progress);
    Demand(again == records);
    return 0;
}

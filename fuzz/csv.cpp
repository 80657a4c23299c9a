// Checks that the CSV reader takes any bytes as events or refuses them. Each text is UTF-8 without quotes and
// line endings, and the merged records can be written and read back.
#include "transfer/csv.h"

#include "base/characters.h"
#include "core/convert.h"
#include "core/sequential.h"
#include "tests/fakes/fakes.h"
#include "transfer/merging.h"

#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

/// Returns the events up to the end or the first error.
std::vector<Event> Read(std::string_view bytes) {
    std::vector<Event> events;
    try {
        CSV_Lines lines(bytes);
        CSV_Columns columns;
        if (!Check_CSV_Headings(lines.Next_Line(), columns))
            return events;
        for (Event event; !lines.At_End();)
            if (Read_CSV_Line(lines.Next_Record(), columns, event))
                events.push_back(event);
    } catch (const CSV_Error &) {
    } catch (const Conversion_Error &) {
    }
    return events;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Reset_Fakes();
    Fakes().any_box = true;
    std::vector<Event> events = Read({reinterpret_cast<const char *>(data), size});
    std::vector<std::string> records{"1/1/9999=New Year", "no record", "1/1/2002=x"};
    Record_Merger merger(records);
    for (Event &event : events) {
        Demand(event.text.find_first_of("\"\r\n") == std::string::npos && Is_Utf8(event.text));
        Demand(event.date.month >= 1 && event.date.month <= 12 && event.date.day <= DaysInMonth(event.date));
        merger.Merge(event);
    }
    std::string bytes;
    for (const std::string &record : records)
        Append_Item(bytes, record);
    Sequential_Reader reader(bytes);
    std::size_t count = 0;
    for (std::string_view item; reader.Next(item); ++count)
        Demand(count < records.size() && item == records[count]);
    Demand(count == records.size() && count <= 3 + events.size());
    return 0;
}

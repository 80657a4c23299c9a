#include "core/events.h"

#include "base/joined.h"
#include "core/convert.h"
#include "core/event_store.h"
#include "core/sequential.h"
#include "platform/files.h"
#include "platform/locale.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace {

constexpr std::int16_t leap_year = 2000;
constexpr std::string_view yearly_year = "/yyyy";

} // namespace

bool Parse_Event(std::string_view record, std::int16_t year, Event &event) {
    Event_Record parts;
    if (!Parse_Record(record, parts))
        return false;
    Date date;
    try {
        date = parts.key.ends_with(yearly_year) ? Parse_Date_Key(Every_Year_Key(std::string(parts.key)))
                                                : Parse_Date_Key(parts.key);
    } catch (const Conversion_Error &) {
        return false;
    }
    const bool yearly = date.year == every_year;
    if (date.year < first_year || date.month < 1 || date.month > 12 || date.day < 1)
        return false;
    if (date.day > DaysInMonth({yearly ? leap_year : date.year, date.month, 1}))
        return false;
    if (yearly) {
        date.year = year;
        date.day = std::min(date.day, static_cast<std::int16_t>(DaysInMonth({year, date.month, 1})));
    }
    event.date = date;
    event.yearly = yearly;
    event.key = parts.key;
    event.text = parts.text;
    return true;
}

Read_Result Read_Events(std::int16_t year, Callback_Ref<void(const Event &)> take) {
    const std::string path = Event_Store::Data_File();
    if (!platform::File_Exists(path))
        return Read_Result::No_File;
    try {
        const std::string bytes = platform::Read_File(path);
        Sequential_Reader reader(bytes);
        Event event;
        for (std::string_view item; reader.Next(item); ++event.place)
            if (Parse_Event(item, year, event))
                take(event);
    } catch (const platform::File_Error &) {
        return Read_Result::Incomplete;
    } catch (const Sequential_Error &) {
        return Read_Result::Incomplete;
    }
    return Read_Result::Complete;
}

Read_Result Load_Events(std::vector<Event> &events, Sort_Order order, const Date &today) {
    events.clear();
    const Read_Result result = Read_Events(today.year, [&](const Event &event) { events.push_back(event); });
    if (order == Sort_Order::Date_Added)
        return result;
    std::ranges::stable_sort(events, {}, [](const Event &event) {
        return std::tie(event.date.year, event.date.month, event.date.day);
    });
    if (order == Sort_Order::Descending_Date)
        std::ranges::reverse(events);
    return result;
}

bool Remove_Record(std::vector<std::string> &records, const Event &event) {
    const std::string record = Joined({event.key, "=", event.text});
    // `place` tells equal records apart. The file may have changed since `place` was read, so fall back to
    // the first equal record.
    auto at = records.end();
    if (event.place < records.size() && records[event.place] == record)
        at = records.begin() + static_cast<std::ptrdiff_t>(event.place);
    else
        at = std::find(records.begin(), records.end(), record);
    if (at == records.end())
        return false;
    records.erase(at);
    return true;
}

std::string Date_Prefix(const Event &event) {
    return platform::Short_Date(event.date.year, event.date.month, event.date.day) +
           (event.yearly ? " (every year)  -  " : "  -  ");
}

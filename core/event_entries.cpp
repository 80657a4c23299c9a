#include "core/event_entries.h"

#include "base/joined.h"
#include "core/convert.h"
#include "core/event_store.h"
#include "core/sequential.h"
#include "platform/files.h"
#include "platform/locale.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::int16_t leap_year = 2000;
constexpr std::string_view yearly_year = "/yyyy";

} // namespace

bool Read_Entry(std::string_view record, Event_Entry &entry) {
    Event_Record parts;
    if (!Parse_Record(record, parts))
        return false;
    entry.key = parts.key;
    entry.text = parts.text;
    try {
        entry.date = parts.key.ends_with(yearly_year) ? Parse_Date_Key(Every_Year_Key(std::string(parts.key)))
                                                      : Parse_Date_Key(parts.key);
    } catch (const Conversion_Error &) {
        return false;
    }
    entry.yearly = entry.date.year == every_year;
    const Date &date = entry.date;
    if (date.year < first_year || date.month < 1 || date.month > 12 || date.day < 1)
        return false;
    return date.day <= DaysInMonth({entry.yearly ? leap_year : date.year, date.month, 1});
}

Read_Result Read_Entries(Callback_Ref<void(const Event_Entry &)> take) {
    const std::string path = Event_Store::Data_File();
    if (!platform::File_Exists(path))
        return Read_Result::No_File;
    try {
        const std::string bytes = platform::Read_File(path);
        Sequential_Reader reader(bytes);
        Event_Entry entry;
        for (std::string_view item; reader.Next(item); ++entry.place)
            if (Read_Entry(item, entry))
                take(entry);
    } catch (const platform::File_Error &) {
        return Read_Result::Incomplete;
    } catch (const Sequential_Error &) {
        return Read_Result::Incomplete;
    }
    return Read_Result::Complete;
}

Date Day_In_Year(const Event_Entry &entry, std::int16_t year) {
    if (!entry.yearly)
        return entry.date;
    const Date first{year, entry.date.month, 1};
    const auto last = static_cast<std::int16_t>(DaysInMonth(first));
    return {year, entry.date.month, std::min(entry.date.day, last)};
}

Read_Result Load_Entries(std::vector<Event> &entries, Sort_Order order, const Date &today) {
    entries.clear();
    const Read_Result result = Read_Entries([&](const Event_Entry &entry) {
        const Date date = Day_In_Year(entry, today.year);
        entries.push_back({Day_Number(date), date, entry.yearly, std::string(entry.key),
                           std::string(entry.text), entry.place});
    });
    if (order == Sort_Order::Date_Added || entries.empty())
        return result;
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Event &left, const Event &right) { return left.number < right.number; });
    if (order == Sort_Order::Descending_Date)
        std::reverse(entries.begin(), entries.end());
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

std::string Line_Head(const Event &entry) {
    return platform::Short_Date(entry.date.year, entry.date.month, entry.date.day) +
           (entry.yearly ? " (every year)  -  " : "  -  ");
}

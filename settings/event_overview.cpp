// Sorting events, and the wording of their lines.
#include "settings/event_overview.h"

#include "platform/locale.h"

#include <algorithm>

namespace {

constexpr const char *yearly_separator = " (every year)  -  ";
constexpr const char *separator = "  -  ";

} // namespace

Reading Load_Entries(std::vector<Sort_Entry> &entries, Sort_Order order, const Date &today) {
    entries.clear();
    const Reading reading = Read_Entries([&](const Event_Entry &entry) {
        const Date date = Day_In_Year(entry, today.year);
        entries.push_back(
            {Day_Number(date), date, entry.yearly, std::string(entry.key), std::string(entry.text)});
    });
    if (order == Sort_Order::Date_Added)
        return reading;
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Sort_Entry &a, const Sort_Entry &b) { return a.number < b.number; });
    if (order == Sort_Order::Descending_Date)
        std::reverse(entries.begin(), entries.end());
    return reading;
}

std::string Overview_Line(const Sort_Entry &entry) {
    std::string line = platform::Short_Date(entry.date.year, entry.date.month, entry.date.day);
    line += entry.yearly ? yearly_separator : separator;
    line.reserve(line.size() + entry.text.size());
    char before = '\0';
    for (const char character : entry.text) {
        const bool second_of_line_end = before == '\r' && character == '\n';
        before = character;
        if (static_cast<unsigned char>(character) >= ' ')
            line += character;
        else if (!second_of_line_end)
            line += ' ';
    }
    return line;
}

std::string Countdown_Text(const Sort_Entry &entry, const Date &today) {
    return std::to_string(entry.number - Day_Number(today)) + " days";
}

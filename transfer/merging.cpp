#include "transfer/merging.h"

#include "base/joined.h"
#include "core/event_store.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

/// Removes the event's text and an adjacent separator from `record`. Returns false if the text is not at its
/// place.
bool Remove_Text(std::string &record, const Event &event) {
    std::size_t begin = event.key.size() + 1 + event.place;
    std::size_t length = event.text.size();
    const std::string_view whole = record;
    if (begin > whole.size() || whole.substr(begin, length) != event.text)
        return false;
    const std::string_view behind = whole.substr(begin + length);
    if (!behind.empty() && !behind.starts_with(text_separator))
        return false;
    if (event.place != 0) {
        if (!whole.substr(0, begin).ends_with(text_separator))
            return false;
        begin -= text_separator.size();
    }
    if (event.place != 0 || !behind.empty())
        length += text_separator.size();
    record.erase(begin, length);
    return true;
}

} // namespace

Record_Merger::Record_Merger(std::vector<std::string> &records) : records_(records) {
    // A record without "=", which only a hand-edited file has, belongs to no day.
    for (std::size_t i = 0; i < records.size(); ++i)
        if (Event_Record parts; Parse_Record(records[i], parts))
            first_.emplace(parts.key, i);
}

void Record_Merger::Merge(Event &event) {
    const std::string own_key = Date_Key(event.date);
    const auto exact = first_.find(own_key);
    const auto yearly = first_.find(Date_Key({every_year, event.date.month, event.date.day}));
    if (exact == first_.end() && yearly == first_.end()) {
        first_.emplace(own_key, records_.size());
        records_.push_back(Joined({own_key, "=", event.text}));
        event.key = own_key;
        event.place = 0;
        return;
    }
    const bool joins_yearly =
        exact == first_.end() || (yearly != first_.end() && yearly->second < exact->second);
    const auto &[key, index] = joins_yearly ? *yearly : *exact;
    std::string &record = records_[index];
    record.append(text_separator);
    event.key = key;
    event.place = record.size() - key.size() - 1;
    record.append(event.text);
}

bool Unmerge(std::vector<std::string> &records, std::vector<Event> &staged, std::size_t line) {
    const auto at = staged.begin() + static_cast<std::ptrdiff_t>(line);
    const Event event = std::move(*at);
    staged.erase(at);
    const auto record = std::find_if(records.begin(), records.end(), [&](const std::string &each) {
        Event_Record parts;
        return Parse_Record(each, parts) && parts.key == event.key;
    });
    if (event.key.empty() || record == records.end() || !Remove_Text(*record, event))
        return false;
    // Move the texts after the removed one forward.
    for (Event &other : staged)
        if (other.key == event.key && other.place > event.place)
            other.place -= event.text.size() + text_separator.size();
    if (record->size() == event.key.size() + 1 && event.place == 0)
        records.erase(record);
    return true;
}

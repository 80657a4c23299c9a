// Each day's records and texts are found by their keys, so that the number of events does not matter.
#include "transfer/icalendar_merging.h"

#include "base/joined.h"
#include "core/event_store.h"
#include "transfer/merging.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace {

/// What stands between the separators of a text, one after the other.
class Pieces {
public:
    explicit Pieces(std::string_view text) : rest_(text) {}
    bool Next(std::string_view &piece) {
        if (at_end_)
            return false;
        const std::size_t end = std::min(rest_.find(joint), rest_.size());
        piece = rest_.substr(0, end);
        at_end_ = end == rest_.size();
        rest_.remove_prefix(std::min(end + joint.size(), rest_.size()));
        return true;
    }

private:
    std::string_view rest_;
    bool at_end_ = false;
};

std::string Yearly_Key(const Date &date) {
    return Date_Key({every_year, date.month, date.day});
}

/// The texts that stand on days. A text with separators of its own stands there when all of its pieces do.
class Day_Texts {
public:
    Day_Texts(const std::vector<std::string> &records, std::size_t more) {
        known_.reserve(records.size() + more);
        for (const std::string &record : records)
            if (Event_Record parts; Part_Record(record, parts))
                Add(parts.key, {}, parts.text);
    }
    /// False: it stands there already. What stands on the day of every year stands on that of each.
    bool Add(const Date &date, std::string_view text) { return Add(Date_Key(date), Yearly_Key(date), text); }
    bool Holds(std::string_view key, std::string_view piece) const {
        return known_.contains(Joined({key, "=", piece}));
    }

private:
    bool Add(std::string_view key, std::string_view every, std::string_view text) {
        bool any_new = false;
        Pieces pieces(text);
        for (std::string_view piece; pieces.Next(piece);)
            if (!any_yearly_ || !Holds(every, piece))
                any_new = known_.insert(Joined({key, "=", piece})).second || any_new;
        any_yearly_ = any_yearly_ || key.ends_with("/9999");
        return any_new;
    }

    std::unordered_set<std::string> known_; ///< as records of one piece
    bool any_yearly_ = false;
};

/// Day and month of a key, with the separators behind them.
std::string_view Day_And_Month(std::string_view key) {
    return key.substr(0, key.rfind('/') + 1);
}

/// Of a day's records the last one is shown, so one of every year from `first_new` on would hide those that
/// have the day in one year. They get its text, and it goes before them.
void Uncover_Days(std::vector<std::string> &records, std::size_t first_new, const Day_Texts &texts) {
    std::unordered_map<std::string, std::size_t> yearly;
    Event_Record parts;
    for (std::size_t i = first_new; i < records.size(); ++i)
        if (Part_Record(records[i], parts) && Parse_Date_Key(parts.key).year == every_year)
            yearly.emplace(Day_And_Month(parts.key), i);
    if (yearly.empty())
        return;
    std::vector<bool> goes_first(records.size());
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!Part_Record(records[i], parts))
            continue;
        const auto found = yearly.find(std::string(Day_And_Month(parts.key)));
        if (found == yearly.end() || found->second == i)
            continue;
        goes_first[found->second] = true;
        Event_Record every;
        Part_Record(records[found->second], every);
        Pieces pieces(every.text);
        std::string missing;
        for (std::string_view piece; pieces.Next(piece);)
            if (!texts.Holds(parts.key, piece))
                missing.append(joint).append(piece);
        records[i] += missing;
    }
    std::vector<std::string> first, others;
    for (std::size_t i = 0; i < records.size(); ++i)
        (goes_first[i] ? first : others).push_back(std::move(records[i]));
    first.insert(first.end(), std::make_move_iterator(others.begin()), std::make_move_iterator(others.end()));
    records.swap(first);
}

} // namespace

Join_Counts Join_Events(const Calendar_File &file, const Event_Days &days,
                        std::vector<std::string> &records) {
    const std::size_t first_new = records.size();
    Record_Merger merger(records);
    Day_Texts texts(records, days.days.size());
    Join_Counts counts;
    counts.not_understood = days.not_understood;
    auto day = days.days.begin();
    for (std::uint32_t i = 0; i < file.events.size(); ++i) {
        const bool has_days = day != days.days.end() && day->event == i;
        bool joined = false;
        for (; day != days.days.end() && day->event == i; ++day) {
            const std::string text = Text_On(*day, file.events[i]);
            if (!texts.Add(day->date, text))
                continue;
            merger.Merge(day->date, text);
            joined = true;
        }
        ++(joined ? counts.imported : has_days ? counts.already_there : counts.passed_over);
    }
    Uncover_Days(records, first_new, texts);
    return counts;
}

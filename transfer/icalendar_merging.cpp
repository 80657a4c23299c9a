// Hash maps find each day's records and texts, so that the time grows only linearly with the number of
// events.
#include "transfer/icalendar_merging.h"

#include "base/joined.h"
#include "core/event_store.h"
#include "transfer/merging.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace {

/// Splits a joined text into its pieces, at each "+" between blanks. Each piece has single blanks between its
/// words and apostrophes for double quotes. The same text therefore compares equal wherever it is in a
/// record, and however another program has stored its blanks, line breaks and quotes.
class Pieces {
public:
    explicit Pieces(std::string_view text) : rest_(text) {}
    bool Next(std::string &piece) {
        if (at_end_)
            return false;
        piece.clear();
        for (;;) {
            while (!rest_.empty() && Is_Blank(rest_.front()))
                rest_.remove_prefix(1);
            std::size_t end = 0;
            while (end < rest_.size() && !Is_Blank(rest_[end]))
                ++end;
            const std::string_view word = rest_.substr(0, end);
            rest_.remove_prefix(end);
            at_end_ = word.empty();
            if (at_end_ || word == "+")
                break;
            piece.append(piece.empty() ? "" : " ").append(word);
        }
        std::replace(piece.begin(), piece.end(), '"', '\'');
        return true;
    }

private:
    static bool Is_Blank(char c) { return static_cast<unsigned char>(c) <= ' ' || c == '\x7F'; }

    std::string_view rest_;
    bool at_end_ = false;
};

std::string Yearly_Key(const Date &date) {
    return Date_Key({every_year, date.month, date.day});
}

bool Is_Yearly(std::string_view key) {
    return key.ends_with("/9999");
}

/// Returns the day and month of a key, including the slash after each.
std::string Day_And_Month(std::string_view key) {
    return std::string(key.substr(0, key.rfind('/') + 1));
}

/// The texts known for each day. A joined text counts as known if all its pieces are.
class Day_Texts {
public:
    /// Adds a text. Returns false if the day has it already.
    bool Add(std::string_view key, std::string_view text) { return Add(key, {}, text); }
    /// Adds a text to a date. Counts the texts of the same day in every year as known.
    bool Add(const Date &date, std::string_view text) { return Add(Date_Key(date), Yearly_Key(date), text); }
    void Reserve(std::size_t texts) { known_texts_.reserve(texts); }

private:
    bool Add(std::string_view key, std::string_view every, std::string_view text) {
        bool any_new = false;
        Pieces pieces(text);
        for (std::string piece; pieces.Next(piece);)
            if (!any_yearly_ || !known_texts_.contains(Joined({every, "=", piece})))
                any_new = known_texts_.insert(Joined({key, "=", piece})).second || any_new;
        any_yearly_ = any_yearly_ || Is_Yearly(key);
        return any_new;
    }

    std::unordered_set<std::string> known_texts_; ///< one entry "key=piece" for each piece
    bool any_yearly_ = false;
};

/// The events merged into yearly records, by day and month.
using Yearly_Events = std::unordered_map<std::string, std::vector<Event>>;

/// Keeps all texts of a day visible, although a day shows only its last record. Adds to each record of a
/// single date the texts that the import has merged into a yearly record for that date. Moves each new yearly
/// record (index `first_new` or later) to the front if it would hide such a record.
void Uncover_Days(std::vector<std::string> &records, std::size_t first_new, const Yearly_Events &in_yearly) {
    std::unordered_set<std::string> of_both_kinds;
    Event_Record parts;
    for (std::string &record : records) {
        if (!Parse_Record(record, parts) || Is_Yearly(parts.key))
            continue;
        const auto found = in_yearly.find(Day_And_Month(parts.key));
        if (found == in_yearly.end())
            continue;
        of_both_kinds.insert(found->first);
        const std::string key(parts.key);
        Day_Texts own;
        own.Add(key, parts.text);
        for (const Event &event : found->second)
            if ((event.date.year == every_year || Date_Key(event.date) == key) && own.Add(key, event.text))
                record.append(text_separator).append(event.text);
    }
    const auto old_end = records.begin() + static_cast<std::ptrdiff_t>(first_new);
    const auto hiding_end = std::stable_partition(old_end, records.end(), [&](const std::string &record) {
        return Parse_Record(record, parts) && Is_Yearly(parts.key) &&
               of_both_kinds.contains(Day_And_Month(parts.key));
    });
    std::rotate(records.begin(), old_end, hiding_end);
}

} // namespace

Merge_Counts Merge_Calendar(const Calendar_File &file, const Event_Days &days,
                            std::vector<std::string> &records) {
    const std::size_t first_new = records.size();
    Record_Merger merger(records);
    Day_Texts texts;
    texts.Reserve(records.size() + days.days.size());
    Event_Record parts;
    for (const std::string &record : records)
        if (Parse_Record(record, parts))
            texts.Add(parts.key, parts.text);
    Yearly_Events in_yearly;
    Merge_Counts counts;
    counts.unsupported = days.unsupported;
    auto day = days.days.begin();
    for (std::uint32_t i = 0; i < file.events.size(); ++i) {
        const bool has_days = day != days.days.end() && day->event == i;
        bool joined = false;
        for (; day != days.days.end() && day->event == i; ++day) {
            Event event{.date = day->date, .text = Text_On(*day, file.events[i])};
            if (!texts.Add(event.date, event.text))
                continue;
            merger.Merge(event);
            if (Is_Yearly(event.key))
                in_yearly[Day_And_Month(event.key)].push_back(event);
            joined = true;
        }
        ++(joined ? counts.imported : has_days ? counts.already_there : counts.skipped);
    }
    Uncover_Days(records, first_new, in_yearly);
    return counts;
}

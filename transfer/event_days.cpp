// This file also converts between clocks. A local time counts as written, whatever its zone. A UTC time
// appears in the user's local time, but repeats and compares in UTC.
#include "transfer/event_days.h"

#include "base/joined.h"
#include "platform/clock.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::int64_t most_days = 366;          ///< of one occurrence
constexpr std::size_t most_repeated_days = 1000; ///< of all occurrences of one event
constexpr std::int64_t half_a_day = seconds_a_day / 2;

/// Returns the user's local time, in seconds, at a UTC time.
std::int64_t Local_Seconds(std::int64_t utc) {
    const Date date = Date_Of(Day_Of(utc));
    const auto second = static_cast<int>(Second_Of_Day(utc));
    const platform::Date_Time local = platform::Local_Time(
        {date.year, date.month, date.day, second / 3600, second / 60 % 60, second % 60, 0});
    const Date day{static_cast<std::int16_t>(local.year), static_cast<std::int16_t>(local.month),
                   static_cast<std::int16_t>(local.day)};
    const int seconds = local.hour * 3600 + local.minute * 60 + local.second;
    return Day_Number(day) * seconds_a_day + seconds;
}

/// Moments, sorted for searching: first dates, then local times, then UTC times, each group by time.
using Moments = std::vector<Moment>;

std::pair<int, std::int64_t> Sort_Key(const Moment &moment) {
    return {moment.timed ? (moment.utc ? 2 : 1) : 0, moment.seconds};
}

bool Earlier(const Moment &a, const Moment &b) {
    return Sort_Key(a) < Sort_Key(b);
}

/// Returns whether `sorted` has a moment of the same kind as `least`, from the time of `least` to `most`
/// inclusive.
bool Has(const Moments &sorted, const Moment &least, std::int64_t most) {
    const auto found = std::lower_bound(sorted.begin(), sorted.end(), least, Earlier);
    return found != sorted.end() && !Earlier({most, least.timed, least.utc}, *found);
}

/// Finds the days of the events, one event after another.
class Day_Finder {
public:
    Day_Finder(const Calendar_File &file, const Date &today);
    void Find(std::uint32_t index, Event_Days &result);

private:
    struct Replacements {
        Moments moments;
        bool has_repeating_event = false; ///< the file also has the event that repeats
    };

    std::int64_t Utc_Offset(std::int64_t utc) const;
    std::int64_t Length() const;
    std::int64_t In_Clock_Of_Start(const Moment &moment) const;
    bool Is_In(const Moments &moments, std::int64_t moment) const;
    bool Is_Removed(std::int64_t moment) const;
    bool Find_Repetitions();
    void Add_Days(std::int64_t begin, std::int32_t first, std::int32_t last, bool for_every_year,
                  Event_Days &result);

    const Calendar_File &file_;
    std::int32_t window_begin_, window_end_;
    std::unordered_map<std::string, Replacements> replacements_; ///< by UID

    // These members belong to the current event.
    const Calendar_Event *event_ = nullptr;
    const Replacements *own_replacements_ = nullptr;
    std::uint32_t index_ = 0;
    Moment start_;
    std::int64_t length_ = 0; ///< in seconds
    Moments removed_;
    std::vector<std::int64_t> repetitions_; ///< in seconds, by the clock of the start
    bool yearly_ = false;
    std::size_t day_count_ = 0; ///< number of days added
    std::int32_t last_day_ = 0; ///< the last day added
};

bool Repeats(const Calendar_Event &event) {
    return !event.rules.empty() || !event.added.empty();
}

Day_Finder::Day_Finder(const Calendar_File &file, const Date &today) : file_(file) {
    const Date this_month{today.year, today.month, 1};
    const Date last_month = Date_Of(Day_Number(this_month) - 1);
    window_begin_ = Day_Number({last_month.year, last_month.month, 1});
    const auto next_year = static_cast<std::int16_t>(today.year + 1);
    window_end_ = Day_Number({std::min(next_year, last_year), 12, 31});
    for (const Calendar_Event &event : file.events)
        if (event.replaces)
            replacements_[event.uid].moments.push_back(*event.replaces);
    for (auto &[uid, replaced] : replacements_)
        std::sort(replaced.moments.begin(), replaced.moments.end(), Earlier);
    for (const Calendar_Event &event : file.events)
        if (const auto found = replacements_.find(event.uid); found != replacements_.end())
            found->second.has_repeating_event =
                found->second.has_repeating_event || (!event.replaces && Repeats(event));
}

/// Returns the seconds by which the clock of the start is ahead of UTC. A zone that the file does not define
/// counts as the user's.
std::int64_t Day_Finder::Utc_Offset(std::int64_t utc) const {
    const auto zone = file_.zones.find(event_->zone);
    return zone != file_.zones.end() ? zone->second : Local_Seconds(utc) - utc;
}

std::int64_t Day_Finder::Length() const {
    std::int64_t length = event_->duration.value_or(0);
    if (event_->end) {
        const auto local = [](const Moment &moment) {
            return moment.utc ? Local_Seconds(moment.seconds) : moment.seconds;
        };
        length = event_->end->utc == start_.utc ? event_->end->seconds - start_.seconds
                                                : local(*event_->end) - local(start_);
    }
    return std::clamp(length, start_.timed ? 0 : seconds_a_day, most_days * seconds_a_day);
}

/// Returns another moment of the event in seconds by the clock of the start. A date, or any moment if the
/// start is a date, gets the start's time of day. A local time stays as it is, even if the start is in UTC.
std::int64_t Day_Finder::In_Clock_Of_Start(const Moment &moment) const {
    if (!moment.timed || !start_.timed)
        return Day_Of(moment.seconds) * seconds_a_day + Second_Of_Day(start_.seconds);
    return moment.utc && !start_.utc ? moment.seconds + Utc_Offset(moment.seconds) : moment.seconds;
}

/// Returns whether a repetition is one of the moments. A date stands for its whole day. A moment by a clock
/// other than the start's matches a repetition less than half a day away, because Calendar_File keeps only
/// one offset for each zone.
bool Day_Finder::Is_In(const Moments &moments, std::int64_t moment) const {
    if (moments.empty())
        return false;
    const std::int64_t day = moment - Second_Of_Day(moment), end = day + seconds_a_day - 1;
    if (Has(moments, {day, false, false}, day))
        return true;
    if (!start_.timed)
        return Has(moments, {day, true, false}, end) || Has(moments, {day, true, true}, end);
    const std::int64_t other = start_.utc ? Local_Seconds(moment) : moment - Utc_Offset(moment);
    return Has(moments, {moment, true, start_.utc}, moment) ||
           Has(moments, {other - half_a_day + 1, true, !start_.utc}, other + half_a_day - 1);
}

bool Day_Finder::Is_Removed(std::int64_t moment) const {
    return Is_In(removed_, moment) ||
           (own_replacements_ != nullptr && Is_In(own_replacements_->moments, moment));
}

/// Sets `yearly_` for a plain yearly event, and otherwise fills `repetitions_`. Returns false if one of the
/// event's rules is not supported.
bool Day_Finder::Find_Repetitions() {
    repetitions_.clear();
    if (event_->unsupported)
        return false;
    repetitions_.push_back(start_.seconds);
    for (const Moment &moment : event_->added)
        repetitions_.push_back(In_Clock_Of_Start(moment));
    for (const std::string &text : event_->rules) {
        std::optional<Recurrence> rule = Read_Recurrence(text, start_);
        if (!rule)
            return false;
        yearly_ = event_->rules.size() == 1 && event_->added.empty() && removed_.empty() &&
                  own_replacements_ == nullptr && Is_Plain_Yearly(*rule, start_);
        if (yearly_)
            return true;
        if (rule->until && rule->until->timed && start_.timed)
            rule->until->seconds = In_Clock_Of_Start(*rule->until);
        const auto before = static_cast<std::int32_t>(length_ / seconds_a_day + 1);
        if (!Expand_Recurrence(*rule, start_, window_begin_ - before, window_end_ + 1, 2 * most_repeated_days,
                               repetitions_))
            return false;
    }
    // Many rules may give the same moments, and each moment costs two conversions of the clock.
    std::sort(repetitions_.begin(), repetitions_.end());
    repetitions_.erase(std::unique(repetitions_.begin(), repetitions_.end()), repetitions_.end());
    return true;
}

/// Adds the days from `first` to `last` on which a repetition falls. A repetition that ends at midnight does
/// not include the day that begins then.
void Day_Finder::Add_Days(std::int64_t begin, std::int32_t first, std::int32_t last, bool for_every_year,
                          Event_Days &result) {
    const std::int64_t local_begin = start_.utc ? Local_Seconds(begin) : begin;
    const std::int64_t local_end = start_.utc ? Local_Seconds(begin + length_) : begin + length_;
    const std::int32_t begin_day = Day_Of(local_begin);
    const std::int32_t end_day = std::max(begin_day, Day_Of(local_end - 1));
    const auto minute = static_cast<std::int16_t>(start_.timed ? Second_Of_Day(local_begin) / 60 : -1);
    last = std::min({last, end_day, begin_day + static_cast<std::int32_t>(most_days) - 1});
    for (std::int32_t day = std::max(first, begin_day); day <= last; ++day) {
        const bool is_added = day_count_ > 0 && day <= last_day_ && result.days.back().minute == minute;
        if (is_added || day_count_ == most_repeated_days)
            continue;
        Date date = Date_Of(day);
        if (for_every_year)
            date.year = every_year;
        result.days.push_back({index_, minute, date});
        last_day_ = std::max(last_day_, day);
        ++day_count_;
    }
}

void Day_Finder::Find(std::uint32_t index, Event_Days &result) {
    constexpr std::int32_t all = INT32_MAX;
    index_ = index;
    event_ = &file_.events[index];
    if (!event_->start || event_->text.empty() || event_->cancelled)
        return;
    const auto replaced = replacements_.find(event_->uid);
    const bool replaces = event_->replaces && replaced->second.has_repeating_event;
    own_replacements_ = replaced == replacements_.end() || event_->replaces ? nullptr : &replaced->second;
    start_ = *event_->start;
    length_ = Length();
    removed_ = event_->removed;
    std::sort(removed_.begin(), removed_.end(), Earlier);
    yearly_ = false;
    day_count_ = 0;
    last_day_ = -all;
    const auto first_day = Day_Number({first_year, 1, 1}), last_day = Day_Number({last_year, 12, 31});
    const bool repeats = !event_->replaces && (Repeats(*event_) || event_->unsupported);
    const bool understood = repeats && Find_Repetitions();
    if (repeats && !understood)
        ++result.unsupported;
    if (yearly_) // the start may precede the calendar's first year, as for a birthday without a known year
        Add_Days(start_.seconds, -all, all, true, result);
    else if (replaces)
        Add_Days(start_.seconds, window_begin_, window_end_, false, result);
    else if (!understood && !Is_Removed(start_.seconds))
        Add_Days(start_.seconds, first_day, last_day, false, result);
    else if (understood)
        for (const std::int64_t moment : repetitions_)
            if (!Is_Removed(moment))
                Add_Days(moment, window_begin_, window_end_, false, result);
}

} // namespace

Event_Days Find_Event_Days(const Calendar_File &file, const Date &today, Progress &progress) {
    Event_Days result;
    Day_Finder finder(file, today);
    for (std::size_t i = 0; i < file.events.size(); ++i) {
        finder.Find(static_cast<std::uint32_t>(i), result);
        progress.Step(8 * file.events.size() + 2 * i, 10 * file.events.size());
    }
    return result;
}

std::string Text_On(const Event_Day &day, const Calendar_Event &event) {
    if (day.minute < 0)
        return event.text;
    const auto two = [](int number) { return std::to_string(100 + number).substr(1); };
    return Joined({two(day.minute / 60), ":", two(day.minute % 60), " ", event.text});
}

// A model of the data file after each action: plain rules over lists of records, without any of the program's
// own procedures.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A date. The year 9999 stands for every year.
struct Model_Day {
    int day = 0, month = 0, year = 0;
    std::string Key() const {
        return std::to_string(day) + "/" + std::to_string(month) + "/" + std::to_string(year);
    }
    std::string Yearly_Key() const { return Model_Day{day, month, 9999}.Key(); }
    friend bool operator==(const Model_Day &, const Model_Day &) = default;
};

using Records = std::vector<std::string>;

/// A data file: its bytes and the records in them.
struct Model_File {
    std::string bytes;
    Records records;
    bool whole = true; ///< the program can read it to its end
};

/// No value: the file does not exist.
using Maybe_File = std::optional<Model_File>;

inline std::string Key_Of(const std::string &record) {
    const std::size_t equals = record.find('=');
    return equals == std::string::npos ? std::string() : record.substr(0, equals);
}

inline std::string Text_Of(const std::string &record) {
    const std::size_t equals = record.find('=');
    return equals == std::string::npos ? std::string() : record.substr(equals + 1);
}

/// Returns whether the record reads back unchanged. A record with a quote, which only another program writes,
/// must be an item without quotes around it.
inline bool Is_Writable(const std::string &record) {
    return record.find('"') == std::string::npos ||
           (record.front() != '"' && record.find_first_of(",\r\n") == std::string::npos &&
            record.front() != ' ' && record.back() != ' ');
}

inline bool All_Writable(const Records &records) {
    return std::all_of(records.begin(), records.end(), Is_Writable);
}

inline Model_File Written(const Records &records) {
    Model_File file{{}, records, true};
    for (const std::string &record : records) {
        const char *quote = record.find('"') == std::string::npos ? "\"" : "";
        file.bytes += quote + record + quote + "\r\n";
    }
    return file;
}

/// Reads a file that the program wrote: no record has a line break.
inline Model_File Read_Plain(const std::string &bytes) {
    Model_File file{bytes, {}, true};
    for (std::size_t begin = 0, end = 0; (end = bytes.find("\r\n", begin)) != std::string::npos;
         begin = end + 2) {
        const std::size_t quote = bytes[begin] == '"' ? 1 : 0;
        file.records.push_back(bytes.substr(begin + quote, end - begin - 2 * quote));
    }
    return file;
}

/// A change of the file that Undo reverts.
struct Model_Step {
    std::string name; ///< in the menu, without the day; empty: not known
    Maybe_File before, after;
    bool sure = true; ///< false: the program may not have remembered this change
};

/// The data file, and the records in memory, which the program saves if the file does not exist.
struct Model {
    Maybe_File file;
    std::optional<Records> scratch = Records{}; ///< of the last reading; no value: not known
    std::vector<Model_Step> steps;              ///< of Undo, the newest last

    /// Adds a change. The program remembers the last 20.
    void Add_Step(Model_Step step) {
        steps.push_back(std::move(step));
        if (steps.size() <= 20)
            return;
        const auto unsure = [](const Model_Step &each) { return !each.sure; };
        if (std::none_of(steps.begin(), steps.end(), unsure))
            steps.erase(steps.begin());
        else // the program may remember an older step instead of an unsure one
            std::for_each(steps.begin(), steps.end() - 20, [](Model_Step &each) { each.sure = false; });
    }

    /// Removes the newest steps, which were undone.
    void Drop_Steps(std::size_t count) {
        bool sure = true;
        for (; count > 0; --count) {
            sure = sure && steps.back().sure;
            steps.pop_back();
        }
        if (!sure) // another step with the same bytes may have been undone
            for (Model_Step &step : steps)
                step.sure = false;
    }

    Records Base() const { return file ? file->records : scratch.value_or(Records{}); }
    bool Is_Now(const std::optional<std::string> &bytes) const {
        return file.has_value() == bytes.has_value() && (!file || file->bytes == *bytes);
    }

    /// Returns the index of the first record of a day, exact or yearly, or the number of records if none
    /// exists.
    static std::size_t Find(const Records &records, const Model_Day &day) {
        const auto same = [&](const std::string &record) {
            const std::string key = Key_Of(record);
            return !key.empty() && (key == day.Key() || key == day.Yearly_Key());
        };
        return static_cast<std::size_t>(std::find_if(records.begin(), records.end(), same) - records.begin());
    }

    /// Returns the editor's content for the day: the text of the last record, and whether any record is
    /// yearly.
    std::pair<std::string, bool> Message(const Model_Day &day) const {
        std::pair<std::string, bool> message;
        if (!file)
            return message;
        for (const std::string &record : file->records) {
            if (Key_Of(record) == day.Yearly_Key())
                message = {Text_Of(record), true};
            else if (Key_Of(record) == day.Key())
                message.first = Text_Of(record);
        }
        return message;
    }
};

/// The data file after a successful action, and the records in memory; no value: any.
struct Outcome {
    Maybe_File file;
    std::optional<Records> scratch;
    std::size_t undone = 0; ///< steps of Undo that this reverts
};

/// The possible outcomes of an action. If empty, the action cannot succeed.
using Outcomes = std::vector<Outcome>;

inline Outcomes After_Save(const Model &model, const Model_Day &day, const std::string &text, bool yearly) {
    Records records = model.Base();
    const bool whole = !model.file || model.file->whole;
    const std::size_t at = Model::Find(records, day);
    if (text.empty() && at == records.size())
        return {{model.file, whole && (model.file || model.scratch) ? std::optional(records) : std::nullopt}};
    if (!whole)
        return {};
    Records scratch = records;
    const std::string record = (yearly ? day.Yearly_Key() : day.Key()) + "=" + text;
    if (text.empty())
        records.erase(records.begin() + static_cast<std::ptrdiff_t>(at));
    else if (at == records.size())
        records.push_back(record);
    else
        records[at] = record;
    // An added record enters the memory with the next reading.
    if (at < scratch.size())
        scratch = records;
    if (!All_Writable(records))
        return {};
    return {{Written(records), scratch}};
}

inline bool Same_Bytes(const Maybe_File &a, const Maybe_File &b) {
    return a.has_value() == b.has_value() && (!a || a->bytes == b->bytes);
}

/// Returns the outcomes of Undo: it reverts the newest step if the file is as that step left it.
inline Outcomes After_Undo(const Model &model) {
    Outcomes outcomes;
    bool all_unsure = true;
    for (std::size_t i = model.steps.size(); i > 0 && all_unsure; --i) {
        const Model_Step &step = model.steps[i - 1];
        all_unsure = !step.sure;
        if (Same_Bytes(step.after, model.file) ||
            all_unsure) // the program may have remembered them as one step
            outcomes.push_back({step.before, step.sure ? std::optional(Records{}) : std::nullopt,
                                model.steps.size() - i + 1});
    }
    const bool may_stay =
        model.steps.empty() || !model.steps.back().sure || !Same_Bytes(model.steps.back().after, model.file);
    if (may_stay)
        outcomes.push_back({model.file, model.scratch});
    return outcomes;
}

/// An event of an import file.
struct Model_Event {
    Model_Day day;
    std::string text;
};

/// A CSV file to be imported.
struct Model_CSV {
    std::vector<Model_Event> events;
    bool good = true;
};

inline Outcomes After_Import(const Model &model, const Model_CSV &csv) {
    if (!csv.good || (model.file && !model.file->whole))
        return {};
    if (csv.events.empty())
        return {{model.file, model.Base()}};
    Records records = model.Base();
    for (const Model_Event &event : csv.events) {
        const std::size_t at = Model::Find(records, event.day);
        if (at == records.size())
            records.push_back(event.day.Key() + "=" + event.text);
        else
            records[at] += " + " + event.text;
    }
    if (!All_Writable(records))
        return {};
    return {{Written(records), records}};
}

/// Returns the files that a long import may leave while it shows its progress: with the first events only.
inline Outcomes Import_Parts(const Model &model, const Model_CSV &csv) {
    Outcomes parts;
    Model_CSV first;
    for (const Model_Event &event : csv.events) {
        first.events.push_back(event);
        const Outcomes part = After_Import(model, first);
        parts.insert(parts.end(), part.begin(), part.end());
    }
    return csv.good ? parts : Outcomes{};
}

/// A calendar file to be imported. A yearly event has the year 9999.
struct Model_ICalendar {
    std::vector<Model_Event> events;
    bool good = true;
    std::optional<Records> exported; ///< the records from which the program made the file
};

/// Returns whether `now` has the records of `before` in their order, each unchanged or with more text
/// appended, and each event on its day. Imported texts have ' for ".
inline bool Has_Merged(const Records &before, const Records &now, const Model_ICalendar &calendar) {
    std::size_t kept = 0;
    for (const std::string &record : now)
        if (kept < before.size() && (record == before[kept] || record.starts_with(before[kept] + " + ")))
            ++kept;
    return kept == before.size() &&
           std::all_of(calendar.events.begin(), calendar.events.end(), [&](const Model_Event &event) {
               return std::any_of(now.begin(), now.end(), [&](const std::string &record) {
                   const std::string key = Key_Of(record);
                   std::string text = " + " + Text_Of(record) + " + ";
                   std::replace(text.begin(), text.end(), '"', '\'');
                   return (key == event.day.Key() || key == event.day.Yearly_Key()) &&
                          text.find(" + " + event.text + " + ") != std::string::npos;
               });
           });
}

/// Returns the outcomes of an import of a calendar file: `disk`, if Has_Merged holds for it.
inline Outcomes After_ICalendar(const Model &model, const Model_ICalendar &calendar,
                                const std::optional<std::string> &disk) {
    if (!calendar.good || (model.file && !model.file->whole))
        return {};
    const Records before = model.file ? model.file->records : Records{};
    const Model_File now = disk ? Read_Plain(*disk) : Model_File();
    if (model.Is_Now(disk) && (calendar.exported == before || Has_Merged(before, before, calendar)))
        return {{model.file, before}};
    if (calendar.exported != before && Has_Merged(before, now.records, calendar))
        return {{now, now.records}};
    const bool quoted = std::any_of(before.begin(), before.end(), [](const std::string &record) {
        return record.find('"') != std::string::npos;
    });
    return quoted ? Outcomes{} : Outcomes{{Written({"the records with the imported events"}), {}}};
}

/// Returns the outcomes of removing a line from the list of events. `line_of` returns the line of a record,
/// empty for none. `staged`: the list may show imported events, each of which may be a part of a record.
inline Outcomes After_Removal(const Model &model, const std::string &line, bool staged,
                              const std::function<std::string(const std::string &)> &line_of) {
    const Records base = model.file ? model.file->records : Records{};
    Outcomes outcomes;
    const auto add = [&](const Records &records) {
        if (All_Writable(records) && (!model.file || model.file->whole))
            outcomes.push_back({Written(records), {}});
    };
    for (std::size_t i = 0; i < base.size(); ++i) {
        if (line_of(base[i]) != line)
            continue;
        Records records = base;
        records.erase(records.begin() + static_cast<std::ptrdiff_t>(i));
        add(records);
    }
    const bool whole = !model.file || model.file->whole;
    if (outcomes.empty() && whole) // the record of the line is gone
        outcomes.push_back({model.file, {}});
    if (!staged)
        return outcomes;
    const std::string end = line.substr(std::min(line.find("  -  ") + 5, line.size()));
    for (std::size_t i = 0; i < base.size(); ++i) {
        Records records = base;
        const std::size_t part = base[i].find(" + " + end);
        if (part != std::string::npos) {
            records[i].erase(part, 3 + end.size());
            add(records);
        }
        if (Text_Of(base[i]).starts_with(end + " + ")) {
            records = base;
            records[i] = Key_Of(base[i]) + "=" + Text_Of(base[i]).substr(end.size() + 3);
            add(records);
        }
    }
    outcomes.push_back({model.file, {}});
    return outcomes;
}

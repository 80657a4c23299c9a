// What the data file holds after each action, told by plain rules over lists of records: none of the
// program's own procedures decides anything here. Which action comes is in program.cpp.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A day of a month of a year as its parts; the year 9999 stands for every year.
struct Model_Day {
    int day = 0, month = 0, year = 0;
    std::string Key() const {
        return std::to_string(day) + "/" + std::to_string(month) + "/" + std::to_string(year);
    }
    std::string Yearly_Key() const { return Model_Day{day, month, 9999}.Key(); }
    friend bool operator==(const Model_Day &, const Model_Day &) = default;
};

using Records = std::vector<std::string>;

/// A data file: what is in it, and what it is read as.
struct Model_File {
    std::string bytes;
    Records records;
    bool whole = true; ///< it can be read to its end
};

/// Nothing: there is no file.
using Maybe_File = std::optional<Model_File>;

inline std::string Key_Of(const std::string &record) {
    const std::size_t equals = record.find('=');
    return equals == std::string::npos ? std::string() : record.substr(0, equals);
}

inline std::string Text_Of(const std::string &record) {
    const std::size_t equals = record.find('=');
    return equals == std::string::npos ? std::string() : record.substr(equals + 1);
}

/// One that reads back as it is: a quote in it, which only another hand wrote, stands in a plain item.
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

/// A file that the program wrote: no record has a line break.
inline Model_File Read_Plain(const std::string &bytes) {
    Model_File file{bytes, {}, true};
    for (std::size_t begin = 0, end = 0; (end = bytes.find("\r\n", begin)) != std::string::npos;
         begin = end + 2) {
        const std::size_t quote = bytes[begin] == '"' ? 1 : 0;
        file.records.push_back(bytes.substr(begin + quote, end - begin - 2 * quote));
    }
    return file;
}

/// The file, and the list that is saved where there is none: that of the last reading.
struct Model {
    Maybe_File file;
    std::optional<Records> scratch = Records{}; ///< nothing: not known

    Records Base() const { return file ? file->records : scratch.value_or(Records{}); }
    bool Is_Now(const std::optional<std::string> &bytes) const {
        return file.has_value() == bytes.has_value() && (!file || file->bytes == *bytes);
    }

    /// The first record of a day, exact or yearly; the number of records where there is none.
    static std::size_t Find(const Records &records, const Model_Day &day) {
        const auto same = [&](const std::string &record) {
            const std::string key = Key_Of(record);
            return !key.empty() && (key == day.Key() || key == day.Yearly_Key());
        };
        return static_cast<std::size_t>(std::find_if(records.begin(), records.end(), same) - records.begin());
    }

    /// What an editor of the day shows: the text of its last record, and whether one is yearly.
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

/// What may be on the disk after an action that went well, and the list that is in memory then; nothing where
/// that is not prescribed.
struct Outcome {
    Maybe_File file;
    std::optional<Records> scratch;
};

/// None: it cannot go well.
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
    // A record that is added enters the memory with the next reading only.
    if (at < scratch.size())
        scratch = records;
    if (!All_Writable(records))
        return {};
    return {{Written(records), scratch}};
}

/// An event of a file to be imported.
struct Model_Event {
    Model_Day day;
    std::string text;
};

/// A file of events to be imported.
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

/// After the removal of a line of the list of events. `line_of` gives the line of a record, empty for none.
/// `staged`: the list may be that of an import, whose line may be part of a record of its day.
inline Outcomes After_Removal(const Model &model, const std::string &line, bool staged,
                              const std::function<std::string(const std::string &)> &line_of) {
    const Records base = model.Base();
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
    if (outcomes.empty() && whole) // a line that stands for no record any more
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

// The files that the program can read: data files, CSV files, calendars and configurations. The input bytes
// choose their content, which is kept for the model as well.
#pragma once

#include "fuzz/program_model.h"
#include "fuzz/program_windows.h"
#include "platform/locale.h"
#include "tests/fakes/fakes.h"

#include <map>
#include <memory>
#include <string>

/// Demands that the program skips lines that are not records, removes exactly the chosen event, and leaves
/// the file and the memory unchanged after a failure.
constexpr bool strict = true;

inline const std::string Data_Path = "C:\\Vellatro\\calendar.dat";
inline const std::string Backup_Path = "C:\\Vellatro\\data.bak";
inline const std::string Exported_Path = "C:\\out\\e.ics";

inline bool Name_Is(const std::string &a, const std::string &b) {
    return !Name_Less()(a, b) && !Name_Less()(b, a);
}

inline int Days_In_Month(int year, int month) {
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 ? (leap ? 29 : 28) : month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// Returns the date of a key in the plain form; no value for any other text and for an impossible date.
inline std::optional<Model_Day> Day_Of_Key(const std::string &key) {
    Model_Day day;
    const std::size_t first = key.find('/');
    const std::size_t second = first == std::string::npos ? first : key.find('/', first + 1);
    if (second == std::string::npos)
        return std::nullopt;
    day = {Number_At(key, 0), Number_At(key, first + 1), Number_At(key, second + 1)};
    const bool is_day = day.month >= 1 && day.month <= 12 && day.day >= 1 &&
                        day.day <= Days_In_Month(day.year == 9999 ? 2000 : day.year, day.month);
    return is_day && day.Key() == key ? std::optional(day) : std::nullopt;
}

inline bool All_Keyed(const Records &records) {
    return std::all_of(records.begin(), records.end(),
                       [](const std::string &record) { return Day_Of_Key(Key_Of(record)).has_value(); });
}

inline std::string Random_Text(Bytes &in, bool with_quote) {
    constexpr const char *texts[] = {"A",
                                     "B, C",
                                     "x=y",
                                     "\xC3\xA4\xE2\x82\xAC",
                                     "",
                                     "Vellatro",
                                     "A + B",
                                     "7/3/2002=no key",
                                     "An event of several words that no day box has room for"};
    return std::string(texts[in.Pick(9)]) + (with_quote ? "\"q\"" : "");
}

inline Model_Day Random_Day(Bytes &in) {
    constexpr int days[] = {5, 1, 6, 28}, months[] = {3, 1, 2, 12}, years[] = {2002, 9999, 2003, 2001};
    Model_Day day{days[in.Pick(4)], months[in.Pick(8) % 4], years[in.Pick(4)]};
    if (in.Pick(12) == 1)
        day = {29, 2, day.year == 9999 ? 9999 : 2004};
    return day;
}

/// Returns a data file as the program or another program may have written it.
inline Model_File Random_Data(Bytes &in) {
    Model_File file;
    for (int count = in.Pick(7); count > 0; --count) {
        const int form = in.Pick(8);
        std::string record = Random_Day(in).Key() + "=" + Random_Text(in, false);
        if (strict && form == 1)
            record = "note to myself";
        if (strict && form == 2) {
            file.bytes += "\r\n";
            file.records.emplace_back();
        }
        if (form == 3)
            record = Random_Day(in).Key() + "=say \"hi\"";
        const bool quoted =
            record.find('"') == std::string::npos && (record.find(',') != std::string::npos || form < 6);
        file.bytes += quoted ? "\"" + record + "\"\r\n" : record + "\n";
        file.records.push_back(record);
    }
    const int end = in.Pick(strict ? 16 : 9);
    file.whole = end != 1 && end < 10;
    if (end == 1)
        file.bytes += "\"5/3/2002=open";
    if (end == 9)
        file.bytes += "\x1A\"8/8/2002=behind the end\"\r\n\"";
    if (end == 10)
        file.bytes.insert(file.bytes.begin(), '\0');
    if (end == 11)
        file.bytes += std::string("5/3/2002=n\0ul", 13);
    if (end >= 12)
        file.bytes.insert(0, end < 14 ? "\xFF\xFE" : "\xFE\xFF");
    return file;
}

/// Adds a theme pack with its own places and styles.
inline void Make_Pack() {
    const std::string folder = "C:\\Vellatro\\Default\\";
    Fakes().files[folder + "settings.ini"] = "1=0-3-1\r\n3=1-6-0\r\n12=1-0-2\r\n2=x-y-z\r\n";
    for (int month = 1; month <= 12; ++month)
        Fakes().pictures[folder + std::to_string(month) + ".jpg"] = {
            1, 1, std::make_shared<std::vector<std::uint8_t>>(3)};
}

/// The files that the user can choose in a file dialog, with their content.
class Random_Files {
public:
    explicit Random_Files(Bytes &in) : in_(in) {}

    /// Makes all files again.
    void Renew() {
        for (const char *name : {"C:\\in\\a.dat", "C:\\in\\b.dat"}) {
            data_[name] = Random_Data(in_);
            Fakes().files[name] = data_[name].bytes;
        }
        for (const char *name : {"C:\\in\\a.csv", "C:\\in\\b.csv"})
            Make_CSV(name);
        for (const char *name : {"C:\\in\\a.ics", "C:\\in\\b.ics"})
            Make_ICalendar(name);
        Make_Configuration();
    }

    /// Returns an answer to a file dialog; empty: cancelled.
    std::string Choose(const std::string &title) {
        const bool other = in_.Pick(2) == 1;
        const int way = in_.Pick(12);
        if (way == 1)
            return {};
        if (way == 2)
            return "C:\\in\\missing";
        if (way == 3)
            return "C:\\VELLATRO\\Calendar.dat";
        if (title.starts_with("Export"))
            return way == 4 ? "C:\\in\\a.ini" : "C:\\out\\e";
        chosen = "C:\\in\\c.ini";
        if (title == "Import Data File")
            chosen = other ? "C:\\in\\b.dat" : "C:\\in\\a.dat";
        if (title == "Import Events from CSV File")
            chosen = other ? "C:\\in\\b.csv" : "C:\\in\\a.csv";
        if (title == "Import Events from iCalendar File")
            chosen = way > 6 && calendars_.contains(Exported_Path) ? Exported_Path
                     : other                                       ? "C:\\in\\b.ics"
                                                                   : "C:\\in\\a.ics";
        return chosen;
    }

    Model_File Data(const std::string &path) const { return data_.at(path); }
    /// Returns a model that cannot be imported if the file is not one of the CSV files.
    Model_CSV CSV(const std::string &path) const {
        const auto file = csv_.find(path);
        return file == csv_.end() ? Model_CSV{{}, false} : file->second;
    }

    /// Returns a model that cannot be imported if the file is not one of the calendars.
    Model_ICalendar ICalendar(const std::string &path) const {
        const auto file = calendars_.find(path);
        return file == calendars_.end() ? Model_ICalendar{{}, false, {}} : file->second;
    }
    /// Records that the program has exported these records as a calendar.
    void Note_Export(const Records &records) { calendars_[Exported_Path] = {{}, true, records}; }

    std::string chosen;

private:
    void Make_ICalendar(const std::string &path) {
        Model_ICalendar calendar;
        std::string bytes = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
        const auto digits = [](int number, int count) {
            return std::to_string(100000 + number).substr(static_cast<std::size_t>(6 - count));
        };
        for (int count = in_.Pick(5); count > 0; --count) {
            const Model_Day day = Random_Day(in_);
            constexpr std::pair<const char *, const char *> texts[] = {{"A", "A"},
                                                                       {"B\\, C", "B, C"},
                                                                       {"say \"hi\"", "say 'hi'"},
                                                                       {"long\r\n er", "longer"},
                                                                       {"", ""}};
            const auto &[written, meant] = texts[in_.Pick(5)];
            const bool timed = in_.Pick(4) == 1;
            bytes += std::string("BEGIN:VEVENT\r\nSUMMARY:") + written +
                     "\r\nDTSTART:" + digits(day.year == 9999 ? 2000 : day.year, 4) + digits(day.month, 2) +
                     digits(day.day, 2) + (timed ? "T091500\r\n" : "\r\n") +
                     (day.year == 9999 ? "RRULE:FREQ=YEARLY\r\n" : "") + "END:VEVENT\r\n";
            if (*meant != '\0')
                calendar.events.push_back({day, std::string(timed ? "09:15 " : "") + meant});
        }
        const int fault = in_.Pick(9);
        calendar.good = fault != 1 && fault != 2;
        if (fault == 2)
            bytes.clear();
        if (calendar.good)
            bytes += "END:VCALENDAR\r\n";
        Fakes().files[path] = bytes;
        calendars_[path] = calendar;
    }

    void Make_CSV(const std::string &path) {
        Model_CSV csv;
        std::string bytes = "\"Subject\",\"Start Date\",\"Description\"\r\n";
        const int fault = in_.Pick(9);
        if (fault == 1)
            bytes = "\"Subject\",\"Date\",\"Description\"\r\n";
        const int times = in_.Pick(16) == 1 ? 70 : 1;
        for (int count = in_.Pick(5) * times; count > 0; --count) {
            Model_Day day = Random_Day(in_);
            if (day.year == 9999)
                day.year = 2004;
            const std::string date = platform::Short_Date(day.year, day.month, day.day);
            constexpr std::pair<const char *, const char *> texts[] = {{"A", "A"},
                                                                       {"B, C", "B, C"},
                                                                       {"d|e", "d,e"},
                                                                       {"say \"\"hi\"\" now", "say hi now"},
                                                                       {"Vellatro", "Vellatro"}};
            const auto &subject = texts[in_.Pick(5)], &description = texts[in_.Pick(5)];
            bytes +=
                std::string("\"") + subject.first + "\",\"" + date + "\",\"" + description.first + "\"\r\n";
            const bool dropped = std::string(subject.second) == "Vellatro";
            csv.events.push_back({day, dropped ? description.second
                                               : subject.second + std::string(" - ") + description.second});
        }
        constexpr const char *faults[] = {"", "", "\"A\",\"no date\",\"B\"\r\n", "\"A\",\"5/3/2002\",B\r\n",
                                          "\"A\",\"5/3"};
        if (fault < 5)
            bytes += faults[fault];
        csv.good = fault == 0 || fault > 4;
        Fakes().files[path] = bytes;
        csv_[path] = csv;
    }

    void Make_Configuration() {
        constexpr const char *lines[] = {
            "Style=0",       "TaskPos=7",       "TaskPos=4",         "Col_Today=255",     "Use_Themes=1",
            "Use_Themes=0",  "Use_Theme_Pos=0", "Use_Theme_Style=0", "Auto_Compact=1",    "Auto_Compact=0",
            "Tooltips=2",    "Tooltips=0",      "Pack_Name=Absent",  "Pack_Name=Default", "Allow_Dragging=1",
            "Show_Alerts=0", "Show_Alerts=1",   "Bar_Time=1",        "Manual_PosX=300",   "Unknown=1",
            "no setting",    "Style=x"};
        std::string &bytes = Fakes().files["C:\\in\\c.ini"];
        bytes.clear();
        for (int count = in_.Pick(6); count > 0; --count)
            bytes += std::string("\"") + lines[in_.Pick(22)] + "\"\r\n";
    }

    Bytes &in_;
    std::map<std::string, Model_File, Name_Less> data_;
    std::map<std::string, Model_CSV, Name_Less> csv_;
    std::map<std::string, Model_ICalendar, Name_Less> calendars_;
};

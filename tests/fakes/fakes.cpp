#include "tests/fakes/fakes.h"

#include "base/characters.h"
#include "base/scoped_value.h"
#include "core/date.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_loop.h"
#include "platform/text.h"
#include "platform/wallpaper.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>

bool Name_Less::operator()(const std::string &a, const std::string &b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) < std::tolower(static_cast<unsigned char>(y));
    });
}

Fake_System &Fakes() {
    static Fake_System system;
    return system;
}

void Reset_Fakes() {
    Fakes() = Fake_System{};
}

void Require(bool met, const std::string &message) {
    if (met)
        return;
    if (Fakes().on_failure)
        return Fakes().on_failure(message);
    std::fprintf(stderr, "%s\n", message.c_str());
    std::abort();
}

platform::Date_Time Later(const platform::Date_Time &time, int minutes) {
    const Date date{static_cast<std::int16_t>(time.year), static_cast<std::int16_t>(time.month),
                    static_cast<std::int16_t>(time.day)};
    const int moment = time.hour * 60 + time.minute + minutes;
    const int of_day = (moment % 1440 + 1440) % 1440;
    const Date day = Date_Of(Day_Number(date) + (moment - of_day) / 1440);
    return {day.year, day.month, day.day, of_day / 60, of_day % 60, time.second, time.millisecond};
}

namespace platform {

Date_Time Now() {
    return Fakes().now;
}

Date_Time Now_In_Utc() {
    return Later(Fakes().now, -Fakes().zone_minutes);
}

Date_Time Local_Time(const Date_Time &utc) {
    return Later(utc, Fakes().zone_minutes);
}

unsigned Milliseconds() {
    return Fakes().milliseconds += Fakes().clock_step;
}

void Paint_Waiting() {
    if (Fakes().painting)
        Fakes().painting();
}

bool Show_File_Dialog(File_Dialog &dialog) {
    Fake_System &system = Fakes();
    const Scoped_Value open(system.open_boxes, system.open_boxes + 1);
    if (system.answer_dialog && system.expected_dialogs.empty())
        system.expected_dialogs.push_back({dialog.title, system.answer_dialog(dialog)});
    const std::string next = system.expected_dialogs.empty() ? "none" : system.expected_dialogs.front().title;
    Require(next == dialog.title, "unexpected file dialog: " + dialog.title + "\nexpected: " + next);
    if (next != dialog.title)
        return false;
    const Expected_Dialog expected = system.expected_dialogs.front();
    system.expected_dialogs.pop_front();
    if (!expected.answer.empty()) {
        dialog.file = expected.answer;
        dialog.file_title = expected.answer.substr(expected.answer.rfind('\\') + 1);
    }
    if (expected.look)
        expected.look(dialog);
    return !expected.answer.empty();
}

std::string Month_Name(int month) {
    return Fakes().months.at(static_cast<std::size_t>(month - 1));
}

std::string Weekday_Name(int weekday) {
    constexpr const char *names[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};
    return names[weekday];
}

std::string Short_Weekday_Name(int weekday) {
    return Weekday_Name(weekday).substr(0, 3);
}

int First_Weekday() {
    return Fakes().first_weekday;
}

std::string Short_Date(int year, int month, int day) {
    const std::string &pattern = Fakes().short_date_pattern;
    std::string text;
    for (std::size_t i = 0, end = 0; i < pattern.size(); i = end) {
        const char letter = pattern[i];
        end = std::min(pattern.find_first_not_of(letter, i), pattern.size());
        std::string part = pattern.substr(i, end - i);
        if (letter == 'd' || letter == 'm' || letter == 'y')
            part = std::to_string(letter == 'd'   ? day
                                  : letter == 'm' ? month
                                  : end - i == 2  ? year % 100
                                                  : year);
        text.append(end - i - std::min(part.size(), end - i), '0');
        text += part;
    }
    return text;
}

std::string Date_Time_Text(const Date_Time &time) {
    const auto two = [](int number) { return std::to_string(100 + number).substr(1); };
    return Short_Date(time.year, time.month, time.day) + " " + two(time.hour) + ":" + two(time.minute) + ":" +
           two(time.second);
}

// Reads three numbers in the order of the pattern. If the month is invalid, day and month change places.
std::optional<Date_Time> Read_Date(std::string_view text) {
    std::string digits(text);
    std::replace_if(
        digits.begin(), digits.end(), [](char c) { return c < '0' || c > '9'; }, ' ');
    const std::string &pattern = Fakes().short_date_pattern;
    std::map<std::size_t, int> numbers{
        {pattern.find('y'), 0}, {pattern.find('m'), 0}, {pattern.find('d'), 0}};
    std::size_t at = 0;
    for (auto &[place, number] : numbers) {
        at = std::min(digits.find_first_not_of(' ', at), digits.size());
        number = std::atoi(digits.c_str() + at);
        at = std::min(digits.find(' ', at), digits.size());
    }
    Date_Time date{numbers[pattern.find('y')], numbers[pattern.find('m')], numbers[pattern.find('d')]};
    if (date.month > 12 && date.day <= 12)
        std::swap(date.month, date.day);
    if (date.year < 100)
        date.year += date.year < 30 ? 2000 : 1900;
    if (date.year > 9999 || date.month < 1 || date.month > 12 || date.day < 1)
        return std::nullopt;
    const Date first{static_cast<std::int16_t>(date.year), static_cast<std::int16_t>(date.month), 1};
    return date.day <= DaysInMonth(first) ? std::optional(date) : std::nullopt;
}

// Decodes Windows-1252.
std::string Ansi_To_Utf8(std::string_view bytes) {
    constexpr char16_t from_80[] = u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160"
                                   u"\u2039\u0152\u008D\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022"
                                   u"\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        Append_Utf8(text, code >= 0x80 && code < 0xA0 ? from_80[code - 0x80] : code);
    }
    return text;
}

std::string Program_Folder() {
    return "C:\\Vellatro";
}

std::string Program_Name() {
    return "vellatro";
}

bool File_Exists(const std::string &path) {
    return Fakes().files.contains(path);
}

bool Folder_Exists(const std::string &path) {
    return Fakes().folders.contains(path) || !Names_In_Folder(path, Entry_Kind::Files).empty();
}

std::vector<std::string> Names_In_Folder(const std::string &folder, Entry_Kind kind) {
    std::set<std::string, Name_Less> names;
    const auto add = [&](const std::string &path, bool is_folder) {
        const std::string begin = folder + "\\", own = path.substr(0, begin.size());
        if (path.size() <= begin.size() || Name_Less()(own, begin) || Name_Less()(begin, own))
            return;
        const std::size_t separator = path.find('\\', begin.size());
        is_folder = is_folder || separator != std::string::npos;
        if (is_folder == (kind == Entry_Kind::Folders))
            names.insert(path.substr(begin.size(), separator - begin.size()));
    };
    for (const auto &[path, bytes] : Fakes().files)
        add(path, false);
    for (const std::string &path : Fakes().folders)
        add(path, true);
    return {names.begin(), names.end()};
}

namespace {

bool Fails(const std::string &path) {
    return Fakes().file_fails && Fakes().file_fails(path);
}

} // namespace

void Delete_File(const std::string &path) {
    const bool is_open = Fakes().wallpaper_ordered && Fakes().wallpapers.back() == path;
    if (is_open || Fails(path) || Fakes().unwritable.contains(path) || Fakes().files.erase(path) == 0)
        throw File_Error(path + " cannot be deleted");
}

Date_Time Modified_Time(const std::string &path) {
    if (Fails(path) || !File_Exists(path))
        throw File_Error(path + " is not there");
    const auto written = Fakes().written.find(path);
    return written == Fakes().written.end() ? Date_Time{2002, 2, 1, 9, 5, 0, 0} : written->second;
}

Picture Load_Picture(const std::string &path) {
    ++Fakes().loads;
    const auto picture = Fakes().pictures.find(path);
    if (picture == Fakes().pictures.end())
        throw Picture_Error(path + " cannot be loaded");
    return picture->second;
}

void Set_Wallpaper(const std::string &path, const std::string &monitors) {
    Fakes().wallpapers.push_back(path + monitors);
    Fakes().wallpaper_ordered = true;
}

std::string Wallpaper_Of_Monitors() {
    return Fakes().monitors;
}

std::string Persistent_Wallpaper(const std::string &path) {
    return path.ends_with("TranscodedWallpaper") ? path + ", copied" : path;
}

bool Wait_For_Wallpaper() {
    Fakes().wallpaper_ordered = false;
    return true;
}

bool Path_Exists(const std::string &path) {
    return File_Exists(path) || Fakes().folders.contains(path);
}

std::string Read_File(const std::string &path) {
    ++Fakes().reads;
    const auto file = Fakes().files.find(path);
    if (Fails(path) || file == Fakes().files.end() || Fakes().unreadable.contains(path))
        throw File_Error(path + " cannot be read");
    return file->second;
}

void Replace_File(const std::string &path, std::string_view bytes) {
    ++Fakes().writes;
    if (Fails(path) || Fakes().folders.contains(path) || Fakes().unwritable.contains(path))
        throw File_Error(path + " cannot be written");
    Fakes().files[path] = bytes;
    Fakes().written[path] = Now();
}

void Copy_File(const std::string &from, const std::string &to) {
    Replace_File(to, Read_File(from));
    Fakes().written[to] = Modified_Time(from);
}

namespace {

std::string Path(std::string_view folder, std::string_view name) {
    return std::string(folder).append("\\").append(name);
}

} // namespace

std::optional<std::string> Read_User_Value(std::string_view key, std::string_view name) {
    const auto value = Fakes().registry.find(Path(key, name));
    return value == Fakes().registry.end() ? std::nullopt : std::optional(value->second);
}

void Write_User_Value(std::string_view key, std::string_view name, std::string_view text) {
    ++Fakes().registry_writes;
    if (Fakes().registry_refuses_writes)
        throw Registry_Error(std::string(key) + " cannot be written");
    Fakes().registry[Path(key, name)] = text;
}

// Values outside HKEY_CURRENT_USER are stored with the root's name in front. Only texts can be stored.

Registry_Root Find_Registry_Root(std::string_view name) {
    return name == "HKCU" ? 1 : 0;
}

Registry_Value Registry_Read(std::string_view root_name, std::string_view key, std::string_view name, char,
                             const Registry_Value &standard) {
    const auto text = Read_User_Value(root_name == "HKCU" ? std::string(key) : Path(root_name, key), name);
    return text ? Registry_Value(*text) : standard;
}

bool Registry_Writable(std::string_view, std::string_view) {
    return !Fakes().registry_refuses_writes;
}

void Registry_Write(std::string_view root_name, std::string_view key, std::string_view name, char,
                    const Registry_Value &value) {
    Registry_Write_String(1, root_name == "HKCU" ? std::string(key) : Path(root_name, key), name,
                          std::get<std::string>(value));
}

void Registry_Write_String(Registry_Root root, std::string_view key, std::string_view name,
                           std::string_view text) {
    if (root != 0 && !Fakes().registry_refuses_writes)
        Fakes().registry[Path(key, name)] = text;
}

Box_Answer Message_Box(std::string_view text, Box_Icon icon, Box_Buttons buttons, std::string_view title) {
    Fake_System &system = Fakes();
    const Scoped_Value open(system.open_boxes, system.open_boxes + 1);
    system.boxes.push_back({std::string(text), std::string(title), icon, buttons});
    // The safest answer, for boxes that no test expects.
    const Box_Answer safest = buttons == Box_Buttons::Ok       ? Box_Answer::Ok
                              : buttons == Box_Buttons::Yes_No ? Box_Answer::No
                                                               : Box_Answer::Cancel;
    if (system.answer_box && system.expected_boxes.empty())
        return system.answer_box(Shown_Box(system.boxes.back()));
    const std::string next = system.expected_boxes.empty() ? "none" : system.expected_boxes.front().text;
    if (next != text) {
        Require(system.any_box, "unexpected message box: " + std::string(text) + "\nexpected: " + next);
        return safest;
    }
    const Expected_Box expected = system.expected_boxes.front();
    system.expected_boxes.pop_front();
    const bool offered = (expected.answer == Box_Answer::Ok) == (buttons == Box_Buttons::Ok) &&
                         (expected.answer != Box_Answer::Cancel || buttons == Box_Buttons::Yes_No_Cancel);
    Require(offered, "the expected answer is no button of this message box: " + std::string(text));
    if (expected.meanwhile)
        expected.meanwhile();
    return expected.answer;
}

bool Modal_Box_Is_Open() {
    return Fakes().open_boxes > 0;
}

} // namespace platform

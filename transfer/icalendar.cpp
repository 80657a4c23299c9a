#include "transfer/icalendar.h"

#include "base/cut_text.h"
#include "base/joined.h"
#include "base/letters.h"
#include "core/convert.h"
#include "platform/clock.h"

#include <algorithm>

namespace {

bool Same_Word(std::string_view text, std::string_view capitals) {
    return text.size() == capitals.size() &&
           std::equal(text.begin(), text.end(), capitals.begin(),
                      [](char letter, char capital) { return To_Upper(letter) == capital; });
}

/// Returns the index of the first of `characters` outside quotes, or the text's length.
std::size_t Find_Unquoted(std::string_view text, std::string_view characters) {
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"')
            quoted = !quoted;
        else if (!quoted && characters.find(text[i]) != std::string_view::npos)
            return i;
    }
    return text.size();
}

/// Returns the text in a form that the data file can hold: on one line, with apostrophes for double quotes
/// and blanks for control characters.
std::string In_One_Line(std::string_view text) {
    std::string line = Without_Line_Breaks(std::string(text));
    for (char &c : line)
        c = static_cast<unsigned char>(c) < ' ' || c == '\x7F' ? ' ' : c == '"' ? '\'' : c;
    return line;
}

/// The properties that make up the text of an event, as written in the file.
struct Text_Parts {
    std::string summary;
    std::string description;
    std::string location;
};

/// Returns the event's summary, or else the first line of its description, followed by its location. Returns
/// an empty text if the event has neither summary nor description: a location alone does not name an event.
std::string Event_Text(const Text_Parts &parts) {
    const std::string summary = Unescape(parts.summary);
    std::string_view name = Trim(summary);
    const std::string description = name.empty() ? Unescape(parts.description) : std::string();
    if (name.empty()) {
        name = Trim(description);
        name = Trim(name.substr(0, name.find_first_of("\r\n")));
    }
    if (name.empty())
        return {};
    const std::string location = Unescape(parts.location);
    const std::string_view place = Trim(location);
    return In_One_Line(Joined({name, place.empty() ? "" : ", ", place}));
}

/// Appends the moments of a comma-separated list to `moments`. A period, written "begin/end", counts as its
/// beginning.
void Read_Moments(std::string_view list, std::vector<Moment> &moments) {
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(','), list.size());
        const std::string_view part = list.substr(0, end);
        if (const auto moment = Read_Moment(Trim(part.substr(0, part.find('/')))))
            moments.push_back(*moment);
        list.remove_prefix(std::min(end + 1, list.size()));
    }
}

/// Sets `text` to `value` if `text` is still empty, so that the first of several properties of one name
/// counts.
void Set_If_Empty(std::string &text, std::string_view value) {
    if (text.empty())
        text = value;
}

void Read_Property(const Content_Line &line, Calendar_Event &event, Text_Parts &parts) {
    const auto is = [&](std::string_view name) { return Same_Word(line.name, name); };
    if (is("SUMMARY")) {
        Set_If_Empty(parts.summary, line.value);
    } else if (is("DESCRIPTION")) {
        Set_If_Empty(parts.description, line.value);
    } else if (is("LOCATION")) {
        Set_If_Empty(parts.location, line.value);
    } else if (is("UID")) {
        Set_If_Empty(event.uid, line.value);
    } else if (is("DTSTART")) {
        event.start = Read_Moment(Trim(line.value));
        event.zone = Parameter(line, "TZID");
    } else if (is("DTEND")) {
        event.end = Read_Moment(Trim(line.value));
    } else if (is("DURATION")) {
        event.duration = Read_Duration(Trim(line.value));
    } else if (is("RRULE")) {
        event.rules.emplace_back(Trim(line.value));
    } else if (is("EXRULE")) {
        event.unsupported = true;
    } else if (is("RDATE")) {
        Read_Moments(line.value, event.added);
    } else if (is("EXDATE")) {
        Read_Moments(line.value, event.removed);
    } else if (is("RECURRENCE-ID")) {
        event.replaces = Read_Moment(Trim(line.value));
    } else if (is("STATUS")) {
        event.cancelled = Same_Word(Trim(line.value), "CANCELLED");
    }
}

/// Returns an offset such as +0100 or -123045 in seconds.
std::int64_t Offset(std::string_view text) {
    std::int64_t digits = 0;
    for (const char c : text.substr(0, 7))
        if (c >= '0' && c <= '9')
            digits = digits * 10 + (c - '0');
    if (text.size() <= 5)
        digits *= 100;
    const std::int64_t seconds = digits / 10000 * 3600 + digits / 100 % 100 * 60 + digits % 100;
    return text.starts_with('-') ? -seconds : seconds;
}

/// Collects the events and zones of a file from its lines, and checks that each component is closed.
class Calendar_Reader {
public:
    void Read_Line(const Content_Line &line) {
        if (Same_Word(line.name, "BEGIN"))
            Begin(To_Upper(Trim(line.value)));
        else if (Same_Word(line.name, "END"))
            End(To_Upper(Trim(line.value)));
        else if (Is_Inside("VEVENT") && open_.size() == 2)
            Read_Property(line, event_, parts_);
        else if (Is_Inside("VTIMEZONE"))
            Read_Zone_Property(line);
    }
    Calendar_File Finish() {
        if (!any_calendar_)
            throw ICalendar_Error("The file is not an iCalendar file.");
        if (!open_.empty())
            throw ICalendar_Error("The file is incomplete: the end of " + open_.back() + " is missing.");
        return std::move(file_);
    }

private:
    bool Is_Inside(std::string_view component) const {
        return open_.size() > 1 && open_[1] == component && open_[0] == "VCALENDAR";
    }
    void Begin(std::string name) {
        any_calendar_ = any_calendar_ || name == "VCALENDAR";
        open_.push_back(std::move(name));
        if (open_.size() != 2)
            return;
        event_ = {};
        parts_ = {};
        zone_.clear();
        zone_offset_.reset();
    }
    void End(const std::string &name) {
        if (open_.empty() || open_.back() != name)
            throw ICalendar_Error("The file is damaged: " + name + " ends without a beginning.");
        if (Is_Inside("VEVENT") && open_.size() == 2) {
            event_.text = Event_Text(parts_);
            file_.events.push_back(std::move(event_));
        }
        if (Is_Inside("VTIMEZONE") && open_.size() == 2 && zone_offset_) {
            const auto [zone, is_new] = file_.zones.emplace(zone_, *zone_offset_);
            zone->second = std::max(zone->second, *zone_offset_);
        }
        open_.pop_back();
    }
    void Read_Zone_Property(const Content_Line &line) {
        if (Same_Word(line.name, "TZID") && open_.size() == 2) {
            zone_ = Trim(line.value);
        } else if (Same_Word(line.name, "TZOFFSETTO") && open_.size() == 3) {
            const std::int64_t offset = Offset(Trim(line.value));
            zone_offset_ = std::max(zone_offset_.value_or(offset), offset);
        }
    }

    Calendar_File file_;
    std::vector<std::string> open_;
    Calendar_Event event_;
    Text_Parts parts_;
    std::string zone_;
    std::optional<std::int64_t> zone_offset_;
    bool any_calendar_ = false;
};

// The rest of this namespace writes files.

/// Appends a line, folded between characters into pieces of at most 75 bytes.
void Append_Line(std::string &bytes, std::string_view line) {
    constexpr std::size_t longest = 75;
    std::size_t room = longest;
    while (line.size() > room) {
        const std::size_t end = Whole_Code_Points(line, room);
        bytes.append(line.substr(0, end)).append("\r\n ");
        line.remove_prefix(end);
        room = longest - 1;
    }
    bytes.append(line).append("\r\n");
}

std::string Escape(std::string_view text) {
    std::string escaped;
    for (const char c : Without_Line_Breaks(std::string(text), '\n')) {
        if (c == '\n' || c == '\\' || c == ';' || c == ',')
            escaped += '\\';
        escaped += c == '\n' ? 'n' : c;
    }
    return escaped;
}

std::string Digits(int number, std::size_t width) {
    std::string digits = std::to_string(number);
    return digits.insert(0, width - std::min(width, digits.size()), '0');
}

std::string Date_Digits(const Date &date) {
    return Joined({Digits(date.year, 4), Digits(date.month, 2), Digits(date.day, 2)});
}

/// Returns the 64-bit FNV-1a hash of a record in hexadecimal digits. A record has the same hash in every
/// export.
std::string Record_Id(std::string_view record) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : record)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4)
        digits += "0123456789abcdef"[hash >> shift & 15];
    return digits;
}

/// Returns the day on which an event begins. A yearly event on 29 February begins in the latest leap year, so
/// that other calendars show it in leap years only, as the month view here does.
Date First_Day(const Event &event) {
    if (!event.yearly || !event.key.starts_with("29/2/"))
        return event.date;
    Date day{event.date.year, 2, 1};
    while (DaysInMonth(day) < 29)
        --day.year;
    day.day = 29;
    return day;
}

void Append_Event(std::string &bytes, const Event &event, std::string_view stamp) {
    const Date day = First_Day(event);
    const std::string key = Date_Key(event.yearly ? Date{every_year, day.month, day.day} : day);
    const auto append = [&](std::initializer_list<std::string_view> parts) {
        Append_Line(bytes, Joined(parts));
    };
    append({"BEGIN:VEVENT"});
    append({"UID:", Record_Id(Joined({key, "=", event.text})), "@vellatro"});
    append({"DTSTAMP:", stamp});
    append({"DTSTART;VALUE=DATE:", Date_Digits(day)});
    append({"DTEND;VALUE=DATE:", Date_Digits(Date_Of(Day_Number(day) + 1))});
    if (event.yearly)
        append({"RRULE:FREQ=YEARLY"});
    append({"SUMMARY:", Escape(event.text)});
    append({"TRANSP:TRANSPARENT"});
    append({"END:VEVENT"});
}

} // namespace

/// Returns the next line without its line ending, and skips empty lines after it.
std::string_view Content_Lines::Next_Physical() {
    if (line_feed_ < at_)
        line_feed_ = std::min(bytes_.find('\n', at_), bytes_.size());
    std::string_view line = bytes_.substr(at_, line_feed_ - at_);
    line = line.substr(0, line.find('\r'));
    const std::size_t end = at_ + line.size();
    at_ = std::min(bytes_.find_first_not_of("\r\n", end), bytes_.size());
    return line;
}

std::string_view Content_Lines::Next_Unfolded() {
    // Inside a folded text, the same bytes are a character of the text.
    std::string_view line = Without_Byte_Order_Mark(Next_Physical());
    const auto continues = [this] {
        return at_ < bytes_.size() && (bytes_[at_] == ' ' || bytes_[at_] == '\t');
    };
    if (!continues())
        return line;
    joined_ = line;
    while (continues()) {
        ++at_;
        joined_ += Next_Physical();
    }
    return joined_;
}

bool Content_Lines::Next(Content_Line &line) {
    while (at_ < bytes_.size()) {
        const std::string_view text = Next_Unfolded();
        const std::size_t name_end = std::min(text.find_first_of(";:"), text.size());
        std::size_t colon = name_end + Find_Unquoted(text.substr(name_end), ":");
        if (colon == text.size()) // an unclosed quote
            colon = text.find(':', name_end);
        if (colon == std::string_view::npos)
            continue;
        line.name = text.substr(0, name_end);
        line.parameters = colon == name_end ? "" : text.substr(name_end + 1, colon - name_end - 1);
        line.value = text.substr(colon + 1);
        return true;
    }
    return false;
}

std::string_view Parameter(const Content_Line &line, std::string_view name) {
    for (std::string_view rest = line.parameters; !rest.empty();) {
        const std::size_t end = Find_Unquoted(rest, ";");
        const std::string_view parameter = rest.substr(0, end);
        const std::size_t equals = std::min(parameter.find('='), parameter.size() - 1);
        if (Same_Word(Trim(parameter.substr(0, equals)), name)) {
            std::string_view value = Trim(parameter.substr(equals + 1));
            if (value.size() > 1 && value.front() == '"' && value.back() == '"')
                value = value.substr(1, value.size() - 2);
            return value;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return {};
}

std::string Unescape(std::string_view value) {
    std::string text, room;
    value = As_Utf8(value, room);
    text.reserve(value.size());
    for (std::size_t i = 0; i < value.size(); ++i) {
        const char next = value[i] == '\\' && i + 1 < value.size() ? To_Upper(value[i + 1]) : '\0';
        if (next != '\0' && std::string_view("N,;\\\"").find(next) != std::string_view::npos) {
            text += next == 'N' ? '\n' : next;
            ++i;
        } else {
            text += value[i];
        }
    }
    return text;
}

Calendar_File Read_ICalendar(std::string_view bytes, Progress &progress) {
    Calendar_Reader reader;
    Content_Lines lines(bytes);
    for (Content_Line line; lines.Next(line);) {
        reader.Read_Line(line);
        progress.Step(lines.Position(), bytes.size() / 8 * 10);
    }
    return reader.Finish();
}

std::string ICalendar_Bytes(const std::vector<Event> &events, Progress &progress) {
    const platform::Date_Time now = platform::Now_In_Utc();
    const std::string stamp =
        Joined({Digits(now.year, 4), Digits(now.month, 2), Digits(now.day, 2), "T", Digits(now.hour, 2),
                Digits(now.minute, 2), Digits(now.second, 2), "Z"});
    std::string bytes = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Vellatro//Vellatro//EN\r\n";
    for (std::size_t i = 0; i < events.size(); ++i) {
        Append_Event(bytes, events[i], stamp);
        progress.Step(i, events.size());
    }
    bytes += "END:VCALENDAR\r\n";
    return bytes;
}

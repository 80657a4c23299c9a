// Files of calendar events as most calendars exchange them (RFC 5545): their lines, properties and components
// are read and written here. On which days an event falls is in event_days.h, what a rule means in
// recurrence.h. Nothing is stored here.
#pragma once

#include "base/error.h"
#include "core/event_entries.h"
#include "transfer/progress.h"
#include "transfer/recurrence.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The bytes are no calendar, or one that is cut short. what() says which, in words for the user.
class ICalendar_Error : public Error {
public:
    using Error::Error;
};

/// One property: NAME;PARAMETER=value:VALUE. The views last until the next line is read.
struct Content_Line {
    std::string_view name;
    std::string_view parameters; ///< as they are written, without the semicolon before the first
    std::string_view value;      ///< as it is written, with its escapes
};

/// Walks over the lines of a file once, each ended by CR LF, CR or LF. A line that begins with a blank or a
/// tab goes on with the one before it, in the middle of a character if need be. Byte-order marks of UTF-8 at
/// the beginnings of lines and lines that are no properties are passed over. The bytes must outlive it.
class Content_Lines {
public:
    explicit Content_Lines(std::string_view bytes)
        : bytes_(bytes), line_feed_(std::min(bytes.find('\n'), bytes.size())) {}

    /// False at the end.
    bool Next(Content_Line &line);
    std::size_t Position() const { return at_; }

private:
    std::string_view Next_Physical();
    std::string_view Next_Unfolded();

    std::string_view bytes_;
    std::size_t at_ = 0;
    std::size_t line_feed_; ///< the first one that is not before at_
    std::string joined_;
};

/// The value of a parameter, without the quotes around it; empty: it is not there.
std::string_view Parameter(const Content_Line &line, std::string_view name);

/// A text without its escapes: \n is a line end, and \, \; \\ are the characters themselves. So is \", which
/// some write although they need not.
std::string Unescape(std::string_view value);

/// One VEVENT.
struct Calendar_Event {
    std::string uid;
    std::string text; ///< that the calendar is to show, without a time; empty: it has no name
    std::optional<Moment> start;
    std::optional<Moment> end;
    std::optional<std::int64_t> duration;
    std::optional<Moment> replaces; ///< the moment at which it takes the place of a repetition
    std::string zone;               ///< of its start, as the file names it
    std::vector<std::string> rules;
    std::vector<Moment> added;   ///< days beside those of the rules
    std::vector<Moment> removed; ///< days on which it is not repeated
    bool cancelled = false;
    bool unsupported = false; ///< it repeats in a way that is not known here
};

/// What counts of a file.
struct Calendar_File {
    std::vector<Calendar_Event> events; ///< in their order
    /// Seconds that the clocks of a zone are ahead of Coordinated Universal Time, in summer where that is
    /// more.
    std::unordered_map<std::string, std::int64_t> zones;
};

/// Reads a file of one or more calendars. Throws ICalendar_Error when there is none in it, or when a
/// component has no end.
Calendar_File Read_ICalendar(std::string_view bytes, Progress &progress);

/// The bytes of a file with these events, in their order, each on whole days.
std::string ICalendar_Bytes(const std::vector<Event> &events, Progress &progress);

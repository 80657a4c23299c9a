// Reading and writing the calendar file format of RFC 5545: its lines, properties and components.
// event_days.h finds the days of an event, and recurrence.h expands its rules. The functions store nothing.
#pragma once

#include "base/error.h"
#include "core/events.h"
#include "transfer/progress.h"
#include "transfer/recurrence.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Thrown if the bytes are not a calendar, or if the calendar is incomplete or damaged. what() returns a text
/// for the user.
class ICalendar_Error : public Error {
public:
    using Error::Error;
};

/// One property: NAME;PARAMETER=value:VALUE. The views are valid until the next line is read.
struct Content_Line {
    std::string_view name;
    std::string_view parameters; ///< as written, without the semicolon before the first
    std::string_view value;      ///< as written, with its escapes
};

/// Reads the property lines of a file in one pass. CR LF, CR or LF ends a line. A line that begins with a
/// blank or a tab continues the line before it, possibly in the middle of a character. Skips lines that are
/// not properties, and a UTF-8 byte order mark at the start of any line. The bytes must outlive the object.
class Content_Lines {
public:
    explicit Content_Lines(std::string_view bytes)
        : bytes_(bytes), line_feed_(std::min(bytes.find('\n'), bytes.size())) {}

    /// Reads the next property. Returns false at the end.
    bool Next(Content_Line &line);
    std::size_t Position() const { return at_; }

private:
    std::string_view Next_Physical();
    std::string_view Next_Unfolded();

    std::string_view bytes_;
    std::size_t at_ = 0;
    std::size_t line_feed_; ///< the first line feed at or after at_
    std::string joined_;
};

/// Returns the value of a parameter without its quotes, or an empty view if the line lacks the parameter.
std::string_view Parameter(const Content_Line &line, std::string_view name);

/// Returns a value as UTF-8 text without escapes: \n becomes a line break, and \, \; \\ become the characters
/// themselves. Also resolves \", which some programs write needlessly.
std::string Unescape(std::string_view value);

/// One VEVENT.
struct Calendar_Event {
    std::string uid;
    std::string text; ///< what the calendar shows, without a time; empty: the event has no name
    std::optional<Moment> start;
    std::optional<Moment> end;
    std::optional<std::int64_t> duration; ///< in seconds
    std::optional<Moment> replaces;       ///< the repetition that this event replaces
    std::string zone;                     ///< of `start`, as named in the file
    std::vector<std::string> rules;
    std::vector<Moment> added;   ///< repetitions in addition to those of the rules
    std::vector<Moment> removed; ///< excluded from the repetitions
    bool cancelled = false;
    bool unsupported = false; ///< has a kind of rule that is not supported
};

/// The contents of a calendar file.
struct Calendar_File {
    std::vector<Calendar_Event> events; ///< in file order
    /// The offset of each zone from UTC in seconds. If a zone has several offsets, this is the largest, that
    /// of summer time.
    std::unordered_map<std::string, std::int64_t> zones;
};

/// Returns the contents of a file of one or more calendars. Throws ICalendar_Error if the file contains no
/// calendar, or if the beginnings and ends of its components do not match.
Calendar_File Read_ICalendar(std::string_view bytes, Progress &progress);

/// Returns the bytes of a calendar file with these events as all-day events, in their order.
std::string ICalendar_Bytes(const std::vector<Event> &events, Progress &progress);

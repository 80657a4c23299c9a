// Reading events from comma separated values: lines, headings and fields. The format is that of the program's
// own export. Some of its rules differ from those of other programs. The functions store nothing.
#pragma once

#include "base/error.h"
#include "core/events.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Thrown if the headings are not those of events, or if a line or the end of a field is missing.
class CSV_Error : public Error {
public:
    using Error::Error;
};

/// The indexes of the columns in use, from 0. If a heading occurs only as part of a longer one, its column
/// keeps the index from the previous file.
struct CSV_Columns {
    std::int16_t Start_Date_Col = 0;
    std::int16_t Description_Col = 0;
    std::int16_t Subject_Col = 0;
};

/// Reads the lines of a file in one pass. CR LF, CR or LF ends a line. Returns lines as UTF-8, and converts a
/// line in another encoding from the system's ANSI code page. Skips a UTF-8 byte order mark at the start. The
/// byte 0x1A ends the file unless it is inside quotes: the export writes it there as text. The bytes must
/// outlive the object.
class CSV_Lines {
public:
    explicit CSV_Lines(std::string_view bytes);

    bool At_End() const { return at_ == bytes_.size(); }
    std::size_t Position() const { return at_; }
    /// Returns the next line. The view is valid until the next call. Throws CSV_Error at the end.
    std::string_view Next_Line();
    /// Returns the lines up to one that ends with a quote, joined by blanks. The view is valid until the next
    /// call. Throws CSV_Error if the file ends before such a line.
    std::string_view Next_Record();

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool all_utf8_; ///< no line needs conversion
    std::string converted_, joined_;
};

/// Sets `columns` from a heading line in any letter case. If one of the three headings is missing, shows a
/// message and returns false. Throws Conversion_Error for more than 32,767 columns.
bool Check_CSV_Headings(std::string_view line, CSV_Columns &columns);

/// Sets the date and text of `event` from the quoted fields of a record. The date is day 0 if the record has
/// no date. The text is the subject, unless that is the export's own, and the description, joined by " - ".
/// Returns false if the record has neither subject nor description. Throws CSV_Error if the last field is not
/// in quotes, and Conversion_Error for an invalid start date or more than 32,767 fields.
bool Read_CSV_Line(std::string_view record, const CSV_Columns &columns, Event &event);

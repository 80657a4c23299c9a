// Reading events from a file of comma separated values: lines, headings and fields. The form is that of the
// program's own export, read by its own rules, which are not those of other programs in every point. Nothing
// is stored here.
#pragma once

#include "base/error.h"
#include "core/event_entries.h"

#include <cstdint>
#include <string>
#include <string_view>

/// A record is cut short: lines are missing, or a field.
class CSV_Error : public Error {
public:
    using Error::Error;
};

/// The columns of the headings that count, from 0. A heading that is only part of a longer one leaves its
/// column where an earlier file had it.
struct CSV_Columns {
    std::int16_t Start_Date_Col = 0;
    std::int16_t Description_Col = 0;
    std::int16_t Subject_Col = 0;
};

/// Walks over the lines of a file once, each ended by CR LF, CR or LF, and gives them as UTF-8: one that is
/// none is taken as text of the system's ANSI code page. A byte-order mark of UTF-8 at the very start is
/// skipped. The byte 0x1A outside of quotes is the end of the file; in quotes it is text, as the export
/// writes it. The bytes must outlive it.
class CSV_Lines {
public:
    explicit CSV_Lines(std::string_view bytes);

    bool At_End() const { return at_ == bytes_.size(); }
    std::size_t Position() const { return at_; }
    /// The view is good until the next call. Throws CSV_Error at the end.
    std::string_view Next_Line();
    /// Lines up to one that ends in a quote, joined by blanks. The view is good until the next call. Throws
    /// CSV_Error when the file ends before that.
    std::string_view Next_Record();

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool all_utf8_; ///< no line needs a look
    std::string converted_, joined_;
};

/// Finds the columns in a heading line, in any letter case. False when one of the three words is nowhere in
/// the line, which the user has been told then. Throws Conversion_Error for more than 32,767 columns.
bool Check_CSV_Headings(std::string_view line, CSV_Columns &columns);

/// Reads the date (day 0, where the record has none) and, as the text, subject and description of a record
/// into `event`; false when it has neither subject nor description. Only fields in quotes are read. Throws
/// CSV_Error when its last field is not in quotes, and Conversion_Error for a start date that is none and for
/// more than 32,767 fields.
bool Read_CSV_Line(std::string_view record, const CSV_Columns &columns, Event &event);

// Every function here makes a single pass over its text, however long the text is.
#include "transfer/csv.h"

#include "base/cut_text.h"
#include "base/letters.h"
#include "core/convert.h"
#include "platform/locale.h"
#include "platform/message_box.h"

#include <algorithm>

namespace {

/// Returns the index of the first 0x1A outside quotes, or npos.
std::size_t End_Mark(std::string_view bytes) {
    bool quoted = false;
    std::size_t mark = bytes.find('\x1A');
    for (std::size_t from = 0; mark != std::string_view::npos; mark = bytes.find('\x1A', mark + 1)) {
        for (; from < mark; ++from)
            quoted = quoted != (bytes[from] == '"');
        if (!quoted)
            break;
    }
    return mark;
}

/// Returns the record without its doubled quotes and with a comma after the last field.
std::string Prepare_Record(std::string_view record) {
    std::string text;
    text.reserve(record.size() + 1);
    for (std::size_t i = 0; i < record.size(); ++i) {
        if (record[i] == '"' && i + 1 < record.size() && record[i + 1] == '"')
            ++i;
        else
            text += record[i];
    }
    return text + ',';
}

std::size_t Next_Comma(std::string_view text, std::size_t from) {
    const std::size_t comma = text.find(',', from);
    if (comma == std::string_view::npos)
        throw CSV_Error("a field of a record has no end");
    return comma;
}

/// Returns the text of a field without its quotes, and with a comma in place of each "|".
std::string Field_Text(std::string_view field) {
    std::string text;
    text.reserve(field.size());
    for (const char character : field)
        if (character != '"')
            text += character == '|' ? ',' : character;
    return text;
}

Date To_Date(const std::string &text) {
    const std::optional<platform::Date_Time> date = platform::Read_Date(text);
    if (!date)
        throw Conversion_Error("a date");
    return {static_cast<std::int16_t>(date->year), static_cast<std::int16_t>(date->month),
            static_cast<std::int16_t>(date->day)};
}

std::string Event_Text(const std::string &subject, const std::string &description) {
    // The export writes "Vellatro" as the subject of every event.
    const bool has_subject = !subject.empty() && subject != "Vellatro";
    return (has_subject ? subject : std::string()) + (has_subject && !description.empty() ? " - " : "") +
           description;
}

} // namespace

CSV_Lines::CSV_Lines(std::string_view bytes) : bytes_(Without_Byte_Order_Mark(bytes)) {
    bytes_ = bytes_.substr(0, End_Mark(bytes_));
    all_utf8_ = Is_Utf8(bytes_);
}

std::string_view CSV_Lines::Next_Line() {
    if (At_End())
        throw CSV_Error("the file ends too early");
    const std::size_t end = std::min(bytes_.find_first_of("\r\n", at_), bytes_.size());
    const std::string_view line = bytes_.substr(at_, end - at_);
    const bool pair = bytes_.substr(end).starts_with("\r\n");
    at_ = std::min(end + (pair ? 2 : 1), bytes_.size());
    // Convert the line as a whole: in some code pages the second byte of a character equals "|".
    return all_utf8_ ? line : As_Utf8(line, converted_);
}

std::string_view CSV_Lines::Next_Record() {
    const std::string_view line = Next_Line();
    if (line.ends_with('"'))
        return line;
    joined_ = line;
    do {
        const std::string_view next = Next_Line();
        joined_ += ' ';
        joined_ += next;
    } while (joined_.back() != '"');
    return joined_;
}

bool Check_CSV_Headings(std::string_view line, CSV_Columns &columns) {
    std::string headings = To_Upper(line);
    for (const char *const word : {"DESCRIPTION", "START DATE", "SUBJECT"}) {
        if (headings.find(word) != std::string::npos)
            continue;
        platform::Message_Box("Invalid CSV file or missing required headings.", platform::Box_Icon::Stop);
        return false;
    }
    std::erase(headings, '"');
    headings += ',';
    std::int16_t column = 0;
    for (std::size_t begin = 0, end = 0; (end = headings.find(',', begin)) != std::string::npos;
         begin = end + 1) {
        const std::string_view heading = std::string_view(headings).substr(begin, end - begin);
        if (heading == "START DATE")
            columns.Start_Date_Col = column;
        if (heading == "DESCRIPTION")
            columns.Description_Col = column;
        if (heading == "SUBJECT")
            columns.Subject_Col = column;
        column = Fit_Int16(column + 1);
    }
    return true;
}

bool Read_CSV_Line(std::string_view record, const CSV_Columns &columns, Event &event) {
    const std::string text = Prepare_Record(record);
    event = {Date_Of(0)};
    std::string subject, description;
    std::int16_t column = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t comma = Next_Comma(text, begin);
        while (text[begin] != '"') {
            // Count an unquoted field as a column, but ignore its text.
            begin = comma + 1;
            comma = Next_Comma(text, begin);
            column = Fit_Int16(column + 1);
        }
        while (text[comma - 1] != '"')
            comma = Next_Comma(text, comma + 1);
        const std::string field = Field_Text(std::string_view(text).substr(begin, comma - begin));
        if (column == columns.Start_Date_Col)
            event.date = To_Date(field);
        if (column == columns.Description_Col)
            description = field;
        if (column == columns.Subject_Col)
            subject = field;
        begin = comma + 1;
        column = Fit_Int16(column + 1);
    }
    if (subject.empty() && description.empty())
        return false;
    event.text = Event_Text(subject, description);
    return true;
}

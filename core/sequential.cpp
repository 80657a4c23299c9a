// Items are views into the bytes of the file; only an item that needs conversion is a copy. An item may have
// any length.
#include "core/sequential.h"

#include "base/cut_text.h"
#include "core/convert.h"

#include <cstring>

namespace {

/// The byte that ends a text file, from the days before file systems stored exact lengths.
constexpr char end_mark = '\x1A';

bool Is_Blank(char c) {
    return c == ' ' || c == '\t';
}

bool Is_Line_End(char c) {
    return c == '\r' || c == '\n';
}

bool Is_Separator(char c) {
    return c == ',' || Is_Line_End(c);
}

const char *Skip_Blanks(const char *at, const char *end) {
    while (at != end && Is_Blank(*at))
        ++at;
    return at;
}

/// Returns the position after the comma or line ending at `at`, or `at` if there is neither.
const char *Skip_Separator(const char *at, const char *end) {
    if (at == end || !Is_Separator(*at))
        return at;
    const bool pair = *at == '\r' && end - at > 1 && at[1] == '\n';
    return at + (pair ? 2 : 1);
}

/// Returns whether an item reads back unchanged without quotes: the reader does not end the item early, trim
/// or reject it, or take it for a quoted one.
bool Reads_Back_Plain(std::string_view item) {
    if (item.empty() || item.front() == '"' || Is_Blank(item.front()) || Is_Blank(item.back()))
        return false;
    constexpr char breaking[] = {',', '\r', '\n', '\0', end_mark};
    return item.find_first_of({breaking, sizeof breaking}) == std::string_view::npos;
}

} // namespace

Sequential_Reader::Sequential_Reader(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        throw Sequential_Error("the text is UTF-16");
    bytes = Without_Byte_Order_Mark(bytes);
    at_ = scanned_to_ = bytes.data();
    end_ = at_ + bytes.size();
    all_utf8_ = Is_Utf8(bytes);
}

/// Returns whether no item is left. Skips blanks and line endings at the end of the file, which are not
/// items. Looks at each run of them only once.
bool Sequential_Reader::At_End() {
    if (at_ != end_ && Is_Line_End(*at_) && at_ >= scanned_to_) {
        scanned_to_ = at_;
        while (scanned_to_ != end_ && (Is_Blank(*scanned_to_) || Is_Line_End(*scanned_to_)))
            ++scanned_to_;
        if (scanned_to_ == end_ || *scanned_to_ == end_mark)
            at_ = scanned_to_;
    }
    return at_ == end_ || *at_ == end_mark;
}

std::string_view Sequential_Reader::Read_Quoted() {
    const char *begin = at_ + 1;
    const void *quote = std::memchr(begin, '"', static_cast<std::size_t>(end_ - begin));
    if (quote == nullptr)
        throw Sequential_Error("a quoted item has no closing quote");
    const char *close = static_cast<const char *>(quote);
    // If something other than a separator follows the closing quote, the next item begins right there.
    at_ = Skip_Blanks(close + 1, end_);
    return {begin, static_cast<std::size_t>(close - begin)};
}

std::string_view Sequential_Reader::Read_Unquoted() {
    const char *begin = at_;
    while (at_ != end_ && !Is_Separator(*at_) && *at_ != end_mark)
        ++at_;
    const char *last = at_;
    while (last != begin && Is_Blank(last[-1]))
        --last;
    const std::string_view item(begin, static_cast<std::size_t>(last - begin));
    if (item.find('\0') != std::string_view::npos)
        throw Sequential_Error("there is a NUL outside of quotes");
    return item;
}

bool Sequential_Reader::Next(std::string_view &item) {
    at_ = Skip_Blanks(at_, end_);
    if (At_End())
        return false;
    item = *at_ == '"' ? Read_Quoted() : Read_Unquoted();
    at_ = Skip_Separator(at_, end_);
    if (!all_utf8_)
        item = As_Utf8(item, converted_);
    return true;
}

void Append_Item(std::string &bytes, std::string_view item) {
    if (item.find('"') == std::string_view::npos) {
        bytes += '"';
        bytes += item;
        bytes += '"';
    } else if (Reads_Back_Plain(item)) {
        // The item is hand-written and has a quote inside. Write a blank before the bytes of a byte order
        // mark: readers skip the blank, but would take those bytes at the start of the file for its mark.
        if (item.starts_with(Byte_Order_Mark))
            bytes += ' ';
        bytes += item;
    } else {
        throw Sequential_Error("an item with a quote in it cannot be written so that it reads back the same");
    }
    bytes += "\r\n";
}

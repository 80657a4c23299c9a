// One pass over the bytes of a sequential file. Items are views into them: nothing is copied, no item is too
// long.
#include "core/sequential.h"

#include <cstring>

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

bool Is_Blank(char c) {
    return c == ' ' || c == '\t';
}

bool Is_Line_End(char c) {
    return c == '\r' || c == '\n';
}

bool Ends_Item(char c) {
    return c == ',' || Is_Line_End(c);
}

const char *Skip_Blanks(const char *at, const char *end) {
    while (at != end && Is_Blank(*at))
        ++at;
    return at;
}

/// Steps over one comma or line end, where `at` stands at one.
const char *Skip_Separator(const char *at, const char *end) {
    if (at == end || !Ends_Item(*at))
        return at;
    const bool pair = *at == '\r' && end - at > 1 && at[1] == '\n';
    return at + (pair ? 2 : 1);
}

/// Whether an item without quotes around it reads back as it is: nothing in it may end it early, be trimmed,
/// or open a quoted item.
bool Reads_Back_Plain(std::string_view item) {
    if (item.empty() || item.front() == '"' || Is_Blank(item.front()) || Is_Blank(item.back()))
        return false;
    return item.find_first_of(",\r\n") == std::string_view::npos;
}

} // namespace

Sequential_Reader::Sequential_Reader(std::string_view bytes) {
    if (bytes.starts_with(byte_order_mark))
        bytes.remove_prefix(byte_order_mark.size());
    // Blanks and line ends before the end of the file are no items. Taking them off here keeps it one pass; a
    // closed quoted item ends in its quote and loses nothing.
    while (!bytes.empty() && (Is_Blank(bytes.back()) || Is_Line_End(bytes.back())))
        bytes.remove_suffix(1);
    at_ = bytes.data();
    end_ = at_ + bytes.size();
}

bool Sequential_Reader::Next(std::string_view &item) {
    at_ = Skip_Blanks(at_, end_);
    if (at_ == end_)
        return false;
    if (*at_ == '"') {
        const char *begin = at_ + 1;
        const void *quote = std::memchr(begin, '"', static_cast<std::size_t>(end_ - begin));
        if (quote == nullptr)
            throw Sequential_Error("a quoted item has no closing quote");
        const char *close = static_cast<const char *>(quote);
        item = std::string_view(begin, static_cast<std::size_t>(close - begin));
        // Where something else follows the closing quote, the next item begins right there.
        at_ = Skip_Separator(Skip_Blanks(close + 1, end_), end_);
        return true;
    }
    const char *begin = at_;
    while (at_ != end_ && !Ends_Item(*at_))
        ++at_;
    const char *last = at_;
    while (last != begin && Is_Blank(last[-1]))
        --last;
    item = std::string_view(begin, static_cast<std::size_t>(last - begin));
    at_ = Skip_Separator(at_, end_);
    return true;
}

void Append_Item(std::string &bytes, std::string_view item) {
    if (item.find('"') == std::string_view::npos) {
        bytes += '"';
        bytes += item;
        bytes += '"';
    } else if (Reads_Back_Plain(item)) {
        // A hand-written item with a quote inside. A blank, which counts for nothing, keeps one that begins
        // like a byte-order mark from losing it at the start of a file.
        if (item.starts_with(byte_order_mark))
            bytes += ' ';
        bytes += item;
    } else {
        throw Sequential_Error("an item with a quote in it cannot be written so that it reads back the same");
    }
    bytes += "\r\n";
}

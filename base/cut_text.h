// Shortening and trimming texts, narrow (UTF-8) or wide.
#pragma once

#include "base/characters.h"

#include <algorithm>
#include <string>
#include <string_view>

/// Stands for omitted text.
inline constexpr std::string_view Ellipsis = "...";

/// The UTF-8 byte order mark, which some programs write at the start of a file.
inline constexpr std::string_view Byte_Order_Mark = "\xEF\xBB\xBF";

/// Returns the length of the longest prefix of `text` that has at most `limit` units and does not end inside
/// a code point. The result is not 0 if `limit` is 4 or more and the text is not empty.
template <typename Text>
std::size_t Whole_Code_Points(const Text &text, std::size_t limit) {
    if (text.size() <= limit)
        return text.size();
    constexpr bool narrow = sizeof text[0] == 1;
    const std::size_t least = limit - std::min(limit, std::size_t{narrow ? 3 : 1});
    while (limit > least &&
           (static_cast<unsigned>(text[limit]) & (narrow ? 0xC0U : 0xFC00U)) == (narrow ? 0x80U : 0xDC00U))
        --limit;
    return limit;
}

/// Returns the length of the longest prefix of `text` that has at most `limit` bytes and does not end inside
/// a character as the user sees it (Previous_Character).
inline std::size_t Whole_Characters(std::string_view text, std::size_t limit) {
    // Start after the limit and step back: only the bytes after the limit tell whether it splits a character.
    constexpr std::size_t run_up = 64;
    std::size_t end = std::min(text.size(), limit + run_up);
    while (end > limit)
        end = Previous_Character(text, end);
    return end;
}

/// Returns `text` shortened for a message: at most 60 bytes of whole characters, then an ellipsis if more
/// follows.
inline std::string Shorten(std::string_view text) {
    const std::size_t end = Whole_Characters(text, 60);
    return std::string(text.substr(0, end)).append(end < text.size() ? Ellipsis : "");
}

/// Returns `text` without the blanks at its ends.
constexpr std::string_view Trim(std::string_view text, std::string_view blanks = " \t\r\n") {
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

constexpr std::string_view Without_Byte_Order_Mark(std::string_view text) {
    return text.substr(text.starts_with(Byte_Order_Mark) ? Byte_Order_Mark.size() : 0);
}

/// Returns `text` with each line break (CR, LF or CR LF) replaced by `instead`.
template <typename Unit>
std::basic_string<Unit> Without_Line_Breaks(std::basic_string<Unit> text, Unit instead = ' ') {
    std::size_t kept = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n')
            continue;
        text[kept++] = text[at] == '\r' || text[at] == '\n' ? instead : text[at];
    }
    text.resize(kept);
    return text;
}

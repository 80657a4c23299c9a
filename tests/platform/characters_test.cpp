// Which bytes are UTF-8, and where visible characters begin.
#include "base/cut_text.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

TEST(Characters, Are_Whole_And_Of_Well_Formed_Bytes) {
    // Each row lists the characters of a text. A single byte above ASCII is invalid.
    const std::vector<std::vector<std::string>> rows = {
        {"a", "\u00E9", " ", std::string(1, '\0'), "\u65E5", "\U0001F4C5", "z"},
        {"\u07FF", "\u0800", "\uD7FF", "\uE000", "\uFFFF", "\U00010000", "\U0010FFFF"},
        {"e\u0301", "o\u0302\u0323", "x"},                                // marks on letters
        {"\u0301", "a"},                                                  // a mark without a letter
        {"\U0001F44D\U0001F3FD", "!", "1\uFE0F\u20E3", "2"},              // a skin tone, a keycap
        {"-", "\U0001F469\u200D\U0001F469\u200D\U0001F467", "-"},         // a joined family
        {"\u05E9\u05C1\u05B0", "\u0628\u064F"},                           // Hebrew and Arabic points
        {"\u0915\u094D", "\u0937\u093F", "\u0E17\u0E35\u0E48", "^", "`"}, // Indic and Thai signs
        {"\u304B\u3099", "\u8FBB\U000E0100"}, // a voiced kana, a variation selector
        {"\U0001F1E9\U0001F1EA", "\U0001F1EB\U0001F1F7", "\U0001F1EC", "z"}, // two flags and half a flag
        {"a", "\xE9"},                                                       // bytes of another code page
        {"\xF0", "\x9F", "\x93"},
        {"\xE0", "\x9F", "\xBF"},
        {"\xED", "\xA0", "\x80"},
        {"\xF4", "\x90", "\x80", "\x80"},
        {"\u00E9", "\xA9", "\U0001F4C5", "\x85"}};
    for (const std::vector<std::string> &row : rows) {
        std::string text;
        bool valid = true;
        for (const std::string &character : row) {
            text += character;
            valid = valid && (character.size() > 1 || character[0] >= 0);
        }
        for (const std::string &beside : {std::string(), std::string(63, 'x'), std::string(200, 'x')})
            EXPECT_EQ(Is_Utf8(beside + text + beside), valid) << text;
        std::size_t end = text.size();
        for (std::size_t i = row.size(); i-- > 0;) {
            const std::size_t begin = Previous_Character(text, end);
            EXPECT_EQ(begin, end - row[i].size()) << text << ", character " << i;
            EXPECT_EQ(Whole_Characters(text, end - 1), begin) << text << ", character " << i;
            end -= row[i].size();
        }
        EXPECT_EQ(end, 0U);
    }
}

} // namespace

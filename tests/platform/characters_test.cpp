// Which bytes are UTF-8, and where a character that the user sees begins.
#include "platform/characters.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

TEST(Characters, Stepping_Back_Keeps_Them_Whole) {
    // Each row is a text in its characters.
    const std::vector<std::vector<std::string>> rows = {
        {"a", "\u00E9", " ", std::string(1, '\0'), "\u65E5", "\U0001F4C5", "z"},
        {"e\u0301", "o\u0302\u0323", "x"},                                   // marks upon letters
        {"\u0301", "a"},                                                     // a mark upon nothing
        {"\U0001F44D\U0001F3FD", "!", "1\uFE0F\u20E3", "2"},                 // a skin tone, a keycap
        {"-", "\U0001F469\u200D\U0001F469\u200D\U0001F467", "-"},            // a joined family
        {"\u05E9\u05C1\u05B0", "\u0628\u064F"},                              // Hebrew and Arabic points
        {"\u0915\u094D", "\u0937\u093F", "\u0E17\u0E35\u0E48", "^", "`"},    // Indic and Thai signs
        {"\u304B\u3099", "\u8FBB\U000E0100"},                                // a voiced kana, a chosen shape
        {"\U0001F1E9\U0001F1EA", "\U0001F1EB\U0001F1F7", "\U0001F1EC", "z"}, // two flags and a half
        {"a", "\xE9", "b", "\x80", "\xBF"},                                  // bytes of another code page
        {"\xE6", "\x97", "a", "\xF0", "\x9F", "\x93"},                       // cut short
        {"\xC0", "\x80", "\xED", "\xA0", "\x80", "\xF4", "\x90", "\x80", "\x80"}, // none by the rules
        {"\u00E9", "\xA9", "\U0001F4C5", "\x85"},                                 // a byte too many
    };
    for (const std::vector<std::string> &row : rows) {
        std::string text;
        for (const std::string &character : row)
            text += character;
        std::size_t end = text.size();
        for (std::size_t i = row.size(); i-- > 0;) {
            const std::size_t begin = platform::Previous_Character(text, end);
            EXPECT_EQ(begin, end - row[i].size()) << text << ", character " << i;
            end -= row[i].size();
        }
        EXPECT_EQ(end, 0U);
    }
}

TEST(Characters, Only_Well_Formed_Bytes_Are_Utf8) {
    std::string all;
    for (const std::uint32_t code :
         {0x41U, 0x7FU, 0x80U, 0x7FFU, 0x800U, 0xD7FFU, 0xE000U, 0xFFFFU, 0x10000U, 0x10FFFFU, 0U})
        platform::Append_Utf8(all, code);
    EXPECT_EQ(all.size(), 1U + 1 + 2 + 2 + 3 + 3 + 3 + 3 + 4 + 4 + 1);
    // Eight ASCII bytes are one step.
    for (const std::string &before : {std::string(), std::string("1234567"), "12345678" + all}) {
        EXPECT_TRUE(platform::Is_Utf8(before + all)) << before;
        for (const char *bad : {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3",
                                "\xC3"
                                "a",
                                "\xE6\x97",
                                "\xE6\x97"
                                "a",
                                "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x9F\x93", "\xF0\x8F\xBF\xBF",
                                "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF"})
            for (const char *behind : {"", "12345678"})
                EXPECT_FALSE(platform::Is_Utf8(before + bad + behind)) << before << bad << behind;
    }
    std::string replaced;
    platform::Append_Utf8(replaced, 0xD800);
    platform::Append_Utf8(replaced, 0x110000);
    EXPECT_EQ(replaced, "\uFFFD\uFFFD");
}

} // namespace

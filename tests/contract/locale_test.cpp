// What platform/locale.h and text.h promise: names, the short date form, and whole characters.
#include "platform/locale.h"
#include "platform/text.h"
#include "tests/contract/contract.h"

namespace {

class Locale_Contract : public Contract_Test {};
class Text_Contract : public Contract_Test {};

TEST_F(Locale_Contract, Names_Are_Those_Of_The_Language) {
    // The tests run with English settings, here as there.
    std::string names;
    for (int weekday = 0; weekday < 7; ++weekday)
        names += platform::Weekday_Name(weekday) + " " + platform::Short_Weekday_Name(weekday) + " ";
    for (int month = 1; month <= 12; ++month)
        names += platform::Month_Name(month) + " ";
    EXPECT_EQ(names,
              "Sunday Sun Monday Mon Tuesday Tue Wednesday Wed Thursday Thu Friday Fri Saturday Sat "
              "January February March April May June July August September October November December ");
    EXPECT_EQ(platform::First_Weekday(), 0);
}

TEST_F(Locale_Contract, Short_Dates_Follow_The_Pattern_In_All_Years) {
    struct Case {
        const char *pattern;
        int year, month, day;
        const char *expected;
    };
    const Case cases[] = {
        {"d/m/yyyy", 2002, 3, 5, "5/3/2002"},      {"d/m/yyyy", 9999, 12, 31, "31/12/9999"},
        {"m/d/yyyy", 2000, 2, 29, "2/29/2000"},    {"yyyy-mm-dd", 100, 1, 1, "0100-01-01"},
        {"d/m/yyyy", 1601, 1, 1, "1/1/1601"},      {"d/m/yyyy", 1600, 12, 31, "31/12/1600"},
        {"dd.mm.yyyy", 1066, 10, 4, "04.10.1066"}, {"d. m. yyyy", 999, 2, 28, "28. 2. 0999"}};
    for (const Case &c : cases) {
        Use_Short_Date(c.pattern);
        EXPECT_EQ(platform::Short_Date(c.year, c.month, c.day), c.expected) << c.pattern;
    }
}

TEST_F(Locale_Contract, Dates_Are_Read_In_The_Order_Of_The_Form) {
    const struct {
        const char *pattern, *text;
        int year, month, day; ///< all 0: no date
    } cases[] = {{"d/m/yyyy", "3/4/2002", 2002, 4, 3},
                 {"m/d/yyyy", "3/4/2002", 2002, 3, 4},
                 {"m/d/yyyy", "13/4/2002", 2002, 4, 13},
                 {"yyyy-mm-dd", "2002-04-03", 2002, 4, 3},
                 {"d/m/yyyy", "30/12/1899", 1899, 12, 30},
                 {"d/m/yyyy", "1/2/1066", 1066, 2, 1},
                 {"d/m/yyyy", "31/2/2002", 0, 0, 0},
                 {"d/m/yyyy", "Dentist", 0, 0, 0},
                 {"d/m/yyyy", "", 0, 0, 0}};
    for (const auto &c : cases) {
        Use_Short_Date(c.pattern);
        const platform::Date_Time read = platform::Read_Date(c.text).value_or(platform::Date_Time{});
        EXPECT_TRUE(read.year == c.year && read.month == c.month && read.day == c.day)
            << c.pattern << " " << c.text << ": " << read.year << " " << read.month << " " << read.day;
    }
    Use_Short_Date("d/m/yyyy");
    EXPECT_TRUE(platform::Date_Time_Text({2002, 3, 5, 9, 5, 7, 0}).starts_with("5/3/2002 "));
}

TEST_F(Text_Contract, Stepping_Back_Keeps_Characters_Whole) {
    // Each row is a text in its characters.
    const std::vector<std::vector<std::string>> rows = {
        {"a", "b", " ", std::string(1, '\0'), "c"},
        {"a", "\xC3\xA9", "\xE6\x97\xA5", "\xF0\x9F\x93\x85", "z"},
        {"e\xCC\x81", "o\xCC\x82\xCC\xA3", "x"},   // marks upon letters
        {"\xCC\x81", "a"},                         // a mark upon nothing
        {"\xF0\x9F\x91\x8D\xF0\x9F\x8F\xBD", "!"}, // a skin tone
        {"1\xEF\xB8\x8F\xE2\x83\xA3", "2"},        // a keycap
        {"-", "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7",
         "-"},                                                        // a joined family
        {"\xD7\xA9\xD7\x81\xD6\xB0", "\xD8\xA8\xD9\x8F"},             // Hebrew and Arabic points
        {"\xE0\xA4\x95\xE0\xA5\x8D", "\xE0\xA4\xB7\xE0\xA4\xBF"},     // Indic signs
        {"\xE0\xB8\x97\xE0\xB8\xB5\xE0\xB9\x88", "^", "`"},           // Thai signs; marks of their own
        {"\xE3\x81\x8B\xE3\x82\x99", "\xE8\xBE\xBB\xF3\xA0\x84\x80"}, // a voiced kana, a chosen shape
        {"\xF0\x9F\x87\xA9\xF0\x9F\x87\xAA", "\xF0\x9F\x87\xAB\xF0\x9F\x87\xB7", "\xF0\x9F\x87\xAC",
         "z"},                                         // two flags and a half
        {"a", "\xE9", "b", "\x80", "\xBF"},            // bytes of another code page
        {"\xE6", "\x97", "a", "\xF0", "\x9F", "\x93"}, // cut short
        {"\xC0", "\x80", "\xED", "\xA0", "\x80", "\xF4", "\x90", "\x80",
         "\x80"},                                         // no characters by the rules
        {"\xC3\xA9", "\xA9", "\xF0\x9F\x93\x85", "\x85"}, // a byte too many
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

} // namespace

// What platform/clock.h, locale.h and text.h promise: sensible times, names, the short date form, and whole
// characters.
#include "platform/clock.h"
#include "platform/locale.h"
#include "platform/text.h"
#include "tests/contract/contract.h"

#include <set>
#include <tuple>

namespace {

class Clock_Contract : public Contract_Test {};
class Locale_Contract : public Contract_Test {};
class Text_Contract : public Contract_Test {};

TEST_F(Clock_Contract, The_Time_Is_A_Time_And_Never_Goes_Back) {
    const auto moment = [](const platform::Date_Time &t) {
        return std::tuple(t.year, t.month, t.day, t.hour, t.minute, t.second, t.millisecond);
    };
    platform::Date_Time before = platform::Now();
    for (int i = 0; i < 1000; ++i) {
        const platform::Date_Time now = platform::Now();
        EXPECT_GE(moment(now), moment(before));
        EXPECT_TRUE(now.year >= 2000 && now.year <= 9999 && now.month >= 1 && now.month <= 12);
        EXPECT_TRUE(now.day >= 1 && now.day <= 31 && now.hour >= 0 && now.hour <= 23);
        EXPECT_TRUE(now.minute >= 0 && now.minute <= 59 && now.second >= 0 && now.second <= 59);
        EXPECT_TRUE(now.millisecond >= 0 && now.millisecond <= 999);
        before = now;
    }
}

TEST_F(Locale_Contract, Names_Are_Those_Of_The_Language) {
    // The tests run with English settings, here as there.
    const char *weekdays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    for (int weekday = 0; weekday < 7; ++weekday) {
        EXPECT_EQ(platform::Weekday_Name(weekday), weekdays[weekday]);
        EXPECT_EQ(platform::Short_Weekday_Name(weekday), std::string(weekdays[weekday]).substr(0, 3));
    }
    const char *months[] = {"January", "February", "March",     "April",   "May",      "June",
                            "July",    "August",   "September", "October", "November", "December"};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(platform::Month_Name(month), months[month - 1]);
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
        {"m/d/yyyy", 2002, 3, 5, "3/5/2002"},      {"dd.mm.yyyy", 2002, 3, 5, "05.03.2002"},
        {"yyyy-mm-dd", 2002, 3, 5, "2002-03-05"},  {"d. m. yyyy", 2002, 11, 25, "25. 11. 2002"},
        {"d/m/yyyy", 1601, 1, 1, "1/1/1601"},      {"d/m/yyyy", 1600, 12, 31, "31/12/1600"},
        {"dd.mm.yyyy", 1066, 10, 4, "04.10.1066"}, {"yyyy-mm-dd", 100, 1, 1, "0100-01-01"},
        {"d/m/yyyy", 2000, 2, 29, "29/2/2000"},    {"d. m. yyyy", 999, 2, 28, "28. 2. 0999"},
    };
    for (const Case &c : cases) {
        Use_Short_Date(c.pattern);
        EXPECT_EQ(platform::Short_Date(c.year, c.month, c.day), c.expected) << c.pattern;
    }
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
         "-"},                                         // a joined family
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

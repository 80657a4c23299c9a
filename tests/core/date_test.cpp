// Calendar arithmetic at its bounds, and the date keys.
#include "core/convert.h"
#include "core/date.h"

#include <gtest/gtest.h>

TEST(Date, Months_And_Weekdays) {
    const struct {
        Date date;
        int weekday, days;
    } cases[] = {{{2002, 3, 5}, 2, 31}, {{2000, 2, 29}, 2, 29},  {{1900, 2, 1}, 4, 28},
                 {{2004, 2, 1}, 0, 29}, {{9998, 12, 31}, 4, 31}, {{100, 1, 1}, 5, 31},
                 {{100, 2, 28}, 0, 28}, {{2026, 11, 30}, 1, 30}};
    for (const auto &c : cases) {
        EXPECT_EQ(Weekday(c.date), c.weekday) << Date_Key(c.date);
        EXPECT_EQ(DaysInMonth(c.date), c.days) << Date_Key(c.date);
    }
}

TEST(Date, Keys_Are_Read_As_Conversion_Does) {
    const std::pair<const char *, Date> good[] = {{"5/3/2002", {2002, 3, 5}},
                                                  {"05/003/02002", {2002, 3, 5}},
                                                  {" 5 /+3/\t2002 ", {2002, 3, 5}},
                                                  {"-1/0/9999", {9999, 0, -1}},
                                                  {"32767/1/-32768", {-32768, 1, 32767}},
                                                  {"9999/9999/9999", {9999, 9999, 9999}}};
    for (const auto &[key, date] : good)
        EXPECT_EQ(Parse_Date_Key(key), date) << key;
    for (const char *bad : {"", "5", "5/3", "5/3/", "/3/2002", "5//2002", "5/3/2002/", "5/3/2002/1", "5/3/x",
                            "5/3/2002x", "32768/1/1", "1/1/99999", "5.0/3/2002", "5/3 2002"})
        EXPECT_THROW(Parse_Date_Key(bad), Conversion_Error) << bad;
    EXPECT_EQ(Every_Year_Key("25/12/999"), "25/12/9999");
}

TEST(Date, Ordinals) {
    std::string suffixes;
    for (int day = 1; day <= 31; ++day)
        suffixes += Ordinal_Suffix(day);
    EXPECT_EQ(suffixes, "stndrdthththththththththththththththththstndrdthththththththst");
}

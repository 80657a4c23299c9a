// The contract of platform/locale.h and text.h: names, the short date format, and texts of older files.
#include "platform/locale.h"
#include "platform/text.h"
#include "tests/contract/contract.h"

namespace {

using Locale_Contract = Contract_Test;

TEST_F(Locale_Contract, Names_Are_Those_Of_The_Language) {
    // The tests run with English settings natively and on Windows.
    EXPECT_EQ(platform::Weekday_Name(0) + platform::Short_Weekday_Name(6), "SundaySat");
    EXPECT_EQ(platform::Month_Name(1) + platform::Month_Name(12), "JanuaryDecember");
    EXPECT_EQ(platform::First_Weekday(), 0);
}

TEST_F(Locale_Contract, Short_Dates_Follow_The_Pattern_In_All_Years) {
    const struct {
        const char *pattern;
        int year, month, day;
        const char *expected;
    } cases[] = {{"d/m/yyyy", 2002, 3, 5, "5/3/2002"},     {"d/m/yyyy", 9999, 12, 31, "31/12/9999"},
                 {"m/d/yyyy", 2000, 2, 29, "2/29/2000"},   {"yyyy-mm-dd", 100, 1, 1, "0100-01-01"},
                 {"d/m/yyyy", 1600, 12, 31, "31/12/1600"}, {"d. m. yyyy", 999, 2, 28, "28. 2. 0999"}};
    for (const auto &c : cases) {
        Use_Short_Date(c.pattern);
        EXPECT_EQ(platform::Short_Date(c.year, c.month, c.day), c.expected) << c.pattern;
    }
}

TEST_F(Locale_Contract, Dates_Are_Read_In_The_Order_Of_The_Form) {
    const std::tuple<const char *, const char *, int> cases[] = {{"d/m/yyyy", "3/4/2002", 20020403},
                                                                 {"m/d/yyyy", "13/4/2002", 20020413},
                                                                 {"yyyy-mm-dd", "2002-04-03", 20020403},
                                                                 {"d. m. yyyy", "3. 4. 2002", 20020403},
                                                                 {"yyyy. mm. dd.", "2002. 04. 03.", 20020403},
                                                                 {"d/m/yyyy", "1/2/1066", 10660201},
                                                                 {"d/m/yyyy", "31/2/2002", 0},
                                                                 {"d/m/yyyy", "Dentist", 0},
                                                                 {"d/m/yyyy", "", 0}};
    for (const auto &[pattern, text, expected] : cases) {
        Use_Short_Date(pattern);
        const platform::Date_Time read = platform::Read_Date(text).value_or(platform::Date_Time{0, 0, 0});
        EXPECT_EQ(read.year * 10000 + read.month * 100 + read.day, expected) << pattern << " " << text;
    }
    Use_Short_Date("d/m/yyyy");
    EXPECT_TRUE(platform::Date_Time_Text({2002, 3, 5, 9, 5, 7, 0}).starts_with("5/3/2002 "));
}

TEST_F(Locale_Contract, Older_Texts_Are_Those_Of_The_Systems_Code_Page) {
    // The tests run with a Western code page natively and on Windows. Undefined bytes keep their value.
    EXPECT_EQ(platform::Ansi_To_Utf8("a|\xE9\x80\x9F \x81"), "a|\u00E9\u20AC\u0178 \u0081");
}

TEST_F(Locale_Contract, The_Time_Now_Is_That_Of_The_Zone) {
    const auto order = [](const platform::Date_Time &time) {
        return std::tuple(time.year, time.month, time.day, time.hour, time.minute, time.second);
    };
    const auto before = order(platform::Now());
    const auto local = order(platform::Local_Time(platform::Now_In_Utc()));
    EXPECT_TRUE(before <= local && local <= order(platform::Now()));
}

} // namespace

// Ordinal suffixes, date keys, and conversions: what they accept and refuse. The month grid tests cover the
// calendar arithmetic.
#include "core/convert.h"
#include "core/date.h"

#include <gtest/gtest.h>

TEST(Convert, Whole_Numbers_And_Flags) {
    const std::pair<const char *, int> good[] = {{" 12\t", 12},    {"+5", 5},  {"-32768", -32768},
                                                 {"32767", 32767}, {"007", 7}, {"-0", 0}};
    for (const auto &[text, value] : good)
        EXPECT_EQ(To_Int16(text), value) << text;
    for (const char *bad : {"", " ", "abc", "32768", "-32769", "1.5", "+-5", "+", "- 5", "5 5", "12a"})
        EXPECT_THROW(To_Int16(bad), Conversion_Error) << bad;
    EXPECT_EQ(To_Int32("+2147483647"), 2147483647);
    EXPECT_THROW(To_Int32("2147483648"), Conversion_Error);
    for (const std::int64_t wide : {std::int64_t{32768}, std::int64_t{-32769}, std::int64_t{1} << 32})
        EXPECT_THROW(Fit_Int16(wide), Conversion_Error) << wide;
    for (const char *yes : {"True", "TRUE", " true ", "-1", "1", "0.5", "+7", "99999999999999999999"})
        EXPECT_TRUE(To_Flag(yes)) << yes;
    for (const char *no : {"False", "fALSE", "0", "-0", "0.0", "\t000 "})
        EXPECT_FALSE(To_Flag(no)) << no;
    for (const char *bad : {"", "yes", "True!", "Truefalse", "-", ".", "1.2.3", "1-", "tru"})
        EXPECT_THROW(To_Flag(bad), Conversion_Error) << bad;
}

TEST(Date, Ordinal_Suffixes) {
    std::string suffixes;
    for (int day = 1; day <= 31; ++day)
        suffixes += Ordinal_Suffix(day);
    EXPECT_EQ(suffixes, "stndrdthththththththththththththththththstndrdthththththththst");
}

TEST(Date, Keys_Are_Read_As_Conversion_Does) {
    const std::pair<const char *, Date> good[] = {{"05/003/02002", {2002, 3, 5}},
                                                  {" 5 /+3/\t2002 ", {2002, 3, 5}},
                                                  {"-1/0/9999", {9999, 0, -1}},
                                                  {"32767/1/-32768", {-32768, 1, 32767}}};
    for (const auto &[key, date] : good)
        EXPECT_EQ(Parse_Date_Key(key), date) << key;
    for (const char *bad : {"", "5", "5/3", "5/3/", "/3/2002", "5//2002", "5/3/2002/", "5/3/2002/1", "5/3/x"})
        EXPECT_THROW(Parse_Date_Key(bad), Conversion_Error) << bad;
}

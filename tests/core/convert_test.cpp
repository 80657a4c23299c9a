// Conversions: what is taken and what is refused.
#include "core/convert.h"

#include <gtest/gtest.h>

TEST(Convert, Whole_Numbers) {
    const std::pair<const char *, int> good[] = {{" 12\t", 12},    {"+5", 5},  {"-32768", -32768},
                                                 {"32767", 32767}, {"007", 7}, {"-0", 0}};
    for (const auto &[text, value] : good)
        EXPECT_EQ(To_Int16(text), value) << text;
    for (const char *bad : {"", " ", "abc", "32768", "-32769", "1.5", "+-5", "-+5", "++5", "+", "- 5", "5 5",
                            "0x10", "1e3", "99999999999999999999", "12a"})
        EXPECT_THROW(To_Int16(bad), Conversion_Error) << bad;
    EXPECT_EQ(To_Int32("+2147483647"), 2147483647);
    EXPECT_THROW(To_Int32("2147483648"), Conversion_Error);
    EXPECT_EQ(Fit_Int16(-32768), -32768);
    for (const std::int64_t wide : {std::int64_t{32768}, std::int64_t{-32769}, std::int64_t{1} << 32})
        EXPECT_THROW(Fit_Int16(wide), Conversion_Error) << wide;
}

TEST(Convert, Flags) {
    for (const char *yes : {"True", "TRUE", " true ", "-1", "1", "0.5", "+7", "99999999999999999999"})
        EXPECT_TRUE(To_Flag(yes)) << yes;
    for (const char *no : {"False", "fALSE", "0", "-0", "0.0", "\t000 "})
        EXPECT_FALSE(To_Flag(no)) << no;
    for (const char *bad : {"", "yes", "True!", "Truefalse", "-", ".", "1.2.3", "1-", "tru"})
        EXPECT_THROW(To_Flag(bad), Conversion_Error) << bad;
}

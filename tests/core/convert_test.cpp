// Conversions: what is taken, what is refused, and the words of a refusal.
#include "core/convert.h"

#include <gtest/gtest.h>

TEST(Convert, Whole_Numbers) {
    const struct {
        const char *text;
        int value;
    } good[] = {{"0", 0},         {" 12\t", 12}, {"+5", 5}, {"-32768", -32768},
                {"32767", 32767}, {"007", 7},    {"-0", 0}};
    for (const auto &c : good)
        EXPECT_EQ(To_Int16(c.text), c.value) << c.text;
    EXPECT_EQ(To_Int32("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(To_Int32("+2147483647"), 2147483647);
    for (const char *bad : {"", " ", "abc", "32768", "-32769", "1.5", "+-5", "-+5", "++5", "+", "- 5", "5 5",
                            "0x10", "1e3", "99999999999999999999", "12a"})
        EXPECT_THROW(To_Int16(bad), Conversion_Error) << bad;
    EXPECT_THROW(To_Int32("2147483648"), Conversion_Error);
    try {
        To_Int16("abc");
    } catch (const Conversion_Error &error) {
        EXPECT_STREQ(error.what(), "a whole number from -32768 to 32767");
    }
}

TEST(Convert, Flags) {
    for (const char *yes : {"True", "TRUE", " true ", "-1", "1", "0.5", "+7", "99999999999999999999"})
        EXPECT_TRUE(To_Flag(yes)) << yes;
    for (const char *no : {"False", "fALSE", "0", "-0", "0.0", "\t000 "})
        EXPECT_FALSE(To_Flag(no)) << no;
    for (const char *bad : {"", "yes", "True!", "Truefalse", "-", ".", "1.2.3", "1-", "tru"})
        EXPECT_THROW(To_Flag(bad), Conversion_Error) << bad;
    EXPECT_TRUE(To_Flag(Flag_Text(true)));
    EXPECT_FALSE(To_Flag(Flag_Text(false)));
}

TEST(Convert, Narrowing_Never_Wraps) {
    EXPECT_EQ(Fit_Int16(32767), 32767);
    EXPECT_EQ(Fit_Int16(-32768), -32768);
    for (const std::int64_t value : {std::int64_t{32768}, std::int64_t{-32769}, std::int64_t{1} << 32})
        EXPECT_THROW(Fit_Int16(value), Conversion_Error) << value;
}

// A second start, and the end by the keyboard and by a message.
#include "tests/desktop/driver.h"

#include <windows.h>

namespace {

using Input = Desktop_Test;

TEST_F(Input, Second_Start_Ends_Itself) {
    const Program &first = Start_Calendar();
    const Program &second = Start();
    ASSERT_TRUE(Becomes(
        std::string("[Vellatro] The program is already running!"), [&] { return second.Box(); }, 15000));
    first.Do_Default("Next month");
    EXPECT_TRUE(Becomes(std::string("June - 2027"), [&] { return first.Title(); }));
    second.Answer();
    EXPECT_TRUE(second.Exit_Code().has_value());
    EXPECT_FALSE(first.Exit_Code(0).has_value());
    first.Do_Default("Previous month");
    EXPECT_TRUE(Becomes(std::string("12th May - 2027"), [&] { return first.Title(); }));
}

TEST_F(Input, Close_Ends_The_Program) {
    for (const bool by_key : {false, true}) {
        const Program &program = Start_Calendar();
        if (by_key)
            program.Press(VK_F4, true);
        else
            PostMessageW(program.Calendar(), WM_CLOSE, 0, 0);
        EXPECT_EQ(program.Exit_Code(2000), 0U) << (by_key ? "by Alt+F4" : "by WM_CLOSE");
    }
}

} // namespace

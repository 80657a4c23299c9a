// What the user does and is told: the alert, keys and mouse, a second start, the end.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

namespace {

using Input = Desktop_Test;

TEST_F(Input, Alert_Comes_Once) {
    Write_Data(
        "\"12/5/2026=Last year\"\r\n\"12/5/9999=Anniversary, = 25\"\r\n\"12/5/2027=Not told any more\"\r\n");
    const Program &program = Start();
    ASSERT_TRUE(Becomes(
        std::string("[Vellatro] Today: 5/12/2027\r\nAnniversary, = 25"), [&] { return program.Box(); },
        15000));
    program.Answer();
    const auto text = [&] { return program.Named("Wednesday 12th May 2027, today").value; };
    ASSERT_TRUE(Becomes(std::string("Not told any more"), text));
    // Both redrawing keys read the file again; the text that arrives shows that they are done.
    for (const auto &[key, value] : {std::pair<WORD, std::string>{VK_F3, "Third"}, {VK_F5, "Fifth"}}) {
        Write_Data("\"12/5/2027=" + value + "\"\r\n");
        program.Press(key);
        ASSERT_TRUE(Becomes(value, text));
        EXPECT_EQ(program.Box(), "");
    }
    program.Press(VK_F1);
    ASSERT_TRUE(Becomes(std::string("[Vellatro] Today: 5/12/2027\r\nFifth"), [&] { return program.Box(); }));
    program.Answer();
}

TEST_F(Input, Steps_From_Month_To_Month) {
    Write_Data("\"29/2/2028=Leap day\"\r\n");
    // At the upper edge, where the arrows do not move away from the mouse: Wine would lose the next click.
    Set_Setting("Settings", "Alignment", "6");
    const Program &program = Start_Calendar();
    const auto title = [&] { return program.Title(); };
    const auto press = [&](WORD key) { program.Press(key); };
    const auto click = [&](const char *name) { program.Click(program.Named(name).place); };
    press(VK_F4);
    ASSERT_TRUE(Becomes(std::string("June - 2027"), title));
    press(VK_F2);
    ASSERT_TRUE(Becomes(std::string("12th May - 2027"), title));
    press(VK_F2);
    ASSERT_TRUE(Becomes(std::string("April - 2027"), title));
    click("Previous month");
    ASSERT_TRUE(Becomes(std::string("March - 2027"), title));
    for (const char *month : {"April - 2027", "12th May - 2027", "June - 2027"}) {
        click("Next month");
        ASSERT_TRUE(Becomes(std::string(month), title));
    }
    for (const char *month : {"July", "August", "September", "October", "November", "December"}) {
        program.Do_Default("Next month");
        ASSERT_TRUE(Becomes(month + std::string(" - 2027"), title));
    }
    program.Do_Default("Next month");
    program.Do_Default("Next month");
    ASSERT_TRUE(Becomes(std::string("February - 2028"), title));
    EXPECT_EQ(program.Items(ROLE_SYSTEM_CELL).size(), 29U);
    EXPECT_TRUE(
        Becomes(std::string("Leap day"), [&] { return program.Named("Tuesday 29th February 2028").value; }));
    program.Do_Default("Previous month");
    ASSERT_TRUE(Becomes(std::string("January - 2028"), title));
}

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

// The calendar by mouse and keyboard: menus, tooltips, balloon, a second start, and Alt+F4.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

namespace {

constexpr DWORD right_button = MOUSEEVENTF_RIGHTDOWN;

class Use : public Desktop_Test {
protected:
    static ::testing::AssertionResult Shows(const Program &program, const std::string &title) {
        return Becomes(title, [&] { return program.Title(); });
    }
    static std::size_t Boxes(const Program &program) { return program.Items(ROLE_SYSTEM_CELL).size(); }

    /// Returns the half of the title that opens the menu of years or of months on a right click.
    static RECT Half(const Program &program, bool years) {
        RECT place = program.Named(program.Title()).place;
        (years ? place.left : place.right) = Middle(place).x;
        return place;
    }
    static void Click_In_Menu(const Program &program, int item, int count) {
        RECT place{};
        ASSERT_TRUE(Wait_Until([&] { return GetWindowRect(program.Window("#32768"), &place) != FALSE; }));
        const LONG height = place.bottom - place.top;
        const POINT point{Middle(place).x, place.top + (2 * item + 1) * height / (2 * count)};
        for (const DWORD flags : {0UL, DWORD{MOUSEEVENTF_LEFTDOWN}, DWORD{MOUSEEVENTF_LEFTUP}})
            Send_Mouse(point, flags);
        EXPECT_TRUE(Wait_Until([&] { return !program.Window("#32768"); })) << "the menu stays";
    }
};

TEST_F(Use, Every_Menu_By_Mouse_And_Keyboard) {
    const std::string cleared = "\"5/5/2027=Cleared\"\r\n", kept = "\"6/5/2027=Kept\"\r\n";
    Write_Data(cleared + kept);
    const Program &program = Start_Calendar();
    program.Click(Half(program, false), right_button);
    Click_In_Menu(program, 11, 12);
    ASSERT_TRUE(Shows(program, "December - 2027"));
    program.Open_Menu(Middle(Half(program, true)));
    program.Choose({VK_HOME, VK_DOWN, VK_RETURN});
    ASSERT_TRUE(Shows(program, "December - 2026"));
    program.Press(VK_HOME);
    ASSERT_TRUE(Shows(program, "12th May - 2027"));
    const auto choose = [&](const char *day, const std::vector<WORD> &keys) {
        program.Click(program.Named(day).place, right_button);
        program.Choose(keys);
    };
    choose("Wednesday 5th May 2027", {VK_HOME, VK_RETURN}); // the first, wherever the mouse is
    EXPECT_TRUE(Becomes(kept, [&] { return Data(); }));
    choose("Thursday 6th May 2027", {VK_END, VK_RETURN}); // the last item undoes "Clear"
    EXPECT_TRUE(Becomes(cleared + kept, [&] { return Data(); }));
    EXPECT_TRUE(Becomes("Cleared", [&] { return program.Named("Wednesday 5th May 2027").value; }));

    program.Click(program.Named(program.Title()).place, MOUSEEVENTF_LEFTDOWN, 2);
    ASSERT_TRUE(Becomes(0U, [&] { return Boxes(program); }));
    program.Click(Half(program, true), right_button); // in compact mode the whole title has one menu
    Click_In_Menu(program, 0, 1);
    ASSERT_TRUE(Becomes(31U, [&] { return Boxes(program); }));
    choose("Thursday 6th May 2027", {VK_END, VK_RETURN}); // with nothing to undo, the last item is Exit
    EXPECT_EQ(program.Exit_Code(), 0U);
}

TEST_F(Use, A_Second_Start_Ends_Itself_And_Alt_F4_The_First) {
    const Program &first = Start_Calendar();
    const Program &second = Start();
    ASSERT_TRUE(Becomes(
        std::string("[Vellatro] The program is already running!"), [&] { return second.Box(); }, 15000));
    second.Answer();
    EXPECT_TRUE(second.Exit_Code().has_value());
    first.Press(VK_F4, true);
    EXPECT_EQ(first.Exit_Code(), 0U);
}

TEST_F(Use, A_Right_Click_That_Slips_Chooses_Nothing) {
    const std::string kept = "\"5/5/2027=Kept\"\r\n";
    Write_Data(kept);
    const Program &program = Start_Calendar();
    const auto menu = [&] { return program.Window("#32768") != nullptr; };
    const POINT middle = Middle(program.Named("Wednesday 5th May 2027").place);
    for (const auto &[slip, held, chooses] : {std::tuple(3, 400, false), {14, 0, false}, {14, 400, true}}) {
        ASSERT_TRUE(program.Raise_Calendar(middle));
        std::vector<std::pair<POINT, DWORD>> steps = {{middle, right_button}};
        if (held > 0) {
            Send_Mouse(std::exchange(steps, {}));
            EXPECT_TRUE(Wait_Until(menu));
            Sleep(static_cast<DWORD>(held));
        }
        RECT place{};
        GetWindowRect(program.Window("#32768"), &place); // it opened at the mouse
        for (const DWORD flags : {0UL, DWORD{MOUSEEVENTF_RIGHTUP}})
            steps.push_back({{middle.x, chooses ? place.top + slip : middle.y + slip}, flags});
        Send_Mouse(steps);
        EXPECT_TRUE(Becomes(chooses ? "" : kept, [&] { return Data(); }));
        if (!chooses) {
            EXPECT_TRUE(Wait_Until(menu) && !Wait_Until([&] { return !menu(); }, 500)) << slip;
            program.Choose({VK_ESCAPE});
        }
    }
}

TEST_F(Use, Tooltip_And_Balloon) {
    Write_Data("\"14/5/2027=Told by the mouse\"\r\n");
    const std::string day = "Friday 14th May 2027";
    {
        const Program &program = Start_Calendar();
        const POINT middle = Middle(program.Named(day).place);
        ASSERT_TRUE(program.Raise_Calendar(middle));
        for (const LONG step : {-3L, 0L})
            Send_Mouse({middle.x + step, middle.y}, 0);
        ASSERT_TRUE(Becomes(std::string("Told by the mouse"),
                            [&] { return Text_Of(program.Window("tooltips_class32")); }));
        Send_Mouse(middle, MOUSEEVENTF_RIGHTDOWN);
        ASSERT_TRUE(Wait_Until([&] { return program.Window("#32768") != nullptr; }));
        EXPECT_TRUE(Wait_Until([&] { return !program.Window("tooltips_class32"); })) << "it covers the menu";
        Send_Mouse(middle, MOUSEEVENTF_RIGHTUP);
    }
    Stop_All();
    Set_Setting("Settings", "Tooltips", "2");
    const Program &program = Start_Calendar();
    const POINT middle = Middle(program.Named(day).place);
    const auto balloon = [&] { return program.Window("Vellatro_Balloon"); };
    ASSERT_TRUE(program.Raise_Calendar(middle));
    const Picture before = Save_Picture("no-balloon");
    Send_Mouse(middle, MOUSEEVENTF_LEFTDOWN);
    ASSERT_TRUE(Wait_Until([&] { return balloon() != nullptr; }));
    EXPECT_EQ(Text_Of(balloon()), "5/14/2027");
    Save_Picture("balloon");
    Send_Mouse(middle, MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(Wait_Until([&] { return !balloon(); }));
    EXPECT_TRUE(Wait_Until([&] { return Picture().pixels == before.pixels; })) << "a rest of it is seen";
}

} // namespace

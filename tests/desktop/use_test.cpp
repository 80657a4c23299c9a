// A day's use of the calendar by mouse and keyboard: its menus, tooltips and balloon.
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

    /// The half of the title whose right click opens the menu of the months, or of the years.
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
    choose("Wednesday 5th May 2027", {VK_DOWN, VK_RETURN});
    EXPECT_TRUE(Becomes(kept, [&] { return Data(); }));
    choose("Thursday 6th May 2027", {VK_UP, VK_RETURN}); // the last one: what "Clear" took comes back
    EXPECT_TRUE(Becomes(cleared + kept, [&] { return Data(); }));
    EXPECT_TRUE(Becomes("Cleared", [&] { return program.Named("Wednesday 5th May 2027").value; }));

    program.Click(program.Named(program.Title()).place, MOUSEEVENTF_LEFTDOWN, 2);
    ASSERT_TRUE(Becomes(0U, [&] { return Boxes(program); }));
    program.Click(Half(program, true), right_button); // the whole title has the one menu now
    Click_In_Menu(program, 0, 1);
    ASSERT_TRUE(Becomes(31U, [&] { return Boxes(program); }));
    choose("Thursday 6th May 2027", {VK_UP, VK_RETURN}); // the last one, with nothing to undo
    EXPECT_EQ(program.Exit_Code(), 0U);
}

TEST_F(Use, A_Right_Click_That_Slips_Chooses_Nothing) {
    const std::string kept = "\"5/5/2027=Kept\"\r\n";
    Write_Data(kept);
    const Program &program = Start_Calendar();
    const auto menu = [&] { return program.Window("#32768") != nullptr; };
    const POINT middle = Middle(program.Named("Wednesday 5th May 2027").place);
    for (const auto &[slip, held, chooses] : {std::tuple(3, 400, false), {14, 0, false}, {14, 400, true}}) {
        ASSERT_TRUE(program.Uncover(middle));
        std::vector<std::pair<POINT, DWORD>> steps = {{middle, right_button}};
        if (held > 0) {
            Send_Mouse(std::exchange(steps, {}));
            EXPECT_TRUE(Wait_Until(menu));
            Sleep(static_cast<DWORD>(held));
        }
        RECT place{};
        GetWindowRect(program.Window("#32768"), &place); // where Wine still had the mouse
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
        ASSERT_TRUE(program.Uncover(middle));
        for (const LONG step : {-3L, 0L})
            Send_Mouse({middle.x + step, middle.y}, 0);
        ASSERT_TRUE(Becomes(std::string("Told by the mouse"),
                            [&] { return Text_Of(program.Window("tooltips_class32")); }));
        Send_Mouse(middle, MOUSEEVENTF_RIGHTDOWN);
        ASSERT_TRUE(Wait_Until([&] { return program.Window("#32768") != nullptr; }));
        EXPECT_TRUE(Wait_Until([&] { return !program.Window("tooltips_class32"); })) << "it covers the menu";
        Send_Mouse(middle, MOUSEEVENTF_RIGHTUP);
        Send_Key(VK_ESCAPE);
        EXPECT_FALSE(program.Window("Vellatro_Balloon"));
    }
    Stop_All();
    Set_Setting("Settings", "Tooltips", "2");
    const Program &program = Start_Calendar();
    const POINT middle = Middle(program.Named(day).place);
    const auto balloon = [&] { return program.Window("Vellatro_Balloon"); };
    ASSERT_TRUE(program.Uncover(middle));
    const Picture before;
    Send_Mouse(middle, MOUSEEVENTF_LEFTDOWN);
    ASSERT_TRUE(Wait_Until([&] { return balloon() != nullptr; }));
    EXPECT_EQ(Text_Of(balloon()), "5/14/2027");
    RECT place{};
    GetWindowRect(balloon(), &place);
    const COLORREF back = GetSysColor(COLOR_INFOBK);
    const DWORD expected = DWORD{GetRValue(back)} << 16 | DWORD{GetGValue(back)} << 8 | GetBValue(back);
    EXPECT_TRUE(Becomes(expected, [&] { return Picture().At(Middle(place).x, Middle(place).y); }));
    Save_Picture("balloon");
    Send_Mouse(middle, MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(Wait_Until([&] { return !balloon(); }));
    EXPECT_TRUE(Wait_Until([&] { return Picture().pixels == before.pixels; })) << "a rest of it is seen";
    Send_Mouse({{middle, MOUSEEVENTF_LEFTDOWN}, {middle, MOUSEEVENTF_LEFTUP}}); // too short
    EXPECT_FALSE(Wait_Until([&] { return balloon() != nullptr; }, 600));
}

} // namespace

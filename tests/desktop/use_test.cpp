// A day's use of the calendar by mouse and keyboard: function keys, all menus, compact mode, tooltips and
// balloon.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

namespace {

constexpr DWORD right_button = MOUSEEVENTF_RIGHTDOWN;

class Use : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        // Wine tells late of the mouse's earlier places, which a click on the title would take for a drag.
        Set_Setting("Settings", "Allow Dragging", "0");
    }
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

TEST_F(Use, Function_Keys_And_Arrows) {
    Set_Setting("Settings", "Show Alerts", "0");
    Set_Setting("Settings", "Use Theme Style", "1");
    const Program &program = Start_Calendar();
    const auto height = [&] {
        const RECT place = program.Named("Wednesday 12th May 2027, today").place;
        return place.bottom - place.top;
    };
    const auto box = [&] { return program.Box(); };
    const std::pair<WORD, const char *> steps[] = {{VK_F4, "June - 2027"},
                                                   {VK_F2, "12th May - 2027"},
                                                   {VK_F2, "April - 2027"},
                                                   {VK_F4, "12th May - 2027"}};
    for (const auto &[key, title] : steps) {
        program.Press(key);
        ASSERT_TRUE(Shows(program, title));
    }
    for (const WORD key : {WORD{VK_F3}, WORD{VK_F5}}) {
        Write_Data("\"12/5/2027=Read by " + std::to_string(key) + "\"\r\n");
        program.Press(key);
        EXPECT_TRUE(Becomes("Read by " + std::to_string(key),
                            [&] { return program.Named("Wednesday 12th May 2027, today").value; }));
    }
    for (const auto &[arrow, title] :
         {std::pair("Next month", "June - 2027"), {"Previous month", "12th May - 2027"}}) {
        program.Click(program.Named(arrow).place);
        ASSERT_TRUE(Shows(program, title));
    }
    const std::string question = "[Vellatro] You can't change the box style because Use Theme Style is "
                                 "selected. Do you want to turn off Use Theme Style?";
    const LONG square = height();
    for (const WORD answer : {WORD{IDCANCEL}, WORD{IDYES}}) {
        program.Press(VK_F8);
        ASSERT_TRUE(Becomes(question, box));
        program.Answer(answer);
    }
    ASSERT_TRUE(Wait_Until([&] { return height() < square; }));
    EXPECT_NE(Store().find("Style=0\n"), std::string::npos) << Store();
    EXPECT_NE(Store().find("Use Theme Style=0\n"), std::string::npos) << Store();
    program.Press(VK_F9);
    ASSERT_TRUE(Becomes(square, height));
    EXPECT_NE(Store().find("Style=1\n"), std::string::npos) << Store();
    for (const std::size_t boxes : {0U, 31U}) {
        program.Press(VK_F12);
        ASSERT_TRUE(Becomes(boxes, [&] { return Boxes(program); }));
    }
}

TEST_F(Use, Every_Item_Of_The_Menus) {
    Write_Data("\"5/5/2027=Cleared\"\r\n\"6/5/2027=Kept\"\r\n");
    const Program &program = Start_Calendar();
    for (const auto &[item, title] :
         {std::pair(0, "January - 2027"), {4, "12th May - 2027"}, {11, "December - 2027"}}) {
        program.Click(Half(program, false), right_button);
        Click_In_Menu(program, item, 12);
        ASSERT_TRUE(Shows(program, title));
    }
    // From December 2027; each row goes on from the one before, by one item more each time.
    std::vector<WORD> keys{VK_RETURN};
    for (const char *title :
         {"December - 2025", "December - 2024", "12th May - 2027", "May - 2028", "May - 2030"}) {
        program.Open_Menu(Middle(Half(program, true)));
        keys.insert(keys.begin(), VK_DOWN);
        program.Choose(keys);
        ASSERT_TRUE(Shows(program, title));
    }
    program.Press(VK_HOME);
    ASSERT_TRUE(Shows(program, "12th May - 2027"));
    const auto open = [&](const char *day) { program.Click(program.Named(day).place, right_button); };
    const std::string kept = "\"6/5/2027=Kept\"\r\n";
    for (const auto &[key, data] : {std::pair<WORD, std::string>{VK_ESCAPE, Data()}, {VK_RETURN, kept}}) {
        open("Wednesday 5th May 2027");
        program.Choose({VK_DOWN, key});
        EXPECT_TRUE(Becomes(data, [&] { return Data(); }));
    }
    EXPECT_EQ(program.Named("Wednesday 5th May 2027").value, "");
    const std::pair<const char *, std::vector<WORD>> dialogs[] = {
        {"Vellatro_Edit_Frm", {VK_DOWN, VK_DOWN, VK_RETURN}},
        {"Vellatro_Settings_Frm", {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}}};
    for (const auto &[dialog, picks] : dialogs) {
        open("Sunday 2nd May 2027");
        program.Choose(picks);
        ASSERT_TRUE(Wait_Until([&, name = dialog] {
            const HWND window = program.Window(name);
            return window && window == GetForegroundWindow();
        })) << dialog;
        Send_Key(VK_ESCAPE);
        ASSERT_TRUE(Wait_Until([&, name = dialog] { return !program.Window(name); })) << dialog;
    }

    program.Click(program.Named(program.Title()).place, MOUSEEVENTF_LEFTDOWN, 2);
    ASSERT_TRUE(Becomes(0U, [&] { return Boxes(program); }));
    for (const bool years : {false, true}) { // the whole title has the one menu now
        program.Click(Half(program, years), right_button);
        Click_In_Menu(program, 0, 1);
        ASSERT_TRUE(Becomes(31U, [&] { return Boxes(program); }));
        program.Double_Click(program.Title());
        ASSERT_TRUE(Becomes(0U, [&] { return Boxes(program); }));
    }
    program.Double_Click(program.Title());
    ASSERT_TRUE(Becomes(31U, [&] { return Boxes(program); }));
    open("Thursday 6th May 2027");
    program.Choose({VK_UP, VK_RETURN}); // the last one: what "Clear" took comes back
    EXPECT_TRUE(Becomes("\"5/5/2027=Cleared\"\r\n" + kept, [&] { return Data(); }));
    EXPECT_TRUE(Becomes("Cleared", [&] { return program.Named("Wednesday 5th May 2027").value; }));
    open("Thursday 6th May 2027");
    program.Choose({VK_UP, VK_RETURN}); // the last one
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

TEST_F(Use, Compact_After_A_Minute) {
    Set_Setting("Settings", "Auto Compact", "1");
    const DWORD begin = GetTickCount();
    const Program &program = Start_Calendar();
    const auto boxes = [&] { return Boxes(program); };
    ASSERT_TRUE(Becomes(0U, boxes, 75000));
    EXPECT_GE(GetTickCount() - begin, 60000U);
    const RECT title = program.Named(program.Title()).place;
    ASSERT_TRUE(program.Uncover(Middle(title)));
    for (const LONG step : {0L, 3L})
        Send_Mouse({Middle(title).x + step, Middle(title).y}, 0);
    EXPECT_TRUE(Becomes(31U, boxes));
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
    Send_Mouse(middle, MOUSEEVENTF_LEFTDOWN);
    Send_Mouse(middle, MOUSEEVENTF_LEFTUP); // too short
    EXPECT_FALSE(Wait_Until([&] { return balloon() != nullptr; }, 600));
}

} // namespace

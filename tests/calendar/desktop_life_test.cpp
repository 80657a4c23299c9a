// The calendar inside the shell's desktop: attachment, splash, dragging, placement in all positions, and the
// end with the shell.
#include "desktop/position.h"
#include "tests/calendar/calendar_test.h"

using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

constexpr const char *manual_question =
    "Manual Positioning is not selected. This means that next time the program is started or the month is "
    "changed the program will revert back to the set position. Do you want to change the positioning mode to "
    "manual positioning?";

class Desktop_Life : public Calendar_Test {
protected:
    static void Whole_Shell() {
        Shell().desktop = 11;
        Shell().view = 12;
        Shell().list = 13;
        Shell().colours = {-1, 0x00F0F0};
    }

    static void Stored(const std::string &key, const std::string &value) {
        Fakes().registry["Software\\Vellatro\\Settings\\" + key] = value;
    }

    static std::string Stored(const std::string &key) {
        return Fakes().registry["Software\\Vellatro\\Settings\\" + key];
    }

    /// A mouse message with the mouse in a place on the screen, which comes as one on the window.
    void Mouse(Input_Kind kind, Mouse_Button button, platform::Point screen) {
        platform::Input_Event event{};
        event.kind = kind;
        event.button = button;
        event.point = {screen.x - form.Left(), screen.y - form.Top()};
        form.Input(event);
    }

    /// Takes the title and moves it in two steps.
    void Drag(int right, int down) {
        const platform::Rect title = form.Which_Month_Lbl.Bounds();
        const platform::Point from{form.Left() + title.left + 300, form.Top() + title.top + 90};
        Mouse(Input_Kind::Mouse_Down, Mouse_Button::Left, from);
        Mouse(Input_Kind::Mouse_Move, Mouse_Button::Left, {from.x + right / 2, from.y + down / 2});
        Mouse(Input_Kind::Mouse_Move, Mouse_Button::Left, {from.x + right, from.y + down});
        Mouse(Input_Kind::Mouse_Up, Mouse_Button::Left, {from.x + right, from.y + down});
    }
};

TEST_F(Desktop_Life, attaches_only_where_all_windows_of_the_shell_are) {
    struct {
        bool desktop, view, list, answers;
        bool splash, attached;
        platform::Colour back, text; // the icon colours, 7 and 9 before
    } const rows[] = {{false, true, true, true, false, false, 7, 9},
                      {true, false, true, true, true, false, 7, 9},
                      {true, true, false, true, true, false, 7, 9},
                      {true, true, true, false, true, false, 7, 9},
                      {true, true, true, true, true, true, -1, 0xF0F0}};
    for (const auto &row : rows) {
        SCOPED_TRACE(&row - rows);
        Reset_Desktop();
        Reset_Shell();
        Whole_Shell();
        Shell().desktop *= row.desktop ? 1 : 0;
        Shell().view *= row.view ? 1 : 0;
        Shell().list *= row.list ? 1 : 0;
        if (!row.answers)
            Shell().colours.reset();
        Main_Frm calendar;
        calendar.Icon_BackColour = 7;
        calendar.Icon_TextColour = 9;
        ASSERT_TRUE(calendar.Form_Load());
        EXPECT_EQ(Desktop().mirrors.contains(&calendar.Splash.Model()), row.splash);
        EXPECT_EQ(Shell().attached, row.attached ? &calendar.Model() : nullptr);
        EXPECT_EQ(Shell().attached_hidden, row.attached);
        EXPECT_EQ(calendar.Icon_BackColour, row.back);
        EXPECT_EQ(calendar.Icon_TextColour, row.text);
        const Fake_Mirror &window = Desktop().mirrors.at(&calendar.Model());
        EXPECT_TRUE(window.shown);
        EXPECT_FALSE(window.shown_unclipped);
    }
}

TEST_F(Desktop_Life, waits_outside_for_a_shell_that_does_not_answer) {
    Whole_Shell();
    Shell().colours.reset();
    Stored("Alignment", "6");
    Fakes().registry["Software\\Vellatro\\Colours\\Menu Colour Source"] = "0";
    Start();
    EXPECT_EQ(form.Which_Month_Lbl.Fore_Colour(), 0);
    Desktop().Advance(5000);
    EXPECT_EQ(Shell().attached, nullptr);
    Shell().colours = {0x332211, 0x00F0F0};
    Desktop().Advance(1000);
    EXPECT_EQ(Shell().attached, &form.Model());
    EXPECT_EQ(form.Back_Colour(), 0x332211);
    EXPECT_EQ(form.Which_Month_Lbl.Fore_Colour(), 0x00F0F0);
    EXPECT_EQ(Box_Of(5).Back_Colour(), Cur_Settings.Col_Today);
    EXPECT_FALSE(form.Attach_Timer.Enabled());
    EXPECT_FALSE(Desktop().mirrors.contains(&form.Splash.Model())) << "the splash came a second time";
}

TEST_F(Desktop_Life, stays_outside_when_the_shell_goes_without_an_answer) {
    Whole_Shell();
    Shell().colours.reset();
    Start();
    Reset_Shell();
    Desktop().Advance(1000);
    EXPECT_FALSE(form.Attach_Timer.Enabled());
    EXPECT_TRUE(Desktop().mirrors.at(&form.Model()).shown);
}

TEST_F(Desktop_Life, takes_the_dots_per_inch_that_it_finds_inside) {
    Whole_Shell();
    Shell().dots_inside = 144;
    Start();
    EXPECT_EQ(form.Left() + form.Width(), 1024 * 10);
    EXPECT_EQ(form.Top() + form.Box_Lbl[35].Bounds().Bottom(), 740 * 10 - 75);
    EXPECT_EQ(form.Box_Lbl[0].Width() % 10, 0);
}

TEST_F(Desktop_Life, splash_stands_over_the_calendar_and_goes) {
    Whole_Shell();
    Desktop().work_area = {-1500, -40, 1023, 740};
    Start();
    const Splash_Frm &splash = form.Splash;
    EXPECT_EQ(splash.Left(), form.Left() + (form.Width() - splash.Width()) / 2);
    EXPECT_EQ(splash.Top(), form.Top() + form.Box_Lbl[36].Top() / 2 + splash.Height());
    EXPECT_TRUE(splash.Model().floating); // takes no keyboard
    EXPECT_EQ(splash.Name_Lbl.Caption(), "Vellatro");
    EXPECT_EQ(splash.Weekday_Lbl.Caption() + splash.Day_Lbl.Caption(), "Tue5");
    for (const platform::Control_State *control : splash.Model().controls)
        for (const int dots : {96, 120, 144, 192}) // sharp in all of them
            EXPECT_EQ((control->bounds.left * dots) % 1440 + (control->bounds.Bottom() * dots) % 1440, 0)
                << control->name << " at " << dots;
    Desktop().Advance(1499);
    EXPECT_TRUE(Desktop().mirrors.contains(&splash.Model()));
    Desktop().Advance(1);
    EXPECT_FALSE(Desktop().mirrors.contains(&splash.Model()));
    EXPECT_FALSE(splash.Start_Timer.Enabled());
}

TEST_F(Desktop_Life, ends_with_the_shell_which_waits_for_no_question) {
    Whole_Shell();
    Start();
    form.Ask_Unsaved = [] {
        ADD_FAILURE() << "the shell's end waits for the user";
        return false;
    };
    Desktop().mirrors.erase(&form.Model());
    platform::Input_Event lost{};
    lost.kind = Input_Kind::Window_Lost;
    form.Input(lost);
    EXPECT_TRUE(Desktop().loop_ended);
}

TEST_F(Desktop_Life, drags_as_far_as_it_may) {
    struct {
        int alignment, allowed, theme_pos, right, down;
        bool moves, asks;
    } const rows[] = {
        {0, 1, 0, -150, -90, true, true},   {0, 1, 1, -150, -90, true, true},
        {0, 1, 0, -150, 0, true, false},    {0, 1, 0, 0, -90, true, false},
        {0, 1, 0, 0, 0, true, false},       {0, -1, 0, 15, 15, true, true},
        {0, 0, 0, -150, -90, false, false}, {7, 0, 0, -150, -90, true, false},
        {7, 1, 1, -150, -90, true, true},   {7, 0, 1, 0, -90, true, false},
    };
    Start();
    for (const auto &row : rows) {
        SCOPED_TRACE(&row - rows);
        Cur_Settings.Alignment = static_cast<std::int16_t>(row.alignment);
        Cur_Settings.Allow_Dragging = static_cast<std::int16_t>(row.allowed);
        Cur_Settings.Use_Theme_Pos = static_cast<std::int16_t>(row.theme_pos);
        Fakes().registry.clear();
        form.Move(3000, -600);
        if (row.asks)
            Fakes().Expect_Box(manual_question, platform::Box_Answer::No);
        Drag(row.right, row.down);
        EXPECT_EQ(form.Left(), 3000 + (row.moves ? row.right : 0));
        EXPECT_EQ(form.Top(), -600 + (row.moves ? row.down : 0));
        EXPECT_EQ(Stored("Manual_PosX"), row.moves ? std::to_string(form.Left()) : "");
        EXPECT_EQ(Stored("Manual_PosY"), row.moves ? std::to_string(form.Top()) : "");
        EXPECT_EQ(Stored("Alignment"), "");
        EXPECT_EQ(form.Model().pointer, platform::Pointer_Shape::Arrow);
    }
}

TEST_F(Desktop_Life, a_yes_makes_the_position_manual_and_a_no_lasts_until_the_next_month) {
    Start();
    const platform::Rect at_first = form.Model().bounds;
    Fakes().Expect_Box(manual_question, platform::Box_Answer::No);
    Drag(-300, -450);
    EXPECT_EQ(Fakes().boxes.at(0).title, "Vellatro");
    EXPECT_EQ(Fakes().boxes.at(0).icon, platform::Box_Icon::Question);
    form.Redraw();
    EXPECT_EQ(form.Model().bounds, at_first);
    Fakes().Expect_Box(manual_question, platform::Box_Answer::Yes, [this] {
        EXPECT_EQ(form.Model().pointer, platform::Pointer_Shape::Arrow);
        EXPECT_EQ(Cur_Settings.Alignment, 0);
    });
    Drag(-300, -450);
    EXPECT_EQ(Stored("Alignment") + Stored("Use Theme Pos"), "70");
    form.Redraw();
    EXPECT_EQ(form.Left(), at_first.left - 300);
    EXPECT_EQ(form.Top(), at_first.top - 450);
    Drag(-30, -45);
    EXPECT_EQ(Fakes().boxes.size(), 2U);
}

TEST_F(Desktop_Life, only_the_left_button_drags_and_every_one_but_the_right_keeps_the_place) {
    Start();
    form.Move(3000, 600);
    const platform::Point on_title{3000 + form.Width() / 2, 600 + 90};
    const platform::Point elsewhere{on_title.x + 150, on_title.y + 60};
    for (const Mouse_Button button : {Mouse_Button::Right, Mouse_Button::Middle}) {
        if (button == Mouse_Button::Right)
            Desktop().expected_menus.push_back(
                {{"2000", "2001", "Current Month\\Year", "2003", "2004"}, 0, {}});
        Mouse(Input_Kind::Mouse_Down, button, on_title);
        EXPECT_EQ(form.Model().pointer, platform::Pointer_Shape::Arrow);
        Mouse(Input_Kind::Mouse_Move, button, elsewhere);
        Mouse(Input_Kind::Mouse_Up, button, elsewhere);
        EXPECT_EQ(form.Left(), 3000);
        EXPECT_EQ(Stored("Manual_PosX"), button == Mouse_Button::Right ? "" : "3000");
    }
    // A lost release ends the drag where it is: told at once, or seen by a move without a button.
    for (const Input_Kind kind : {Input_Kind::Capture_Lost, Input_Kind::Mouse_Move}) {
        Mouse(Input_Kind::Mouse_Down, Mouse_Button::Left, on_title);
        EXPECT_EQ(form.Model().pointer, platform::Pointer_Shape::Move);
        Mouse(kind, Mouse_Button::None, elsewhere);
        EXPECT_EQ(form.Model().pointer, platform::Pointer_Shape::Arrow);
        Mouse(Input_Kind::Mouse_Move, Mouse_Button::Left, elsewhere);
        EXPECT_EQ(form.Left(), 3000);
    }
}

TEST_F(Desktop_Life, a_place_beyond_16_bits_is_told_once_and_can_be_left) {
    Start();
    Cur_Settings.Alignment = 7;
    form.Move(40000, -600);
    Fakes().registry.clear();
    const auto told = [](const std::string &left) {
        return "The calendar's place on the screen, " + left +
               " and -600 twips, cannot be kept: it must lie between -32768 and 32767.";
    };
    Fakes().Expect_Box(told("40000"));
    Drag(0, 0);
    Drag(0, 0);
    Fakes().Expect_Box(told("40150"));
    Drag(150, 0);
    EXPECT_TRUE(Fakes().registry.empty());
    EXPECT_EQ(Cur_Settings.Manual_PosY, 0);
    Drag(-20000, 0);
    EXPECT_EQ(Stored("Manual_PosX") + Stored("Manual_PosY"), "20150-600");
}

TEST_F(Desktop_Life, a_work_area_beyond_16_bits_does_not_undo_a_drag) {
    Desktop().work_area.height = 2560;
    Fakes().any_box = true;
    Start();
    form.Move(300, 450);
    Desktop().Advance(3000);
    EXPECT_EQ(form.Left(), 300);
    Desktop().work_area.height = 2500;
    Desktop().Advance(1000);
    EXPECT_EQ(form.Top() + form.Box_Lbl[35].Bounds().Bottom(), 2500 * 15 - 75);
    EXPECT_EQ(Fakes().boxes.size(), 2U); // each height once
}

TEST_F(Desktop_Life, stands_in_every_position_on_every_work_area) {
    // The task bar at the bottom, at the top, at both sides, and a monitor left of and above the first one.
    const platform::Rect areas[] = {{0, 0, 1280, 996},
                                    {0, 28, 1280, 996},
                                    {62, 0, 1218, 1024},
                                    {0, 0, 1218, 1024},
                                    {-1280, -1024, 1280, 996}};
    for (const int dots : {96, 144}) {
        Desktop().dots_per_inch = dots;
        Main_Frm calendar;
        Desktop().work_area = areas[0];
        ASSERT_TRUE(calendar.Form_Load());
        for (const platform::Rect &area : areas) {
            Desktop().work_area = area;
            const int twips = 1440 / dots;
            const int left = area.left * twips;
            const int top = area.top * twips;
            const int right = area.Right() * twips;
            const int bottom = area.Bottom() * twips;
            for (std::int16_t code = 0; code < 10; ++code) {
                SCOPED_TRACE(std::to_string(dots) + ": " + std::to_string(area.left) + ", " +
                             std::to_string(area.top) + ", code " + std::to_string(code));
                calendar.Move(1, 2);
                calendar.Position_Form(code);
                const auto at_x = [&](std::initializer_list<int> codes) {
                    return std::find(codes.begin(), codes.end(), code) != codes.end();
                };
                if (at_x({0, 4, 8}))
                    EXPECT_EQ(calendar.Left() + calendar.Width(), right);
                else if (at_x({2, 6, 9}))
                    EXPECT_EQ(calendar.Left(), left);
                else if (at_x({1, 3, 5})) // its middle on that of the area
                    EXPECT_NEAR(2 * calendar.Left() + calendar.Width(), left + right, 1);
                else
                    EXPECT_EQ(calendar.Left(), 0);
                if (at_x({0, 1, 2}))
                    EXPECT_EQ(calendar.Top() + calendar.Box_Lbl[35].Bounds().Bottom() + 75, bottom);
                else if (at_x({4, 5, 6}))
                    EXPECT_EQ(calendar.Top(), top);
                else if (at_x({3, 8, 9}))
                    EXPECT_NEAR(2 * calendar.Top() + calendar.Height(), top + bottom, 1);
                else
                    EXPECT_EQ(calendar.Top(), 0);
            }
        }
    }
}

} // namespace

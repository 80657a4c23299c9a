// The calendar inside the shell's desktop: attachment, splash and dragging.
#include "tests/calendar/calendar_test.h"

using platform::Box_Answer;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

constexpr const char *manual_question =
    "Manual Positioning is not selected. This means that next time the program is started or the month is "
    "changed the program will revert back to the set position. Do you want to change the positioning mode to "
    "manual positioning?";

class Desktop_Life : public Calendar_Test {
protected:
    Desktop_Life() { Shell() = {.desktop = 11, .view = 12, .list = 13, .colours = {{-1, 0}}}; }

    /// Drags the title by these twips, in two steps, and releases it.
    void Drag(int right, int down) {
        const Point from{form.Left() + form.Width() / 2, form.Top() + 90};
        const auto mouse = [&](Input_Kind kind, int x, int y) { // x and y count from the start of the drag
            const Point at{from.x + x - form.Left(), from.y + y - form.Top()};
            Input(form, {.kind = kind, .point = at, .button = Mouse_Button::Left});
        };
        mouse(Input_Kind::Mouse_Down, 0, 0);
        mouse(Input_Kind::Mouse_Move, right / 2, down / 2);
        mouse(Input_Kind::Mouse_Move, right, down);
        mouse(Input_Kind::Mouse_Up, right, down);
    }
};

TEST_F(Desktop_Life, goes_inside_unseen_and_takes_the_dots_per_inch_that_it_finds_there) {
    Events({"7/3/2002=fourteen chars"});
    Shell().dots_inside = 144;
    Start();
    EXPECT_TRUE(Shell().attached == &form.Model() && Shell().attached_hidden);
    EXPECT_EQ(form.Left() + form.Width(), 1024 * 10);
    EXPECT_EQ(form.Top() + form.Box_Lbl[35].Bounds().Bottom(), 740 * 10 - 75);
    EXPECT_EQ(Text_Of(7), "fourteen\nchars");
}

TEST_F(Desktop_Life, waits_outside_for_a_shell_that_does_not_answer) {
    Shell().colours.reset();
    Fakes().registry["Software\\Vellatro\\Colours\\Menu Colour Source"] = "0";
    Desktop().work_area = {-1500, -40, 1023, 740};
    Start();
    const Splash_Frm &splash = form.Splash;
    EXPECT_EQ(splash.Left(), form.Left() + (form.Width() - splash.Width()) / 2);
    EXPECT_EQ(splash.Top(), form.Top() + form.Box_Lbl[36].Top() / 2 + splash.Height());
    EXPECT_EQ(splash.Weekday_Lbl.Back_Colour(), splash.Line_Lbl.Fore_Colour()) << "the head of the leaf";
    EXPECT_LE(2 * platform::Line_Height(splash.Line_Lbl.Font()), splash.Line_Lbl.Height());
    EXPECT_LE(platform::Line_Height(splash.Name_Lbl.Font()), splash.Name_Lbl.Height());
    EXPECT_EQ(splash.Line_Lbl.Caption(),
              "Double-click a day to write on it.\nRight-click it for settings and exit.");
    EXPECT_EQ(form.Model().description,
              "Double-click a day to write on it. Right-click it for settings and exit.");
    Events({});
    form.Redraw();
    EXPECT_EQ(form.Model().description, "") << "there is a data file";
    for (const unsigned time : {1499U, 3501U}) {
        Desktop().Advance(time);
        EXPECT_EQ(Desktop().mirrors.contains(&splash.Model()), time == 1499);
    }
    EXPECT_TRUE(Shell().attached == nullptr && Desktop().mirrors.at(&form.Model()).shown);
    EXPECT_LE(Shell().patience, 200U) << "the user feels the wait each second";
    Shell().colours = {0x332211, 0x00F0F0};
    Desktop().Advance(1000);
    EXPECT_TRUE(Shell().attached == &form.Model() && !form.Attachment.Waiting());
    EXPECT_TRUE(form.Back_Colour() == 0x332211 && form.Which_Month_Lbl.Fore_Colour() == 0x00F0F0);
    EXPECT_EQ(Box_Of(5).Back_Colour(), Cur_Settings.Col_Today);
    EXPECT_EQ(Desktop().mirrors.size(), 1U) << "the splash came a second time";
}

TEST_F(Desktop_Life, follows_the_icons_to_where_the_shell_has_them) {
    Shell().worker = 21; // before the start
    Start();
    EXPECT_EQ(Shell().attached_to, 21U);
    for (const bool at_once : {true, false})
        for (const platform::Shell_Window worker : {0U, 22U, 23U}) {
            Shell().worker = worker;
            if (at_once)
                Desktop().Say(platform::Broadcast::Front_Changed);
            else
                Desktop().Advance(1000);
            EXPECT_EQ(Shell().attached_to, worker == 0 ? 11 : worker) << at_once;
        }
    Shell().covered = true;
    Desktop().Advance(1000);
    EXPECT_FALSE(Shell().covered);
    // The window that holds the icons is destroyed with the calendar's window, then the shell ends.
    for (const bool shell_stays : {true, false}) {
        Press_Key(form, 39);                        // shows the mark
        const Point on_title{form.Width() / 2, 90}; // in the middle of a drag
        Input(form, {.kind = Input_Kind::Mouse_Down, .point = on_title, .button = Mouse_Button::Left});
        Desktop().mirrors.clear();
        Shell().worker = 0;
        Shell().desktop = shell_stays ? 11 : 0;
        Input(form, {.kind = Input_Kind::Window_Lost});
        Desktop().Advance(1000);
        EXPECT_FALSE(Box_Of(5).State().marked);
        EXPECT_EQ(Desktop().mirrors.contains(&form.Model()), shell_stays);
        EXPECT_EQ(Desktop().loop_ended, !shell_stays);
        EXPECT_EQ(Shell().attached_to, 11U);
    }
    Desktop().Say(platform::Broadcast::Shell_Started);
    EXPECT_FALSE(form.Attachment.Waiting()) << "the next shell is for the next process";
}

TEST_F(Desktop_Life, waits_two_minutes_for_a_view_that_comes_late_and_again_for_the_next_shells) {
    Shell().list = 0;
    Start();
    for (const unsigned time : {119'000U, 120'000U, 239'000U}) {
        Fakes().milliseconds = time;
        Shell().desktop = time == 119'000 ? 0 : 11; // a shell that crashed returns
        Desktop().Advance(1000);
        EXPECT_EQ(form.Attachment.Waiting(), time != 120'000) << time;
        if (time == 120'000)
            Desktop().Say(platform::Broadcast::Shell_Started);
    }
}

TEST_F(Desktop_Life, is_seen_beside_its_place_as_long_as_the_monitor_of_that_is_gone) {
    Stored("Alignment") = "7";
    Stored("Manual_PosX") = "-15000";
    Stored("Manual_PosY") = "3000";
    Desktop().second_area = {-1600, 0, 1600, 900};
    Start();
    for (const bool gone : {false, true, false, true}) {
        Desktop().second_area.width = gone ? 0 : 1600;
        Desktop().Say(platform::Broadcast::Display_Changed);
        Drag(0, 0);
        EXPECT_EQ(form.Left(), gone ? 0 : -15000);
        EXPECT_EQ(Stored("Manual_PosX") + Stored("Manual_PosY"), "-150003000");
    }
    Drag(150, 0);
    EXPECT_EQ(Stored("Manual_PosX"), "150");
    Desktop().second_area.width = 1600;
    Desktop().Advance(1000);
    EXPECT_EQ(form.Left(), 150);
}

TEST_F(Desktop_Life, drags_as_far_as_it_may) {
    struct {
        std::int16_t alignment, allowed, theme_pos;
        int right, down;
        bool moves, asks;
    } const rows[] = {
        {0, 1, 0, -150, -90, true, true},  {0, 1, 0, -150, 0, true, false},
        {0, 1, 0, 0, -90, true, false},    {0, 0, 0, -150, -90, false, false},
        {7, 0, 0, -150, -90, true, false}, {7, 1, 1, -150, -90, true, true},
    };
    Start();
    for (const auto &row : rows) {
        Cur_Settings.Alignment = row.alignment;
        Cur_Settings.Allow_Dragging = row.allowed;
        Cur_Settings.Use_Theme_Pos = row.theme_pos;
        Fakes().registry.clear();
        form.Move(3000, -600);
        if (row.asks)
            Fakes().Expect_Box(manual_question, Box_Answer::No);
        Drag(row.right, row.down);
        EXPECT_EQ(form.Left(), 3000 + (row.moves ? row.right : 0)) << &row - rows;
        EXPECT_EQ(form.Top(), -600 + (row.moves ? row.down : 0));
        EXPECT_EQ(Stored("Manual_PosX"), row.moves ? std::to_string(form.Left()) : "");
        EXPECT_EQ(Stored("Manual_PosY"), row.moves ? std::to_string(form.Top()) : "");
    }
    // A lost release ends the drag, whether reported at once or noticed by a move without a button.
    form.Move(3000, 600);
    const Point on_title{form.Width() / 2, 90}, right{on_title.x + 150, 100};
    for (const Input_Kind kind : {Input_Kind::Capture_Lost, Input_Kind::Mouse_Move}) {
        Input(form, {.kind = Input_Kind::Mouse_Down, .point = on_title, .button = Mouse_Button::Left});
        EXPECT_EQ(form.Model().pointer, platform::Pointer_Shape::Move);
        Input(form, {.kind = kind, .point = right});
        EXPECT_EQ(form.Model().pointer, platform::Pointer_Shape::Arrow);
        Input(form, {.kind = Input_Kind::Mouse_Move, .point = right, .button = Mouse_Button::Left});
        EXPECT_EQ(form.Left(), 3000);
    }
}

TEST_F(Desktop_Life, a_yes_makes_the_position_manual_and_a_no_lasts_until_the_next_month) {
    Start();
    const int left = form.Left();
    for (const Box_Answer answer : {Box_Answer::No, Box_Answer::Yes}) {
        Fakes().Expect_Box(manual_question, answer);
        Drag(-300, -450);
        form.Redraw();
        EXPECT_EQ(form.Left(), answer == Box_Answer::Yes ? left - 300 : left);
    }
    EXPECT_EQ(Stored("Alignment") + Stored("Use Theme Pos"), "70");
    Desktop().work_area = {-10000, -10000, 20000, 20000};
    Drag(40000, -60000); // beyond 16 bits, to which only the stored position is limited
    EXPECT_EQ(Stored("Manual_PosX") + Stored("Manual_PosY"), "32767-32768");
    for (const int expected : {left - 300 + 40000, 32767}) { // the position holds until another is chosen
        form.Redraw();
        EXPECT_EQ(form.Left(), expected);
        Cur_Settings.Manual_PosY = 300;
    }
}

TEST_F(Desktop_Life, arrow_keys_with_ctrl_move_it_and_its_place_is_kept_when_ctrl_comes_up) {
    Start();
    for (const bool allowed : {false, true}) {
        Cur_Settings.Allow_Dragging = allowed ? 1 : 0;
        form.Move(3000, 600);
        for (const int key : {37, 37, 39, 40}) // left, left, right, down by a pixel
            Input(form, {.kind = Input_Kind::Key_Down, .key = key, .shift = key == 40, .control_key = true});
        EXPECT_EQ(Stored("Manual_PosX"), "");
        if (allowed)
            Fakes().Expect_Box(manual_question, Box_Answer::No);
        for (int i = 0; i < 2; ++i) // the second one has nothing left to store
            Input(form, {.kind = Input_Kind::Key_Up});
        EXPECT_EQ(form.Left() + form.Top(), allowed ? 2850 + 615 : 3000 + 600);
        EXPECT_EQ(Stored("Manual_PosX") + Stored("Manual_PosY"), allowed ? "2850615" : "");
    }
}

} // namespace

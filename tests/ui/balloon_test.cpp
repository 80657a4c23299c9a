// The balloon: its text in lines, its place beside the mouse, and when the calendar shows it.
#include "tests/calendar/calendar_test.h"
#include "ui/wrap_text.h"

#include <limits>

using platform::Mouse_Button;
using platform::Point;
using platform::Rect;

namespace {

using Lines = std::vector<std::string>;

TEST_F(Form_Test, wrapped_text) {
    // Ten characters a line.
    struct {
        const char *text;
        std::size_t most;
        Lines lines;
    } const rows[] = {
        {"", 3, {}},
        {"one", 3, {"one"}},
        {"one two three four", 3, {"one two", "three four"}},
        {"exactlyten next", 3, {"exactlyten", "next"}},
        {"incomprehensible", 3, {"incomprehe", "nsible"}},
        {"a\r\nb\rc\nd\te \n\n", 9, {"a", "b", "c", "d e"}},
        {"a\n\nb", 9, {"a", "", "b"}},
        {"one two three four five", 2, {"one two", "three f..."}},
        {"one two three four", 1, {"one two..."}},
        {"\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6",
         2,
         {"\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4", "\xC3\xB6"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(Wrap_Text(row.text, {}, 1000, row.most), row.lines) << row.text;
    EXPECT_EQ(Wrap_Text("ab", {}, 10, 5), (Lines{"a", "b"})); // narrower than a character
    const Lines many = Wrap_Text(std::string(1'000'000, 'x'), {}, 1000, 50);
    EXPECT_EQ(many.size(), 50U);
    EXPECT_EQ(many.back(), "xxxxxxx...");
    EXPECT_LT(Desktop().measured, 2'000);
    EXPECT_TRUE(Wrap_Text(std::string(17'000, 'x'), {}, 50'000, 99).back().ends_with("..."));
}

TEST(Balloon_Shape, stands_whole_on_the_screen_beside_the_mouse) {
    const Rect work{-15360, 300, 15360, 11000};
    const platform::Size small{4680, 1380};
    const platform::Size high{4680, 10900};
    struct {
        Point mouse;
        platform::Size size;
        Balloon_Side side;
    } const rows[] = {
        {{-8000, 6000}, small, Balloon_Side::Above}, {{-15360, 11299}, small, Balloon_Side::Above},
        {{-1, 11299}, small, Balloon_Side::Above},   {{-15360, 300}, small, Balloon_Side::Below},
        {{-1, 300}, small, Balloon_Side::Below},     {{-8000, 1900}, small, Balloon_Side::Below},
        {{-8000, 6000}, high, Balloon_Side::Right},  {{-3000, 6000}, high, Balloon_Side::Left},
        {{-15360, 300}, high, Balloon_Side::Right},  {{-1, 11299}, high, Balloon_Side::Left},
    };
    for (const auto &row : rows) {
        const Balloon_Place place = Place_Balloon(row.mouse, work, row.size);
        EXPECT_EQ(place.side, row.side) << row.mouse.x << "," << row.mouse.y;
        EXPECT_GE(place.body.left, work.left);
        EXPECT_GE(place.body.top, work.top);
        EXPECT_LE(place.body.Right(), work.Right());
        EXPECT_LE(place.body.Bottom(), work.Bottom());
        EXPECT_FALSE(place.body.Contains(row.mouse));
        EXPECT_LE(std::abs(place.tip.x - row.mouse.x) + std::abs(place.tip.y - row.mouse.y), 300);
        const Rect window = Window_Of(place);
        bool has_tip = false;
        for (const Point corner : Balloon_Outline(place)) {
            EXPECT_TRUE(corner.x >= window.left && corner.x <= window.Right() && corner.y >= window.top &&
                        corner.y <= window.Bottom());
            has_tip = has_tip || corner == place.tip;
        }
        EXPECT_TRUE(has_tip);
    }
    // More than the screen: it begins where the screen begins.
    const Balloon_Place huge = Place_Balloon({-8000, 6000}, work, {20000, 20000});
    EXPECT_EQ(huge.body.left, work.left);
    EXPECT_EQ(huge.body.top, work.top);
}

class Balloon : public Calendar_Test {
protected:
    void Start_With_Balloons() {
        Events({"6/3/2002=first", "6/3/9999=second", "7/3/2002=other"});
        Fakes().registry["Software\\Vellatro\\Settings\\Tooltips"] = "2";
        Start();
        Desktop().mouse = {500, 400};
    }
    void Press_Day(int day) { Press(form, Box_Of(day)); }
    void Tell(platform::Input_Kind kind) {
        platform::Input_Event event{};
        event.kind = kind;
        form.Input(event);
    }
    bool Shown() {
        EXPECT_EQ(form.Balloon_Showing(), Desktop().mirrors.contains(&form.Balloon.Model()));
        EXPECT_EQ(form.Balloon_Showing(), form.Timer2.Enabled());
        return form.Balloon_Showing();
    }
};

TEST_F(Balloon, shows_the_day_s_text_after_a_third_of_a_second_until_the_release) {
    Start_With_Balloons();
    Press_Day(6);
    ASSERT_TRUE(Shown());
    EXPECT_GE(Fakes().now.millisecond, 300);
    EXPECT_LE(Fakes().now.millisecond, 310);
    EXPECT_EQ(form.Balloon.Title_Lbl.Caption(), "6/3/2002");
    EXPECT_EQ(form.Balloon.Message_Lbl.Caption(), "second"); // the last record, as in the box
    EXPECT_EQ(form.Tooltip_Box, 10);
    EXPECT_TRUE(form.Balloon.Model().floating);
    EXPECT_EQ(form.Balloon.Height(), 1620);
    EXPECT_EQ(form.Balloon.Top() + form.Balloon.Height(), 400 * 15);
    EXPECT_FALSE(Desktop().mirrors.at(&form.Balloon.Model()).shown_unclipped);
    EXPECT_EQ(Desktop().mirrors.at(&form.Balloon.Model()).shape.size(), 4 * 7 + 3U);
    int texts = 0;
    for (const Canvas_Operation &operation : Painted(form.Balloon, {0, 0, 9999, 9999}).operations)
        texts += operation.kind == Canvas_Operation::Kind::Text ? 1 : 0;
    EXPECT_EQ(texts, 2);
    Press(form, Box_Of(7), Mouse_Button::Middle); // one at a time
    EXPECT_EQ(form.Tooltip_Box, 10);
    Release(form, Box_Of(20)); // wherever
    EXPECT_FALSE(Shown());
}

TEST_F(Balloon, appears_for_no_empty_box_no_right_button_and_no_other_setting) {
    Start_With_Balloons();
    Press_Day(8);
    Desktop().expected_menus.push_back({{"Clear", "Edit", "(Settings)", "Exit"}, 0, nullptr});
    Press(form, Box_Of(6), Mouse_Button::Right);
    Cur_Settings.Tooltips = 1;
    Press_Day(6);
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Fakes().now.millisecond, 0); // and nothing waited
}

TEST_F(Balloon, what_happens_during_the_wait) {
    Start_With_Balloons();
    const auto nothing = [] {};
    const std::function<void()> spoilers[] = {
        [this] { Release(form, Box_Of(6)); }, [this] { Tell(platform::Input_Kind::Capture_Lost); },
        [this] { Press_Key(form, 115); },     [this] { Double_Click(form, form.Which_Month_Lbl); },
        [this] { form.End_Program(); },
    };
    for (const auto &spoiler : spoilers) {
        Desktop().messages = {nothing, spoiler};
        Show_Month(3, 2002);
        Press_Day(6);
        EXPECT_FALSE(Shown());
        if (form.Compacted)
            Press_Key(form, 123);
    }
}

TEST_F(Balloon, a_second_press_during_the_wait_waits_for_itself) {
    Start_With_Balloons();
    Desktop().messages = {[] {}, [] {}, [this] { Release(form, Box_Of(6)); }, [this] { Press_Day(7); }};
    Press_Day(6);
    ASSERT_TRUE(Shown());
    EXPECT_EQ(form.Balloon.Message_Lbl.Caption(), "other");
    EXPECT_GE(Fakes().now.millisecond, 600); // 0.3 s of its own
}

TEST_F(Balloon, the_wait_ends_at_midnight_and_when_the_clock_is_set) {
    Start_With_Balloons();
    struct {
        int hour, minute, second, millisecond;
        std::function<void()> meanwhile;
    } const rows[] = {
        {23, 59, 59, 900, [] {}},
        {12, 0, 0, 0, [] { Fakes().now.hour = 11; }},
        {12, 0, 0, 0, [] { Fakes().now.hour = 20; }},
    };
    for (const auto &row : rows) {
        Fakes().now = {2002, 3, 5, row.hour, row.minute, row.second, row.millisecond};
        Desktop().messages = {row.meanwhile};
        const unsigned begin = Desktop().time;
        Press_Day(6);
        EXPECT_TRUE(Shown());
        EXPECT_LE(Desktop().time - begin, 310U);
        Release(form, Box_Of(6));
    }
}

TEST_F(Balloon, goes_with_whatever_takes_its_day_away) {
    Start_With_Balloons();
    const std::function<void()> ends[] = {
        [this] { Tell(platform::Input_Kind::Capture_Lost); },
        [this] { Press_Key(form, 113); },
        [this] { Press_Key(form, 123); },
        [this] {
            Desktop().button_held = true;
            Desktop().Advance(1000);
            EXPECT_TRUE(Shown());
            Desktop().button_held = false; // let go over another program's window
            Desktop().Advance(1000);
        },
        [this] { Tell(platform::Input_Kind::Close); },
    };
    for (const auto &end : ends) {
        Show_Month(3, 2002);
        Press_Day(6);
        ASSERT_TRUE(Shown());
        Desktop().button_held = true;
        end();
        EXPECT_FALSE(Shown());
        if (form.Compacted)
            Press_Key(form, 123);
    }
    EXPECT_TRUE(Desktop().loop_ended);
}

TEST_F(Balloon, a_file_that_cannot_be_read_is_told_and_shows_no_balloon) {
    Start_With_Balloons();
    Fakes().unreadable.insert("C:\\Vellatro\\calendar.dat");
    Fakes().Expect_Box("Error loading in data file.");
    Press_Day(6);
    EXPECT_FALSE(Shown());
    // One that can be read in part shows that part, unless the message took the mouse.
    Fakes().unreadable.clear();
    Fakes().files["C:\\Vellatro\\calendar.dat"] = "\"6/3/2002=first\"\r\n\"open";
    for (const bool kept : {false, true}) {
        Fakes().Expect_Box("Error loading in data file.", platform::Box_Answer::Ok, [this, kept] {
            if (!kept)
                Tell(platform::Input_Kind::Capture_Lost);
        });
        Press_Day(6);
        EXPECT_EQ(Shown(), kept);
    }
}

TEST_F(Balloon, grows_with_its_text_up_to_the_work_area) {
    Fakes().registry["Software\\Vellatro\\Settings\\Tooltips"] = "2";
    const std::size_t lengths[] = {300, 600, 20000};
    for (const std::size_t length : lengths) {
        std::string words;
        while (words.size() < length)
            words += "word ";
        Events({"6/3/2002=" + words});
        if (form.Visible())
            form.Redraw();
        else
            Start();
        Press_Day(6);
        EXPECT_GT(form.Balloon.Height(), 1620);
        EXPECT_LE(form.Balloon.Height(), 740 * 15);
        EXPECT_EQ(form.Balloon.Message_Lbl.Caption().ends_with("..."), length == 20000);
        EXPECT_LE(form.Balloon.Message_Lbl.Bounds().Bottom(), form.Balloon.Height());
        Release(form, Box_Of(6));
    }
}

} // namespace

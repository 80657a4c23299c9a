// The balloon: its lines of text, its place beside the mouse, and when it appears and goes.
#include "tests/calendar/calendar_test.h"
#include "ui/wrap_text.h"

using platform::Input_Kind;

namespace {

using Lines = std::vector<std::string>;

TEST_F(Form_Test, wrapped_text) {
    const std::tuple<const char *, std::size_t, Lines> rows[] = {
        // A line holds ten characters.
        {"exactlyten a exactlyten", 3, {"exactlyten", "a", "exactlyten"}},
        {"incomprehensible", 3, {"incomprehe", "nsible"}},
        {"a\r\nb\rc\n\nd\te \n\n", 9, {"a", "b", "c", "", "d e"}},
        {"one two three four five", 2, {"one two", "three f..."}},
        {"12345678\u00E4\u00F6\u00FC", 2, {"12345678\u00E4\u00F6", "\u00FC"}},
        {"1234567\u00E4\u00F6\u00FC\u00E4", 1, {"1234567..."}},
        // Scripts without blanks: no line starts with a closing mark or a small kana, or ends with an opening
        // mark.
        {"一二三四五六七八九十。次", 3, {"一二三四五六七八九", "十。次"}},
        {"一二三四五六七八九「十」", 3, {"一二三四五六七八九", "「十」"}},
        {"あいうえおかきくけちゃん", 3, {"あいうえおかきくけ", "ちゃん"}},
        {"あいうえおabcdefgh", 3, {"あいうえお", "abcdefgh"}},
        {"가나다 라마바사아자차", 3, {"가나다 라마바사아자", "차"}},
    };
    for (const auto &[text, most, lines] : rows)
        EXPECT_EQ(Wrap_Text(text, {}, 1000, most), lines) << text;
    EXPECT_EQ(Wrap_Text("ab", {}, 10, 5), (Lines{"a", "b"})); // narrower than a character
    EXPECT_EQ(Wrap_Text(std::string(1'000'000, 'x'), {}, 1000, 50).back(), "xxxxxxx...");
    EXPECT_LT(Desktop().measured, 2'000);
    EXPECT_TRUE(Wrap_Text(std::string(17'000, 'x'), {}, 50'000, 99).back().ends_with("..."));
}

TEST(Balloon_Shape, stands_whole_on_the_screen_beside_the_mouse) {
    const Rect work{-15360, 300, 15360, 11000};
    struct {
        Point mouse;
        int height;
        Balloon_Side side;
    } const rows[] = {
        {{-15360, 11299}, 1380, Balloon_Side::Above}, {{-1, 300}, 1380, Balloon_Side::Below},
        {{-8000, 1900}, 1380, Balloon_Side::Below},   {{-8000, 6000}, 10900, Balloon_Side::Right},
        {{-3000, 6000}, 10900, Balloon_Side::Left},   {{-1, 11299}, 10900, Balloon_Side::Left},
        {{-8000, 5500}, 5100, Balloon_Side::Below},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(&row - rows);
        const Balloon_Place place = Place_Balloon(row.mouse, work, {4680, row.height});
        EXPECT_EQ(place.side, row.side);
        EXPECT_TRUE(Inside(place.body, work) && !place.body.Contains(row.mouse));
        EXPECT_LE(std::abs(place.tip.x - row.mouse.x) + std::abs(place.tip.y - row.mouse.y), 300);
        const std::vector<Point> outline = Balloon_Outline(place);
        for (const Point corner : outline)
            EXPECT_TRUE(Inside({corner.x, corner.y, 0, 0}, Window_Of(place)));
        const auto tip = std::find(outline.begin(), outline.end(), place.tip);
        ASSERT_TRUE(tip != outline.end());
        EXPECT_EQ(std::abs(tip[1].x - tip[-1].x) + std::abs(tip[1].y - tip[-1].y), 240) << "its foot";
    }
}

class Balloon : public Calendar_Test {
protected:
    Balloon() {
        Events({"6/3/2002=first", "6/3/9999=second", "7/3/2002=other"});
        Stored("Tooltips") = "2";
        Stored("Use Theme Style") = "0";
        Start();
    }
    void Press_Day(int day) { Press(form, Box_Of(day)); }
    bool Shown() {
        EXPECT_EQ(form.Balloon_Showing(), Desktop().mirrors.contains(&form.Balloon.Window.Model()));
        EXPECT_EQ(form.Balloon_Showing(), form.Balloon.Timer2.Enabled());
        return form.Balloon_Showing();
    }
};

TEST_F(Balloon, shows_the_day_s_text_after_a_third_of_a_second_until_the_release) {
    Press_Day(6);
    ASSERT_TRUE(Shown());
    Press(form, Box_Of(7), platform::Mouse_Button::Middle); // only one balloon at a time
    EXPECT_TRUE(Fakes().now.millisecond >= 300 && Fakes().now.millisecond <= 310);
    // The text is the day's last record, as in its box.
    EXPECT_EQ(form.Balloon.Window.Title_Lbl.Caption() + form.Balloon.Window.Message_Lbl.Caption(),
              "6/3/2002second");
    EXPECT_EQ(form.Balloon.Window.Height(), 1620);
    EXPECT_EQ(form.Balloon.Window.Top() + form.Balloon.Window.Height(),
              form.Top() + Box_Of(6).Top() + Box_Of(6).Height() / 2);
    const Fake_Mirror &window = Desktop().mirrors.at(&form.Balloon.Window.Model());
    EXPECT_TRUE(!window.shown_unclipped && window.shape.size() == 4 * 7 + 3U);
    EXPECT_EQ(form.Tooltip_Box, 10);
    Release(form, Box_Of(20)); // a release anywhere ends it
    EXPECT_FALSE(Shown());
    struct { // it grows with its text up to the work area, first in height
        std::string text;
        bool wide, cut;
    } const rows[] = {{std::string(300, 'w'), false, false},
                      {std::string(3000, 'w'), true, false},
                      {std::string(20000, 'w'), true, true},
                      {"short" + std::string(100, '\n') + "lines", false, true}};
    for (const auto &[text, wide, cut] : rows) {
        Events({"6/3/2002=" + text});
        form.Redraw();
        Press_Day(6);
        EXPECT_TRUE(form.Balloon.Window.Height() > 1620 && form.Balloon.Window.Height() <= 740 * 15);
        EXPECT_EQ(form.Balloon.Window.Message_Lbl.Width() > 4680, wide) << text.size();
        EXPECT_EQ(form.Balloon.Window.Message_Lbl.Caption().ends_with("..."), cut) << text.size();
        EXPECT_LE(form.Balloon.Window.Message_Lbl.Bounds().Bottom(), form.Balloon.Window.Height());
        Release(form, Box_Of(6));
    }
}

TEST_F(Balloon, goes_with_whatever_takes_its_day_away_also_during_the_wait) {
    const std::function<void()> ends[] = {
        [this] { Release(form, Box_Of(6)); },
        [this] { Input(form, {.kind = Input_Kind::Capture_Lost}); },
        [this] { Press_Key(form, 113); },
        [this] { Press_Key(form, 123); },
        [] {
            Desktop().Advance(1000);
            Desktop().button_held = false; // released over another program's window
            Desktop().Advance(1000);
        },
        [this] { Press_Key(form, 119); },
    };
    for (const bool at_once : {true, false})
        for (const auto &end : ends) {
            SCOPED_TRACE(&end - ends);
            Show_Month(3, 2002);
            Desktop().button_held = true;
            if (at_once)
                Desktop().messages = {[] {}, end};
            Press_Day(6);
            Desktop().Advance(at_once ? 0 : 1000);
            EXPECT_EQ(Shown(), !at_once || &end == &ends[4]) << "that one is seen only by the timer";
            if (!at_once)
                end();
            EXPECT_TRUE(at_once || !Shown());
            Release(form, Box_Of(6));
            if (form.Compacted)
                Press_Key(form, 123);
        }
    Desktop().messages = {[] {}, [this] { form.End_Program(); }};
    Press_Day(6);
    EXPECT_FALSE(Shown());
}

TEST_F(Balloon, a_second_press_during_the_wait_waits_for_itself_and_an_empty_box_for_nothing) {
    Press_Day(8);
    EXPECT_EQ(Fakes().now.millisecond, 0);
    Desktop().messages = {[] {}, [] {}, [this] { Release(form, Box_Of(6)); }, [this] { Press_Day(7); }};
    Press_Day(6);
    ASSERT_TRUE(Shown());
    EXPECT_EQ(form.Balloon.Window.Message_Lbl.Caption(), "other");
    EXPECT_GE(Fakes().now.millisecond, 600);   // its own wait of 0.3 s
    for (const int hour_then : {23, 11, 20}) { // the wait ends also across midnight and when the clock is set
        Fakes().now = {2002, 3, 5, hour_then == 23 ? 23 : 12, 59, 59, 900};
        Desktop().messages = {[hour_then] { Fakes().now.hour = hour_then; }};
        const unsigned begin = Desktop().time;
        Press_Day(6);
        EXPECT_TRUE(Shown() && Desktop().time - begin <= 310);
        Release(form, Box_Of(6));
    }
    for (const bool kept : {false, true}) { // shows the readable events unless the message took the mouse
        Data_File() = "\"6/3/2002=first\"\r\n\"open";
        Fakes().Expect_Box("Error loading in data file.", platform::Box_Answer::Ok, [this, kept] {
            if (!kept)
                Input(form, {.kind = Input_Kind::Capture_Lost});
        });
        Press_Day(6);
        EXPECT_EQ(Shown(), kept);
    }
}

} // namespace

// Compact mode: its states, its countdown, and that nothing shows a box in it.
#include "tests/calendar/calendar_test.h"

namespace {

class Compact_Mode : public Calendar_Test {
protected:
    void Start_With_Auto_Compact() {
        Fakes().registry["Software\\Vellatro\\Settings\\Auto Compact"] = "1";
        Start();
    }
    void Move_Over(const Control &control) {
        platform::Input_Event event{};
        event.kind = platform::Input_Kind::Mouse_Move;
        event.point = {control.Left() + 10, control.Top() + 10};
        form.Input(event);
    }
    /// Title alone, and the region with it; or the whole month.
    void Expect_State(bool compact) {
        EXPECT_EQ(form.Compacted, compact);
        EXPECT_EQ(Seen().size(), compact ? 1U : 3U + 7U + 2U * static_cast<std::size_t>(Days()));
        EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip, Seen());
        EXPECT_TRUE(form.Which_Month_Lbl.Visible());
        if (compact) {
            EXPECT_FALSE(form.Compact_Timer.Enabled());
        }
    }

private:
    int Days() const { return DaysInMonth({form.Cur_Year, form.Cur_Month, 1}); }
    std::vector<platform::Rect> Seen() const {
        std::vector<platform::Rect> seen;
        for (const platform::Control_State *control : form.Model().controls)
            if (control->visible)
                seen.push_back(control->bounds);
        return seen;
    }
};

TEST_F(Compact_Mode, states_and_what_leads_from_one_to_the_other) {
    // D: double click on the title, M: the mouse moves over it, T: a minute passes, Y and N: the setting;
    // after each "=", C is compact, E expanded, and t follows when the timer's compaction is remembered.
    const char *const rows[] = {
        "D=C M=C T=C D=E",                             // the user's compaction stays
        "T=Ct M=E T=Ct D=Et D=Ct M=E",                 // the timer's is undone by the mouse, or remembered
        "T=Ct N=Ct M=Ct D=Et T=Et Y=Et M=Et T=Ct M=E", // without the setting only double clicks count
        "M=E T=Ct T=Ct D=Et T=Ct",
    };
    Start_With_Auto_Compact();
    for (const std::string row : rows) {
        SCOPED_TRACE(row);
        if (form.Compacted)
            Double_Click(form, form.Which_Month_Lbl);
        Cur_Settings.Auto_Compact = 1;
        form.Timer_Compacted = false;
        form.Restart_Countdown();
        for (std::size_t at = 0; at < row.size(); at = row.find(' ', at) + 1) {
            switch (row[at]) {
            case 'D':
                Double_Click(form, form.Which_Month_Lbl);
                break;
            case 'M':
                Move_Over(form.Which_Month_Lbl);
                break;
            case 'T':
                Desktop().Advance(60000);
                break;
            default:
                Cur_Settings.Auto_Compact = row[at] == 'Y' ? 1 : 0;
                form.Compact_Timer.Set_Enabled(row[at] == 'Y' && !form.Compacted);
            }
            SCOPED_TRACE(at);
            Expect_State(row[at + 2] == 'C');
            EXPECT_EQ(form.Timer_Compacted, row[at + 3] == 't');
            if (row.find(' ', at) == std::string::npos)
                break;
        }
    }
}

TEST_F(Compact_Mode, activity_over_the_calendar_begins_the_minute_anew) {
    Start_With_Auto_Compact();
    const Control *const places[] = {&form.Box_Lbl[20],    &form.Box_Caption_Lbl[12], &form.Day_Lbl[3],
                                     &form.Prev_Month_Lbl, &form.Next_Month_Lbl,      &form.Which_Month_Lbl};
    for (const Control *place : places) {
        Desktop().Advance(40000);
        Move_Over(*place);
    }
    Desktop().Advance(40000);
    Press_Key(form, 16);
    Desktop().Advance(59999);
    Expect_State(false);
    Desktop().Advance(1);
    Expect_State(true);
}

TEST_F(Compact_Mode, the_timer_waits_for_dialogs_and_comes_back_after_activity) {
    Start_With_Auto_Compact();
    bool editor = false;
    bool settings = false;
    form.Editor_Visible = [&editor] { return editor; };
    form.Settings_Visible = [&settings] { return settings; };
    for (bool *dialog : {&editor, &settings}) {
        *dialog = true;
        form.Restart_Countdown();
        Desktop().Advance(60000);
        Expect_State(false);
        EXPECT_FALSE(form.Compact_Timer.Enabled());
        *dialog = false;
        Desktop().Advance(600000);
        Expect_State(false);
    }
    form.Resume_Auto_Compact();
    Desktop().Advance(60000);
    Expect_State(true);
    form.Resume_Auto_Compact();
    Expect_State(true);
}

TEST_F(Compact_Mode, nothing_shows_a_box_and_the_month_comes_back_as_it_is_then) {
    Events({"1/4/2002=April", "3/5/2002=May"});
    Start();
    const platform::Rect title = form.Which_Month_Lbl.Bounds();
    const int top = form.Top();
    Double_Click(form, form.Which_Month_Lbl);
    EXPECT_EQ(form.Which_Month_Lbl.Bounds(), title);
    EXPECT_EQ(form.Top(), top);
    for (const int key : {113, 114, 115, 116, 33, 34, 36, 37, 40, 115}) {
        Press_Key(form, key);
        Expect_State(true);
        EXPECT_EQ(form.Top(), top);
    }
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "April - 2002");
    Cur_Settings.Use_Theme_Style = 0;
    Press_Key(form, 120);
    Expect_State(true);
    EXPECT_EQ(form.Top(), top);
    Fakes().first_weekday = 1;
    Desktop().work_area.height = 700;
    for (const auto broadcast :
         {platform::Broadcast::Settings_Changed, platform::Broadcast::Time_Changed,
          platform::Broadcast::Display_Changed, platform::Broadcast::Colours_Changed}) {
        Desktop().Say(broadcast);
        Expect_State(true);
    }
    Desktop().dots_per_inch = 144;
    platform::Input_Event dots{};
    dots.kind = platform::Input_Kind::Dots_Changed;
    form.Input(dots);
    Expect_State(true);
    Fakes().now = {2002, 5, 2, 0, 0, 0, 0};
    Desktop().Advance(1000);
    Expect_State(true);
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "2nd May - 2002");

    // The month has another start, and the alert's box outlasts midnight.
    Fakes().now.day = 3;
    Desktop().Advance(1000);
    Fakes().Expect_Box("Today: 3/5/2002\r\nMay", platform::Box_Answer::Ok, [] {
        Fakes().now = {2002, 6, 1, 0, 0, 1, 0};
        Desktop().Advance(1000);
    });
    Press_Key(form, 123);
    Expect_State(false);
    EXPECT_EQ(form.Day_Lbl[0].Caption(), "Mon");
    EXPECT_EQ(form.Box_Lbl[5].Caption(), " 1");
    EXPECT_EQ(form.Box_Lbl[5].Back_Colour(), Cur_Settings.Col_Today);
}

} // namespace

// Compact mode: its states, its countdown, and that no box appears in it.
#include "tests/calendar/calendar_test.h"

#include <sstream>

namespace {

class Compact_Mode : public Calendar_Test {
protected:
    /// Expects only the title to be visible and in the region, or the whole month.
    void Expect_State(bool compact) {
        const int days = DaysInMonth({form.Cur_Year, form.Cur_Month, 1});
        EXPECT_EQ(form.Compacted, compact);
        EXPECT_EQ(form.Which_Month_Lbl.Access().default_action, compact ? "Expand" : "Compact");
        EXPECT_EQ(Seen().size(), static_cast<std::size_t>(compact ? 1 : 3 + 7 + 2 * days));
        EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip, Seen());
        EXPECT_FALSE(compact && form.Compact_Timer.Enabled());
    }
    void Move_Over(const Control &control) {
        Input(form,
              {.kind = platform::Input_Kind::Mouse_Move, .point = {control.Left() + 10, control.Top() + 10}});
    }
};

TEST_F(Compact_Mode, states_and_what_leads_from_one_to_the_other) {
    // D is a double click on the title, M a mouse move over it, T a minute that passes; Y and N change the
    // setting. After "=", C means compact and E expanded; t means that the timer has compacted it and is
    // remembered.
    std::istringstream steps("T=Ct M=E D=C M=C T=C D=E T=Ct D=Et D=Ct M=E T=Ct N=Ct M=Ct D=Et T=Et Y=Et M=Et "
                             "T=Ct M=E M=E T=Ct T=Ct D=Et T=Ct D=Et N=Et T=Et");
    Stored("Auto Compact") = "1";
    Start();
    for (std::string step; steps >> step;) {
        SCOPED_TRACE(step + " before " + std::to_string(steps.tellg()));
        if (step[0] == 'D')
            Double_Click(form, form.Which_Month_Lbl);
        else if (step[0] == 'M')
            Move_Over(form.Which_Month_Lbl);
        else if (step[0] == 'T')
            Desktop().Advance(60000);
        else
            Cur_Settings.Auto_Compact = step[0] == 'Y' ? 1 : 0;
        Expect_State(step[2] == 'C');
        EXPECT_EQ(form.Timer_Compacted, step.back() == 't');
    }
}

TEST_F(Compact_Mode, activity_begins_the_minute_anew_and_the_timer_waits_for_dialogs) {
    Stored("Auto Compact") = "1";
    Start();
    for (const Control *place : {&form.Box_Caption_Lbl[12], &form.Day_Lbl[3], &form.Next_Month_Lbl}) {
        Desktop().Advance(40000);
        Move_Over(*place);
    }
    Desktop().Advance(40000);
    Press_Key(form, 16);
    for (Callback<bool()> *dialog : {&form.Editor_Visible, &form.Settings_Visible}) {
        Desktop().Advance(59999);
        *dialog = [] { return true; };
        Desktop().Advance(600000); // once over, the countdown does not restart by itself
        EXPECT_FALSE(form.Compact_Timer.Enabled());
        *dialog = nullptr;
        Expect_State(false);
        form.Resume_Auto_Compact();
    }
}

TEST_F(Compact_Mode, nothing_shows_a_box_and_the_month_comes_back_as_it_is_then) {
    Events({"3/5/2002=May"});
    Start();
    Input(form, {.kind = platform::Input_Kind::Default_Action}, &form.Which_Month_Lbl);
    Cur_Settings.Use_Theme_Style = 0;
    const int top = form.Top();
    for (const int key : {113, 114, 115, 116, 120, 33, 34, 36, 37, 40, 115})
        Press_Key(form, key);
    EXPECT_TRUE(form.Which_Month_Lbl.Caption() == "April - 2002" && form.Top() == top);
    Fakes().first_weekday = 1;
    Desktop().Say(platform::Broadcast::Settings_Changed);
    Desktop().dots_per_inch = 144;
    Input(form, {.kind = platform::Input_Kind::Scale_Changed});
    Fakes().now = {2002, 5, 3, 0, 0, 0, 0};
    Desktop().Say(platform::Broadcast::Time_Changed);
    Desktop().Say(platform::Broadcast::Colours_Changed);
    Expect_State(true);
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "3rd May - 2002");
    Fakes().Expect_Box("Today: 3/5/2002\r\nMay", platform::Box_Answer::Ok, [] {
        Fakes().first_weekday = 2;
        Desktop().Say(platform::Broadcast::Settings_Changed);
    });
    Press_Key(form, 123);
    Expect_State(false);
    EXPECT_EQ(form.Day_Lbl[0].Caption() + Box_Of(3).Caption() + Text_Of(3) + Box_Of(1).Access().name,
              "Tue 3MayWednesday 1st May 2002");
}

} // namespace

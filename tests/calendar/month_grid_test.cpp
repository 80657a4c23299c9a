// The month in the boxes: layout, events, the alert, and what assistive technology is told.
#include "core/settings.h"
#include "tests/calendar/calendar_test.h"

namespace {

class Month_Grid : public Calendar_Test {};

TEST_F(Month_Grid, lays_months_out) {
    Start();
    struct {
        std::int16_t year, month;
        int first_weekday, start, days;
    } const rows[] = {
        {2002, 3, 0, 5, 31},  {2002, 3, 1, 4, 31}, {2009, 2, 0, 0, 28}, {2026, 2, 0, 0, 28},
        {2003, 3, 0, 6, 31},  {2000, 2, 1, 1, 29}, {1900, 2, 0, 4, 28}, {100, 1, 0, 5, 31},
        {9998, 12, 0, 2, 31}, {2024, 2, 6, 5, 29},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::to_string(row.month) + "/" + std::to_string(row.year));
        Fakes().first_weekday = row.first_weekday;
        Show_Month(row.month, row.year);
        for (int i = 0; i < Main_Frm::box_count; ++i) {
            const int day = i - row.start + 1;
            const bool in_month = day >= 1 && day <= row.days;
            EXPECT_EQ(form.Box_Lbl[i].Caption(), in_month ? " " + std::to_string(day) : "");
            EXPECT_EQ(form.Box_Lbl[i].Visible(), in_month);
            EXPECT_EQ(form.Box_Caption_Lbl[i].Visible(), in_month);
        }
    }
    EXPECT_EQ(form.Day_Lbl[0].Caption(), "Sat");
    EXPECT_EQ(form.Day_Lbl[6].Caption(), "Fri");
}

TEST_F(Month_Grid, events_go_to_their_days) {
    Fakes().registry["Software\\Vellatro\\Settings\\Show Alerts"] = "0";
    Events({"5/3/2002=first", "25/3/9999=yearly", "6/3/2001=other year", "7/4/2002=other month",
            "5/3/9999=second", "8/3/2002=a=b, c", "31/3/9999="});
    Start();
    EXPECT_EQ(Text_Of(5), "second");
    EXPECT_EQ(Text_Of(25), "yearly");
    EXPECT_EQ(Text_Of(6) + Text_Of(7), "");
    EXPECT_EQ(Text_Of(8), "a=b, c");
    EXPECT_EQ(Box_Of(5).Tooltip(), "second");
    EXPECT_EQ(Box_Of(5).Access().value, "second");
    Show_Month(3, 2001);
    EXPECT_EQ(Text_Of(5), "second");
    EXPECT_EQ(Text_Of(6), "other year");
    Cur_Settings.Tooltips = 2;
    form.Redraw();
    EXPECT_EQ(Box_Of(6).Tooltip(), "");
    EXPECT_EQ(Box_Of(9).Access().value, "") << "left over from the month before";
}

TEST_F(Month_Grid, a_malformed_record_ends_the_filling_and_keeps_what_is_shown) {
    Start();
    for (const char *bad :
         {"no key", "5/3=x", "a/3/2002=x", "5/3/2002/1=x", "99999/3/2002=x", "33/3/2002=x", "-5/3/2002=x"}) {
        SCOPED_TRACE(bad);
        Events({"1/3/2002=before", bad, "2/3/2002=after"});
        Fakes().Expect_Box("Error loading in data file.");
        form.Redraw();
        EXPECT_EQ(Text_Of(1) + Text_Of(2), "before");
    }
    // A day that the month lacks still has a box, which is hidden.
    Events({"31/2/9999=hidden", "1/2/2002=shown"});
    Show_Month(2, 2002);
    EXPECT_EQ(Text_Of(1), "shown");
    EXPECT_FALSE(Box_Of(31).Visible());
}

TEST_F(Month_Grid, alerts_once_a_day_of_the_first_event_in_the_file) {
    Events({"5/3/2001=long ago", "5/3/9999=Birthday", "5/3/2002=Dentist"});
    Fakes().Expect_Box("Today: 5/3/2002\r\nBirthday", platform::Box_Answer::Ok, [this] {
        EXPECT_EQ(Text_Of(5), "Birthday"); // what is read so far is shown behind the box
        form.Load_Dates();                 // a redraw while the box waits is no second alert
    });
    Start();
    EXPECT_TRUE(form.Alert_Done);
    EXPECT_EQ(Fakes().boxes.at(0).title, "Vellatro");
    EXPECT_EQ(Fakes().boxes.at(0).icon, platform::Box_Icon::Information);
    form.Redraw();

    // Another month on display does not matter; the switch does.
    form.Alert_Done = false;
    Cur_Settings.Show_Alerts = 2;
    Show_Month(7, 2010);
    Cur_Settings.Show_Alerts = 1;
    Fakes().Expect_Box("Today: 5/3/2002\r\nBirthday");
    Show_Month(8, 2010);
}

TEST_F(Month_Grid, marks_today_unmistakably_and_in_its_month_only) {
    Start();
    const auto marked = [this] {
        std::string days;
        for (int i = 0; i < Main_Frm::box_count; ++i) {
            const platform::Control_State &box = form.Box_Lbl[i].State();
            const bool mark = box.back_colour == Cur_Settings.Col_Today;
            EXPECT_EQ(mark, box.frame_colour != -1);
            EXPECT_EQ(mark, box.font.bold);
            EXPECT_EQ(mark && box.visible, box.access.current);
            days += mark ? box.caption : "";
        }
        return days;
    };
    EXPECT_EQ(marked(), " 5");
    Show_Month(3, 2003);
    EXPECT_EQ(marked(), "");
    Show_Month(3, 2002);
    EXPECT_EQ(marked(), " 5");
    form.Which_Style(0);
    EXPECT_EQ(marked(), " 5");
    form.Colour_Boxes();
    EXPECT_EQ(form.Box_Lbl[9].Back_Colour(), Cur_Settings.Col_Normal);
    EXPECT_EQ(form.Box_Lbl[9].State().frame_colour, -1);
}

TEST_F(Month_Grid, describes_itself_to_assistive_technology) {
    Start();
    EXPECT_EQ(Box_Of(5).Access().name, "Tuesday 5th March 2002, today");
    EXPECT_EQ(Box_Of(22).Access().name, "Friday 22nd March 2002");
    EXPECT_EQ(form.Day_Lbl[2].Access().name, "Tuesday");
    EXPECT_EQ(form.Box_Caption_Lbl[9].Access().role, platform::Access_Role::None);
    // Boxes that change hands are told anew, others not again.
    Desktop().told.clear();
    form.Mark_Today();
    EXPECT_TRUE(Desktop().told.empty());
    Fakes().first_weekday = 1;
    form.Redraw();
    EXPECT_EQ(Box_Of(5).Access().name, "Tuesday 5th March 2002, today");

    int edited = -1;
    form.Open_Editor = [&](int index) { edited = index; };
    platform::Input_Event event{};
    event.kind = platform::Input_Kind::Default_Action;
    event.control = Box_Of(9).State().index;
    form.Input(event);
    EXPECT_EQ(form.Date_Of_Box(edited), (Date{2002, 3, 9}));
    event.control = form.Next_Month_Lbl.State().index;
    form.Input(event);
    EXPECT_EQ(form.Cur_Month, 4);
    Double_Click(form, form.Box_Caption_Lbl[20]);
    EXPECT_EQ(edited, 20);
}

} // namespace

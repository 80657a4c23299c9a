// The month in the boxes: layout, events, the alert, and what assistive technology is told.
#include "tests/calendar/calendar_test.h"

namespace {

using Month_Grid = Calendar_Test;

TEST_F(Month_Grid, lays_months_out) {
    struct {
        std::int16_t year, month;
        int first_weekday, start, days;
    } const rows[] = {{2002, 3, 1, 4, 31}, {2009, 2, 0, 0, 28}, {2003, 3, 0, 6, 31},
                      {100, 1, 0, 5, 31},  {2000, 2, 1, 1, 29}, {9998, 12, 6, 3, 31}};
    Start();
    for (const auto &row : rows) {
        SCOPED_TRACE(std::to_string(row.month) + "/" + std::to_string(row.year));
        Fakes().first_weekday = row.first_weekday;
        Show_Month(row.month, row.year);
        for (int i = 0; i < Main_Frm::box_count; ++i) {
            const int day = i - row.start + 1;
            const bool in_month = day >= 1 && day <= row.days;
            EXPECT_EQ(form.Box_Lbl[i].Caption(), in_month ? " " + std::to_string(day) : "");
            EXPECT_TRUE(form.Box_Lbl[i].Visible() == in_month &&
                        form.Box_Caption_Lbl[i].Visible() == in_month);
        }
    }
    EXPECT_EQ(form.Day_Lbl[0].Caption() + form.Day_Lbl[6].Access().name, "SatFriday");
}

TEST_F(Month_Grid, events_go_to_their_days) {
    Stored("Show Alerts") = "0";
    Events({"5/3/2002=first", "7/3/9999=yearly", "6/3/2001=other year", "8/4/2002=other month",
            "5/3/9999=second", "9/3/2002=a=b, c"});
    Start();
    EXPECT_EQ(Text_Of(5) + Text_Of(6) + Text_Of(7) + Text_Of(8) + Text_Of(9), "secondyearlya=b, c");
    EXPECT_EQ(Box_Of(5).Tooltip() + Box_Of(5).Access().value, "secondsecond");
    Show_Month(3, 2001);
    EXPECT_EQ(Text_Of(5) + Text_Of(6) + Text_Of(7) + Text_Of(8) + Text_Of(9), "secondother yearyearly");
    EXPECT_EQ(Box_Of(10).Access().value, "") << "left over from the month before";
}

TEST_F(Month_Grid, a_malformed_record_ends_the_filling_and_keeps_what_is_shown) {
    Start();
    for (const char *bad : {"no key", "5/3=x", "a/3/2002=x", "33/3/2002=x", "-5/3/2002=x"}) {
        Events({"31/2/9999=no day, but a box", "1/3/2002=before", bad, "2/3/2002=after"});
        Fakes().Expect_Box("Error loading in data file.", platform::Box_Answer::Ok,
                           [&] { EXPECT_EQ(Text_Of(1) + Text_Of(2), "before") << bad; });
        form.Redraw();
    }
}

TEST_F(Month_Grid, alerts_once_a_day_of_the_first_event_in_the_file) {
    Events({"5/3/2001=long ago", "5/3/9999=Birthday", "5/3/2002=Dentist"});
    Fakes().Expect_Box("Today: 5/3/2002\r\nBirthday", platform::Box_Answer::Ok, [this] {
        EXPECT_EQ(Text_Of(5), "Birthday"); // what is read so far is shown behind the box
        form.Load_Dates();                 // a redraw while the box waits is no second alert
    });
    Start();
    // Another month on display does not matter; the switch does.
    form.Alert_Done = false;
    Cur_Settings.Show_Alerts = 2;
    Show_Month(7, 2010);
    Cur_Settings.Show_Alerts = 1;
    Fakes().Expect_Box("Today: 5/3/2002\r\nBirthday");
    Show_Month(8, 2010);
}

TEST_F(Month_Grid, marks_and_names_today_and_the_other_days) {
    Start();
    for (const std::int16_t year : std::initializer_list<std::int16_t>{2002, 2003, 2002}) {
        Show_Month(3, year);
        for (const Label &label : form.Box_Lbl) {
            const platform::Control_State &box = label.State();
            const bool mark = box.caption == " 5" && year == 2002;
            EXPECT_EQ(box.back_colour == Cur_Settings.Col_Today, mark);
            EXPECT_EQ(box.frame_colour != -1, mark);
            EXPECT_EQ(box.access.current, mark);
        }
    }
    EXPECT_EQ(Box_Of(5).Access().name, "Tuesday 5th March 2002, today");
    EXPECT_EQ(Box_Of(22).Access().name, "Friday 22nd March 2002");
}

TEST_F(Month_Grid, high_contrast_brings_the_colours_of_windows_and_takes_them_away_again) {
    Start();
    const auto colours = [&](int day) {
        const Label &box = Box_Of(day);
        const platform::Colour text = form.Box_Caption_Lbl[4 + day].Fore_Colour();
        return std::vector{box.Back_Colour(),        box.Fore_Colour(),
                           box.State().frame_colour, text,
                           form.Back_Colour(),       form.Which_Month_Lbl.Fore_Colour()};
    };
    const auto usual = colours(5);
    for (const auto say : {platform::Broadcast::Settings_Changed, platform::Broadcast::Colours_Changed}) {
        Desktop().high_contrast = true;
        Desktop().Say(say);
        const auto system = platform::System_Colour;
        const std::vector other{system(5), system(8), system(16), system(8), system(5), system(8)};
        EXPECT_EQ(colours(5),
                  (std::vector{system(13), system(14), system(13), system(14), other[4], other[5]}));
        EXPECT_EQ(colours(6), other);
        Fakes().now.day = 6;
        form.Redraw();
        EXPECT_EQ(colours(5), other) << "today is over";
        Fakes().now.day = 5;
        Desktop().high_contrast = false;
        Desktop().Say(say);
        EXPECT_EQ(colours(5), usual);
    }
}

} // namespace

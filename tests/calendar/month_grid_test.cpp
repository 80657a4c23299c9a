// The month in the boxes: layout, events, the alert, and accessible names.
#include "tests/calendar/calendar_test.h"

namespace {

using Month_Grid = Calendar_Test;

TEST_F(Month_Grid, lays_months_out_and_marks_today) {
    struct {
        std::int16_t year, month;
        int first_weekday, start, days;
    } const rows[] = {{2002, 3, 1, 4, 31}, {2009, 2, 0, 0, 28},  {2003, 3, 0, 6, 31},
                      {2002, 3, 1, 4, 31}, {100, 1, 0, 5, 31},   {2000, 2, 1, 1, 29},
                      {1900, 2, 0, 4, 28}, {2026, 11, 0, 0, 30}, {9998, 12, 6, 3, 31}};
    Start();
    for (const auto &row : rows) {
        SCOPED_TRACE(std::to_string(row.month) + "/" + std::to_string(row.year));
        Fakes().first_weekday = row.first_weekday;
        Show_Month(row.month, row.year);
        for (int i = 0; i < Main_Frm::box_count; ++i) {
            const int day = i - row.start + 1;
            const bool in_month = day >= 1 && day <= row.days, mark = day == 5 && row.year == 2002;
            const platform::Control_State &box = form.Box_Lbl[i].State();
            EXPECT_EQ(box.caption, in_month ? " " + std::to_string(day) : "");
            EXPECT_TRUE(box.visible == in_month && form.Box_Caption_Lbl[i].Visible() == in_month);
            EXPECT_EQ(box.back_colour == Cur_Settings.Col_Today, mark);
            EXPECT_TRUE((box.frame_colour != -1) == mark && box.access.current == mark);
        }
    }
    EXPECT_EQ(form.Day_Lbl[0].Caption() + form.Day_Lbl[6].Access().name, "SatFriday");
    for (const Label *arrow : {&form.Prev_Month_Lbl, &form.Next_Month_Lbl}) { // each arrow points outwards
        const auto corners = Painted(form, arrow->Bounds()).operations.back().corners;
        ASSERT_EQ(corners.size(), 3U);
        EXPECT_EQ(corners[0].x < corners[1].x, arrow == &form.Prev_Month_Lbl);
    }
}

TEST_F(Month_Grid, events_go_to_their_days_as_far_as_the_file_is_sound) {
    Stored("Show Alerts") = "0";
    Events({"5/3/2002=first", "7/3/9999=yearly", "6/3/2001=other year", "8/4/2002=other month",
            "5/3/9999=second", "9/3/2002=a=b, c"});
    Start();
    EXPECT_EQ(Text_Of(5) + Text_Of(6) + Text_Of(7) + Text_Of(8) + Text_Of(9), "secondyearlya=b, c");
    EXPECT_EQ(Box_Of(5).Tooltip() + form.Box_Caption_Lbl[Index_Of(5)].Tooltip() + Box_Of(5).Access().value,
              "secondsecondsecond");
    Show_Month(3, 2001);
    EXPECT_EQ(Text_Of(5) + Text_Of(6) + Text_Of(7) + Text_Of(8) + Text_Of(9), "secondother yearyearly");
    EXPECT_EQ(Box_Of(10).Access().value, "") << "left over from the month before";
    for (const std::string bad : {"no key", "", "5/3=x", "a/3/2001=x", "34/3/2001=x", "-5/3/2001=x"}) {
        Events({"31/2/9999=no day, but a box", "1/3/2001=before", bad, "2/3/2001=after"});
        const bool ends = bad.ends_with("=x"); // other lines are notes, which do not end the reading
        Fakes().Expect_Box("Error loading in data file.");
        form.Redraw();
        EXPECT_EQ(Text_Of(1) + Text_Of(2), ends ? "before" : "beforeafter") << bad;
        form.Clear_Box(Index_Of(2)); // does not clear an event that is not shown
        EXPECT_EQ(Data_File().find("after") != std::string::npos, ends) << bad;
    }
}

TEST_F(Month_Grid, alerts_once_a_day_of_the_first_event_in_the_file) {
    Events({"5/3/2001=long ago", "5/3/9999=Birthday", "5/3/2002=Dentist"});
    Fakes().Expect_Box("Today: 5/3/2002\r\nBirthday", platform::Box_Answer::Ok, [this] {
        EXPECT_EQ(Text_Of(5), "Birthday"); // events read so far show behind the box
        form.Load_Dates();                 // loading again while the box is open brings no second alert
    });
    Start();
    // The alert does not depend on the displayed month, only on the setting.
    form.Alert_Done = false;
    Cur_Settings.Show_Alerts = 2;
    Show_Month(7, 2010);
    Cur_Settings.Show_Alerts = 1;
    Fakes().Expect_Box("Today: 5/3/2002\r\nBirthday");
    Show_Month(8, 2010);
}

TEST_F(Month_Grid, high_contrast_brings_the_colours_of_windows_and_takes_them_away_again) {
    Start();
    using Colours = std::vector<Colour>;
    const auto colours = [&](int day) {
        const platform::Control_State &box = Box_Of(day).State();
        return Colours{box.back_colour,    box.fore_colour,
                       box.frame_colour,   form.Box_Caption_Lbl[4 + day].Fore_Colour(),
                       form.Back_Colour(), form.Which_Month_Lbl.Fore_Colour()};
    };
    const auto of_system = [](const Colours &numbers) {
        Colours all;
        for (const int number : numbers)
            all.push_back(System_Colour(number));
        return all;
    };
    const Colours usual = colours(5), other = of_system({5, 8, 16, 8, 5, 8});
    Desktop().high_contrast = true;
    Desktop().Say(platform::Broadcast::Settings_Changed);
    EXPECT_EQ(colours(5), of_system({13, 14, 13, 14, 5, 8}));
    EXPECT_EQ(colours(6), other);
    Fakes().now.day = 6;
    form.Redraw();
    EXPECT_EQ(colours(5), other) << "today is over";
    Fakes().now.day = 5;
    Desktop().high_contrast = false;
    Desktop().Say(platform::Broadcast::Colours_Changed);
    EXPECT_EQ(colours(5), usual);
}

} // namespace

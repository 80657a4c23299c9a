// Start-up, the date watch, the system's broadcasts, steps, keys, colours and placement.
#include "app/program.h"
#include "core/settings.h"
#include "tests/calendar/calendar_test.h"

using platform::Aspect;
using platform::Broadcast;

namespace {

class Lifecycle : public Calendar_Test {};

TEST_F(Lifecycle, starts_with_the_month_of_today_in_its_place_and_shape) {
    Fakes().registry["Software\\Vellatro\\Settings\\Alignment"] = "6";
    Events({"5/3/2002=Dentist"});
    // The alert comes while the events are loaded: the month is laid out, the window not there yet.
    Fakes().Expect_Box("Today: 5/3/2002\r\nDentist", platform::Box_Answer::Ok, [this] {
        EXPECT_EQ(Text_Of(5), "Dentist");
        EXPECT_EQ(form.Which_Month_Lbl.Caption(), "");
        EXPECT_TRUE(Desktop().mirrors.empty());
        EXPECT_FALSE(form.Dectect_Date_Timer.Enabled());
    });
    Start();
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "5th March - 2002");
    EXPECT_EQ(form.Model().bounds.left, 0);
    const Fake_Mirror &window = Desktop().mirrors.at(&form.Model());
    EXPECT_TRUE(window.shown);
    EXPECT_FALSE(window.shown_unclipped);
    // Title, arrows and 7 headers, and 31 days with their texts; the measuring label is not among them.
    EXPECT_EQ(window.clip.size(), 3U + 7U + 2U * 31U);
    EXPECT_TRUE(form.Dectect_Date_Timer.Enabled());
    EXPECT_EQ(Fakes().registry_writes, 0);
}

TEST_F(Lifecycle, a_second_instance_and_malformed_settings_end_the_start) {
    Desktop().first_instance = false;
    Fakes().Expect_Box("The program is already running!");
    EXPECT_EQ(Run_Program(), 1);
    EXPECT_EQ(Fakes().boxes.at(0).icon, platform::Box_Icon::Information);
    Desktop().first_instance = true;
    Fakes().registry["Software\\Vellatro\\Settings\\Style"] = "abc";
    Fakes().any_box = true;
    EXPECT_EQ(Run_Program(), 1);
    EXPECT_EQ(Fakes().boxes.at(1).icon, platform::Box_Icon::Stop);
    EXPECT_NE(Fakes().boxes.at(1).text.find("Style"), std::string::npos);
    EXPECT_TRUE(Desktop().mirrors.empty());
    EXPECT_EQ(Fakes().registry_writes, 0);
}

TEST_F(Lifecycle, runs_until_the_window_is_closed) {
    Desktop().in_the_loop = [] {
        const platform::Form_Model *model = Desktop().mirrors.begin()->first;
        platform::Input_Event event{};
        event.kind = platform::Input_Kind::Close;
        model->input(event);
    };
    EXPECT_EQ(Run_Program(), 0);
    EXPECT_TRUE(Desktop().mirrors.empty());
    EXPECT_TRUE(Desktop().timers.empty());
    EXPECT_EQ(Desktop().listener, nullptr);
}

TEST_F(Lifecycle, an_idle_second_tells_the_window_nothing) {
    Fakes().registry["Software\\Vellatro\\Settings\\Bar Time"] = "True";
    Start();
    Desktop().told.clear();
    const int reads = Fakes().reads;
    Desktop().Advance(10000);
    EXPECT_TRUE(Desktop().told.empty());
    EXPECT_EQ(Fakes().reads, reads);
    Fakes().now.minute = 31;
    Desktop().Advance(2000);
    EXPECT_EQ(Desktop().told, (std::vector<Told_Change>{{"Which_Month_Lbl", Aspect::Caption}}));
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "10:31 - 5th March - 2002");
}

TEST_F(Lifecycle, a_change_of_date_brings_today_back_and_may_alert_again) {
    Events({"1/4/2002=April", "5/3/2002=March"});
    Fakes().Expect_Box("Today: 5/3/2002\r\nMarch");
    Start();
    Show_Month(12, 2005);
    Fakes().now = {2002, 4, 1, 0, 0, 0, 500};
    Fakes().Expect_Box("Today: 1/4/2002\r\nApril", platform::Box_Answer::Ok,
                       [] { Desktop().Advance(3000); }); // ticks go on under the box
    Desktop().Advance(1000);
    EXPECT_EQ(form.Cur_Month, 4);
    EXPECT_EQ(form.Cur_Year, 2002);
    EXPECT_EQ(Text_Of(1), "April");
    EXPECT_EQ(Box_Of(1).Back_Colour(), Cur_Settings.Col_Today);
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "1st April - 2002");
    EXPECT_TRUE(form.Alert_Done);

    // The clock set back is a change of date like any other, and is noticed at once.
    Fakes().now = {2002, 3, 5, 9, 0, 0, 0};
    Fakes().Expect_Box("Today: 5/3/2002\r\nMarch");
    Desktop().Say(Broadcast::Time_Changed);
    EXPECT_EQ(form.Cur_Month, 3);
    EXPECT_EQ(Box_Of(5).Back_Colour(), Cur_Settings.Col_Today);

    form.Compacted = true;
    Fakes().now.day = 6;
    Desktop().Advance(1000);
    EXPECT_EQ(Box_Of(6).Back_Colour(), Cur_Settings.Col_Normal);
    EXPECT_FALSE(form.Alert_Done);
}

TEST_F(Lifecycle, follows_regional_settings_and_colours) {
    Start();
    Desktop().told.clear();
    Desktop().Say(Broadcast::Settings_Changed);
    EXPECT_TRUE(Desktop().told.empty());
    Fakes().months[2] = "Mars";
    Desktop().Say(Broadcast::Settings_Changed);
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "5th Mars - 2002");
    EXPECT_EQ(Box_Of(5).Access().name, "Tuesday 5th Mars 2002, today");
    Fakes().first_weekday = 1;
    Desktop().Say(Broadcast::Settings_Changed);
    EXPECT_EQ(form.Day_Lbl[0].Caption(), "Mon");
    EXPECT_EQ(form.Box_Lbl[8].Caption(), " 5");
    Desktop().told.clear();
    Desktop().Say(Broadcast::Colours_Changed);
    EXPECT_EQ(Desktop().told, (std::vector<Told_Change>{{"", Aspect::Look}}));
}

TEST_F(Lifecycle, steps_over_the_turn_of_the_year_and_stays_within_the_years) {
    Start();
    struct {
        int year, month;
        bool forward;
        int new_year, new_month;
    } const rows[] = {{2002, 12, true, 2003, 1},  {2003, 1, false, 2002, 12}, {2002, 3, true, 2002, 4},
                      {9998, 12, true, 9998, 12}, {100, 1, false, 100, 1},    {100, 2, false, 100, 1}};
    for (const auto &row : rows) {
        form.Cur_Year = static_cast<std::int16_t>(row.year);
        form.Cur_Month = static_cast<std::int16_t>(row.month);
        Click(form, row.forward ? form.Next_Month_Lbl : form.Prev_Month_Lbl);
        EXPECT_EQ(form.Cur_Year, row.new_year);
        EXPECT_EQ(form.Cur_Month, row.new_month);
    }
    Show_Month(12, 2002);
    Click(form, form.Next_Month_Lbl, platform::Mouse_Button::Right);
    EXPECT_EQ(form.Cur_Month, 12);
    Double_Click(form, form.Next_Month_Lbl); // both clicks step
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "February - 2003");
    EXPECT_EQ(form.Box_Lbl[6].Caption(), " 1");
}

TEST_F(Lifecycle, keys) {
    Events({"6/3/2002=new"});
    Start();
    Press_Key(form, 113);
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "February - 2002");
    Press_Key(form, 115);
    EXPECT_EQ(form.Cur_Month, 3);
    for (const int key : {114, 116}) {
        Events({"6/3/2002=changed " + std::to_string(key)});
        Press_Key(form, key);
        EXPECT_EQ(Text_Of(6), "changed " + std::to_string(key));
    }
    Fakes().Expect_Box("Today: 5/3/2002\r\nNo event.");
    Press_Key(form, 112);
    Events({"5/3/2002=one", "5/3/9999=two"});
    Fakes().Expect_Box("Today: 5/3/2002\r\ntwo");
    Press_Key(form, 112);
    // Once it is told that the file cannot be read, nothing is claimed about today.
    Fakes().unreadable.insert("C:\\Vellatro\\calendar.dat");
    Fakes().Expect_Box("Error loading in data file.");
    Press_Key(form, 112);

    platform::Input_Event event{};
    event.kind = platform::Input_Kind::Key_Up;
    event.key = 115;
    event.alt = true;
    form.Input(event);
    EXPECT_EQ(form.Cur_Month, 3);
}

TEST_F(Lifecycle, colours) {
    Start();
    EXPECT_EQ(form.Back_Colour(), Cur_Settings.Col_Back);
    EXPECT_EQ(form.Day_Lbl[6].Fore_Colour(), Cur_Settings.Col_Fore);
    EXPECT_EQ(form.Box_Lbl[36].Fore_Colour(), platform::System_Colour(18));
    EXPECT_EQ(form.Box_Caption_Lbl[36].Fore_Colour(), platform::System_Colour(18));
    Cur_Settings.Menu_Col_Sorce = 0;
    form.Icon_TextColour = 0x123456;
    struct {
        platform::Colour icon, shown;
    } const rows[] = {
        {-1, 0x4B4B4B}, {0x654321, 0x654321}, {platform::System_Colour(1), platform::System_Colour(1)}};
    for (const auto &row : rows) {
        form.Icon_BackColour = row.icon;
        form.Set_Colours();
        EXPECT_EQ(form.Back_Colour(), row.shown);
        EXPECT_EQ(form.Prev_Month_Lbl.Fore_Colour(), 0x123456);
        EXPECT_EQ(form.Day_Lbl[0].Fore_Colour(), 0x123456);
    }
    for (const platform::Colour colour : {0, 0xFFFFFF, 0xFFC0C0, 0x0000FF, 0x404040, 0x00FFFF, 100 << 8}) {
        const auto brightness = [](platform::Colour c) {
            return (30 * (c & 255) + 59 * ((c >> 8) & 255) + 11 * (c >> 16)) / 100;
        };
        EXPECT_GE(std::abs(brightness(Strong_Shade(colour)) - brightness(colour)), 66) << colour;
    }
}

TEST_F(Lifecycle, keeps_its_place_when_the_work_area_changes_height) {
    Start();
    const auto bottom_of = [this](int box) { return form.Top() + form.Box_Lbl[box].Bounds().Bottom(); };
    // March 2002 begins on a Friday: six rows.
    EXPECT_EQ(bottom_of(35), 740 * 15 - 75);
    EXPECT_EQ(form.Left() + form.Width(), 1024 * 15);
    Show_Month(4, 2002);
    EXPECT_EQ(bottom_of(28), 740 * 15 - 75);

    Desktop().work_area = {0, 28, 1024, 740}; // the same height elsewhere is not noticed
    Desktop().Advance(1000);
    EXPECT_EQ(bottom_of(28), 740 * 15 - 75);
    Desktop().work_area = {0, 0, 1024, 768};
    Desktop().Advance(1000);
    EXPECT_EQ(bottom_of(28), 768 * 15 - 75);
    Desktop().work_area = {0, 0, 1280, 1000};
    Desktop().Say(Broadcast::Display_Changed);
    EXPECT_EQ(form.Left() + form.Width(), 1280 * 15);

    Cur_Settings.Alignment = 99;
    form.Move(1, 2);
    form.Redraw();
    EXPECT_EQ(form.Left(), 1);
}

TEST_F(Lifecycle, a_work_area_beyond_16_bits_is_told_once_and_the_calendar_goes_on) {
    Desktop().work_area.height = 2560;
    Fakes().Expect_Box(
        "The height of the desktop's work area, 38400 twips, is beyond the 32767 that are allowed for. The "
        "calendar is placed all the same.");
    Start();
    Fakes().now.day = 6;
    Desktop().Advance(5000);
    EXPECT_EQ(Box_Of(6).Back_Colour(), Cur_Settings.Col_Today);
}

} // namespace

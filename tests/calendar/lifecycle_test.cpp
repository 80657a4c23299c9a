// The calendar from start to end: the date watch, the system's broadcasts, placement and restarts.
#include "app/program.h"
#include "calendar/box_layout.h"
#include "tests/calendar/calendar_test.h"

#include <optional>

using platform::Broadcast;

namespace {

using Lifecycle = Calendar_Test;

TEST_F(Lifecycle, starts_with_the_month_of_today_in_its_place_and_shape) {
    Events({"5/3/2002=Dentist"});
    // The alert appears while the events load: the month is laid out, but the window is still missing.
    Fakes().Expect_Box("Today: 5/3/2002\r\nDentist", platform::Box_Answer::Ok, [this] {
        EXPECT_EQ(Text_Of(5) + form.Which_Month_Lbl.Caption(), "Dentist");
        EXPECT_TRUE(Desktop().mirrors.empty() && Desktop().timers.empty());
    });
    Start();
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "5th March - 2002");
    const Fake_Mirror &window = Desktop().mirrors.at(&form.Model());
    EXPECT_TRUE(window.shown && !window.shown_unclipped);
    EXPECT_EQ(window.clip.size(), 3U + 7U + 2U * 31U); // without the measuring label
    EXPECT_EQ(Fakes().registry_writes, 0);
}

TEST_F(Lifecycle, an_idle_second_tells_the_window_nothing) {
    Stored("Bar Time") = "True";
    Start();
    Desktop().announced.clear();
    const int reads = Fakes().reads;
    Desktop().Advance(10000);
    Desktop().Say(Broadcast::Settings_Changed);
    EXPECT_TRUE(Desktop().announced.empty() && Fakes().reads == reads);
    Fakes().now.minute = 31;
    Desktop().Advance(2000);
    Desktop().Say(Broadcast::Colours_Changed);
    EXPECT_EQ(Desktop().announced,
              (std::vector<Announced_Change>{{"Which_Month_Lbl", platform::Aspect::Caption},
                                             {"", platform::Aspect::Appearance}}));
    Fakes().months[2] = "Mars"; // the title follows the regional settings
    Fakes().first_weekday = 1;
    Desktop().Say(Broadcast::Settings_Changed);
    EXPECT_EQ(form.Which_Month_Lbl.Caption() + form.Day_Lbl[0].Caption(), "10:31 - 5th Mars - 2002Mon");
    EXPECT_EQ(form.Box_Lbl[8].Access().name, "Tuesday 5th Mars 2002, today");
}

TEST_F(Lifecycle, a_change_of_date_brings_today_back_and_may_alert_again) {
    Events({"1/4/2002=April", "5/3/2002=March"});
    Fakes().Expect_Box("Today: 5/3/2002\r\nMarch");
    Start();
    Show_Month(12, 2005);
    Fakes().now = {2002, 4, 1, 0, 0, 0, 500};
    form.Alert_Done = false; // as after a day without an event; one alert comes with the next tick
    form.Redraw();
    Fakes().Expect_Box("Today: 1/4/2002\r\nApril", platform::Box_Answer::Ok,
                       [] { Desktop().Advance(3000); }); // timers run while the box is open
    Desktop().Advance(1000);
    EXPECT_EQ(form.Which_Month_Lbl.Caption() + Text_Of(1), "1st April - 2002April");

    // Setting the clock back is also a change of date, and is noticed at once.
    Fakes().now = {2002, 3, 5, 9, 0, 0, 0};
    Fakes().Expect_Box("Today: 5/3/2002\r\nMarch");
    Desktop().Say(Broadcast::Time_Changed);
    EXPECT_EQ(Box_Of(5).Access().name, "Tuesday 5th March 2002, today");
    // If the file cannot be read, only that error is shown, and not "No event.".
    Data_File().clear();
    for (const char *told : {"Today: 5/3/2002\r\nNo event.", "Error loading in data file."}) {
        Fakes().Expect_Box(told);
        Press_Key(form, 112);
        Fakes().unreadable.insert("C:\\Vellatro\\calendar.dat");
    }
}

TEST_F(Lifecycle, the_shade_for_today_s_frame_stands_out) {
    for (const Colour colour : {0, 0xFFFFFF, 0xFFC0C0, 0x0000FF, 0x404040, 0x00FFFF, 100 << 8}) {
        const auto brightness = [](Colour c) {
            return (30 * (c & 255) + 59 * ((c >> 8) & 255) + 11 * (c >> 16)) / 100;
        };
        EXPECT_GE(std::abs(brightness(Strong_Shade(colour)) - brightness(colour)), 66) << colour;
    }
}

TEST_F(Lifecycle, keeps_its_place_when_the_work_area_changes_height) {
    Start();
    EXPECT_EQ(form.Top() + form.Box_Lbl[35].Bounds().Bottom(), 740 * 15 - 75); // six rows
    Show_Month(4, 2002);
    for (const int height : {740, 768}) {
        Desktop().work_area = {0, 768 - height, 1024, height}; // only a change of height is noticed
        Desktop().Advance(1000);
        EXPECT_EQ(form.Top() + form.Box_Lbl[28].Bounds().Bottom(), height * 15 - 75);
    }
    Desktop().work_area = {0, 0, 1280, 1000};
    Desktop().Say(Broadcast::Display_Changed);
    EXPECT_EQ(form.Left() + form.Width(), 1280 * 15);
}

TEST_F(Lifecycle, comes_back_from_where_something_else_has_moved_it) {
    Desktop().work_area.height = 2560; // more than 16 bits of twips
    Start();
    Fake_Mirror &window = Desktop().mirrors.at(&form.Model());
    const Point set{form.Left(), form.Top()}, dragged{3000, 600};
    const auto second = [] { Desktop().Advance(1000); };
    const auto comes_back = [&](Point from, const std::function<void()> &event) {
        form.Move(from.x, from.y);
        window.displaced = {60, -20};
        EXPECT_TRUE(form.Left() == from.x + 900 && form.Top() == from.y - 300);
        event();
        return Point{form.Left(), form.Top()} == from;
    };
    EXPECT_TRUE(comes_back(set, second) && comes_back(dragged, second));
    EXPECT_TRUE(comes_back(dragged, [] { Desktop().Say(Broadcast::Display_Changed); }));
    EXPECT_TRUE(comes_back(set, [this] { form.Redraw(); }));
    EXPECT_FALSE(comes_back({-90000, 600}, second)) << "its monitor has gone";
    window.stuck = true;
    Desktop().announced.clear();
    EXPECT_FALSE(comes_back(set, [] { Desktop().Advance(9000); }));
    EXPECT_EQ(Desktop().announced.size(), 3U) << "its own move, and two tries to bring it back";
    window.stuck = false;
    EXPECT_TRUE(comes_back(dragged, second) && comes_back(set, second));
    Press(form, form.Which_Month_Lbl);
    EXPECT_FALSE(comes_back(dragged, second)) << "while it is dragged";
}

TEST_F(Lifecycle, what_happens_under_an_alert_holds_after_it) {
    Events({"5/3/2002=March", "6/3/2002=next day"});
    // At the start, a clock set within the day brings no second alert, and the next day brings its own, even
    // while the first alert is open.
    Fakes().Expect_Box("Today: 5/3/2002\r\nMarch", platform::Box_Answer::Ok, [] {
        Desktop().Say(Broadcast::Time_Changed);
        Fakes().now = {2002, 3, 6, 0, 0, 1, 0};
        Fakes().Expect_Box("Today: 6/3/2002\r\nnext day");
        Desktop().Say(Broadcast::Time_Changed);
    });
    Start();
    EXPECT_EQ(Box_Of(6).Back_Colour(), Cur_Settings.Col_Today);
}

TEST_F(Lifecycle, ends_when_it_is_asked_to_and_when_the_session_is_over) {
    Start();
    bool unsaved = true;
    form.Offer_To_Save = [&unsaved] { return !unsaved; };
    for (const Broadcast say :
         {Broadcast::Close_Request, Broadcast::Close_Request, Broadcast::Session_Over}) {
        Desktop().loop_ended = false;
        Fakes().wallpaper_ordered = true; // the end of session or program waits for it
        Desktop().Say(say);
        EXPECT_EQ(Desktop().loop_ended, say == Broadcast::Session_Over || !unsaved);
        EXPECT_EQ(Fakes().wallpaper_ordered, say != Broadcast::Session_Over);
        unsaved = !unsaved;
    }
    Fakes().wallpaper_ordered = true;
    Fakes().in_temporary_folder = true;
    Fakes().any_box = true;
    EXPECT_TRUE(Run_Program() == 0 && !Fakes().wallpaper_ordered);
    EXPECT_TRUE(Fakes().boxes.back().text.starts_with("Vellatro was started from a temporary folder"));
    Stored("Manual_PosX") = "32768"; // a malformed setting ends the start
    EXPECT_EQ(Run_Program(), 1);
    EXPECT_TRUE(Fakes().boxes.back().text.starts_with("The setting \"Manual_PosX\"") &&
                Fakes().boxes.back().icon == platform::Box_Icon::Stop && Fakes().registry_writes == 0);
}

TEST_F(Lifecycle, starts_again_with_the_next_shell) {
    const struct {
        const char *what;
        int restarts;
        unsigned lived, desktop_at; ///< milliseconds, seconds
        std::optional<Broadcast> said;
        int again;
        unsigned waited; ///< seconds
    } cases[] = {
        {"a shell that tells of its start", 3, 60000, 4, Broadcast::Shell_Started, 1, 4},
        {"a silent one", 1, 59999, 4, std::nullopt, 2, 8},
        {"no other one", 0, 60000, 0, Broadcast::Shell_Started, 0, 120},
        {"one that takes every calendar down", 3, 59999, 1, std::nullopt, 0, 0},
        {"the session is over first", 0, 60000, 4, Broadcast::Session_Over, 0, 2},
        {"the user wants to end it first", 0, 60000, 4, Broadcast::Close_Request, 0, 2},
    };
    for (const auto &[what, restarts, lived, desktop_at, said, again, waited] : cases) {
        Fakes().restart_count = restarts;
        Fakes().started_again = 0;
        Shell() = {};
        unsigned seconds = 0;
        Desktop().in_loop = [&] {
            if (!Desktop().mirrors.empty()) {
                Fakes().milliseconds += lived;
                const platform::Form_Model &calendar = *Desktop().mirrors.begin()->first;
                Desktop().mirrors.clear();
                return calendar.input({.kind = platform::Input_Kind::Window_Lost});
            }
            if (++seconds == 2 && said)
                Desktop().Say(*said);
            if (seconds == desktop_at)
                Shell() = {.desktop = 11, .view = 12, .list = 13, .colours = {{-1, 0}}};
            if (!Desktop().loop_ended)
                Desktop().Advance(1000);
        };
        EXPECT_EQ(Run_Program(), 0);
        EXPECT_TRUE(Fakes().started_again == again && seconds == waited) << what << ": " << seconds;
    }
}

} // namespace

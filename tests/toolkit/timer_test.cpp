// Timers, the trap for failures that repeat, and the units.
#include "tests/fakes/form_test.h"
#include "toolkit/guard.h"
#include "toolkit/timer.h"
#include "toolkit/units.h"

#include <memory>
#include <new>
#include <stdexcept>

namespace {

class Toolkit : public Form_Test {};

TEST_F(Toolkit, a_timer_ticks_while_it_is_on_and_begins_anew_when_switched) {
    Timer timer(1000);
    int ticks = 0;
    timer.On_Timer = [&] { ++ticks; };
    Desktop().Advance(5000);
    timer.Set_Enabled(true);
    Desktop().Advance(2500);
    EXPECT_EQ(ticks, 2);
    timer.Set_Enabled(false);
    timer.Set_Enabled(true);
    Desktop().Advance(999);
    EXPECT_EQ(ticks, 2);
    timer.On_Timer = [&] { timer.Set_Enabled(false); };
    Desktop().Advance(5000);
    EXPECT_FALSE(timer.Enabled());
}

TEST_F(Toolkit, a_tick_may_end_its_timer) {
    auto timer = std::make_unique<Timer>(10U);
    timer->On_Timer = [&timer] { timer.reset(); };
    timer->Set_Enabled(true);
    Desktop().Advance(100);
    EXPECT_EQ(timer, nullptr);
    EXPECT_TRUE(Desktop().timers.empty());
}

TEST_F(Toolkit, a_failure_that_comes_with_every_tick_is_told_when_it_begins) {
    Timer timer(1000);
    bool fails = true;
    timer.On_Timer = [&] {
        if (fails)
            throw std::runtime_error("No place.");
    };
    timer.Set_Enabled(true);
    // Ticks go on while the box is open.
    Fakes().Expect_Box("No place.", platform::Box_Answer::Ok, [] { Desktop().Advance(3000); });
    Desktop().Advance(10000);
    fails = false;
    Desktop().Advance(1000);
    fails = true;
    Fakes().Expect_Box("No place.");
    Desktop().Advance(2000);
}

TEST_F(Toolkit, guard_names_the_failure) {
    Fakes().Expect_Box("There is not enough memory for this.");
    Run_Guarded([] { throw std::bad_alloc(); });
    Fakes().Expect_Box("Something went wrong, and the last action was not completed.");
    Run_Guarded([] { throw std::runtime_error(""); });
}

TEST_F(Toolkit, twips_and_pixels) {
    struct {
        int dots, twips, pixels, snapped;
    } const rows[] = {
        {96, 1440, 96, 1440}, {96, 7, 0, 15},   {96, 8, 1, 15},      {96, -8, -1, -15},
        {96, -7, 0, 0},       {96, 0, 0, 0},    {120, 100, 8, 96},   {144, 15, 2, 20},
        {192, 15, 2, 15},     {192, 20, 3, 23}, {192, -20, -3, -22}, {96, 2000000000, 133333333, 1999999995},
    };
    for (const auto &row : rows) {
        Desktop().dots_per_inch = row.dots;
        EXPECT_EQ(Twips_To_Pixels(row.twips), row.pixels) << row.twips << " at " << row.dots;
        EXPECT_EQ(Snap(row.twips), row.snapped) << row.twips << " at " << row.dots;
    }
    for (const int dots : {96, 110, 120, 144, 168, 192, 288}) {
        Desktop().dots_per_inch = dots;
        for (int pixels = -50; pixels < 2000; ++pixels)
            ASSERT_EQ(Twips_To_Pixels(Pixels_To_Twips(pixels)), pixels) << dots;
    }
}

} // namespace

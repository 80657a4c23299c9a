// Timers, errors that repeat with each tick, and units.
#include "tests/fakes/form_test.h"
#include "toolkit/timer.h"
#include "toolkit/units.h"

#include <memory>
#include <stdexcept>

namespace {

TEST_F(Form_Test, a_timer_ticks_while_it_is_on_and_begins_anew_when_switched) {
    auto timer = std::make_unique<Timer>(1000U);
    int ticks = 0;
    timer->On_Timer = [&] { ++ticks; };
    Desktop().Advance(5000);
    timer->Set_Enabled(true);
    Desktop().Advance(2500);
    timer->Set_Enabled(false);
    timer->Set_Enabled(true);
    Desktop().Advance(999);
    EXPECT_EQ(ticks, 2);
    timer->On_Timer = [&timer, kept = 100] {
        timer.reset();
        EXPECT_EQ(kept, 100); // the running handler still exists
    };
    Desktop().Advance(5000);
    EXPECT_TRUE(timer == nullptr && Desktop().timers.empty());
}

TEST_F(Form_Test, a_failure_that_comes_with_every_tick_is_told_when_it_begins) {
    Timer timer(1000);
    const auto fail = [] { throw std::runtime_error("No place."); };
    timer.Set_Enabled(true);
    for (int again = 0; again < 2; ++again) {
        timer.On_Timer = fail;
        // The timer runs while the box is open.
        Fakes().Expect_Box("No place.", platform::Box_Answer::Ok, [] { Desktop().Advance(3000); });
        Desktop().Advance(10000);
        timer.On_Timer = [] {};
        Desktop().Advance(1000);
    }
}

TEST_F(Form_Test, twips_and_pixels) {
    constexpr int rows[][4] = {{96, 7, 0, 15},    {96, -8, -1, -15}, {96, -7, 0, 0},
                               {120, 100, 8, 96}, {144, 15, 2, 20},  {192, -20, -3, -22},
                               {110, 13, 1, 13},  {288, 5, 1, 5},    {96, 2000000000, 133333333, 1999999995}};
    for (const auto &[dots, twips, pixels, snapped] : rows) {
        Desktop().dots_per_inch = dots;
        EXPECT_TRUE(Twips_To_Pixels(twips) == pixels && Snap(twips) == snapped) << twips << " at " << dots;
        for (int i = -50; i < 2000; ++i)
            ASSERT_EQ(Twips_To_Pixels(Pixels_To_Twips(i)), i) << dots;
    }
}

} // namespace

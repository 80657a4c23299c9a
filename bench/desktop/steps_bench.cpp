// Times a step to the next month in the running program with ten thousand events in the file. For comparison
// it times a mere repaint of the window. Only steps that go wrong are failures.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int events = 10'000;
constexpr int steps = 100;

class Steps : public Desktop_Test {
protected:
    /// Returns the median time of `act` in milliseconds.
    template <typename Act>
    static double Median(const Act &act) {
        std::vector<double> times;
        for (int i = 0; i < steps; ++i) {
            const double begin = Milliseconds_Now();
            act();
            times.push_back(Milliseconds_Now() - begin);
        }
        std::nth_element(times.begin(), times.begin() + steps / 2, times.end());
        return times[steps / 2];
    }
};

TEST_F(Steps, Next_Month) {
    std::string bytes;
    unsigned random = 12345;
    for (int i = 0; i < events; ++i) {
        random = random * 1664525U + 1013904223U;
        const unsigned bits = random >> 8U;
        bytes += "\"" + std::to_string(1 + bits / 2048 % 28) + "/" + std::to_string(1 + bits / 128 % 12) +
                 "/" + std::to_string(i % 3 == 0 ? 9999 : 2000 + bits % 100) + "=Event number " +
                 std::to_string(i) + ", at noon\"\r\n";
    }
    Write_Data(bytes);
    Set_Setting("Settings", "Show Alerts", "0");
    const Program &program = Start_Calendar();
    const HWND calendar = program.Calendar();
    const RECT arrow = program.Named("Next month").place;
    POINT point = Middle(arrow);
    ScreenToClient(calendar, &point);
    const LPARAM place = MAKELPARAM(point.x, point.y);
    // Send the messages instead of posting them, so that each call returns after the program has handled it.
    // If the program has begun to paint by itself, RDW_UPDATENOW returns at once, but the last message waits.
    const auto ask = [&] { SendMessageW(calendar, WM_NULL, 0, 0); };
    const auto step = [&] {
        SendMessageW(calendar, WM_LBUTTONDOWN, MK_LBUTTON, place);
        SendMessageW(calendar, WM_LBUTTONUP, 0, place);
        RedrawWindow(calendar, nullptr, nullptr, RDW_UPDATENOW);
        ask();
    };
    const auto repaint = [&] { RedrawWindow(calendar, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); };
    step();
    EXPECT_FALSE(GetUpdateRect(calendar, nullptr, FALSE)) << "the step is not painted";
    const double step_time = Median(step);
    EXPECT_FALSE(GetUpdateRect(calendar, nullptr, FALSE)) << "the steps are not painted";
    const double repaint_time = Median(repaint);
    const double ask_time = Median(ask);
    std::printf(
        "medians of %d, %d events: painted step %.2f ms, repaint alone %.2f ms, a message's way %.2f ms\n",
        steps, events, step_time, repaint_time, ask_time);
    // May 2027 plus 101 months.
    EXPECT_TRUE(Becomes(std::string("October - 2035"), [&] { return program.Title(); }));
}

} // namespace

// The positions of the calendar on the screen.
#include "core/convert.h"
#include "desktop/position.h"
#include "tests/fakes/form_test.h"

namespace {

class Position : public Form_Test {};

TEST_F(Position, unknown_codes_and_odd_sizes) {
    Placement placement{{300, 450, 15001, 11001}, {15004, 6000}, 5000, {-20, 32767}};
    for (const std::int16_t code :
         {std::int16_t{-1}, static_cast<std::int16_t>(std::size(Positions)), std::int16_t{32767}})
        EXPECT_EQ(Position_Of(code, placement), std::nullopt);
    // A window larger than the work area is centred; the division drops the fraction.
    EXPECT_EQ(Position_Of(1, placement)->x, 299);
    placement.form.width = 0;
    placement.work_area.left = INT32_MAX - 10;
    EXPECT_THROW(Position_Of(0, placement), Conversion_Error);
}

// Work areas beside a taskbar at the top, left and bottom, and one on a monitor left of and above the main
// one.
TEST_F(Position, stands_beside_the_task_bar_at_any_dots_per_inch) {
    const struct {
        int dots;
        Rect work_area; // pixels
        int x[3], y[3]; // twips: left, centred and right; top, centred and by the lowest boxes
    } rows[] = {
        {96, {0, 30, 1280, 994}, {0, 4425, 8850}, {450, 3982, 7785}},
        {96, {62, 0, 1218, 1024}, {930, 4890, 8850}, {0, 3757, 7785}},
        {144, {0, 0, 1920, 1160}, {0, 4425, 8850}, {0, 1877, 4025}},
        {144, {-1920, -100, 1920, 1160}, {-19200, -14775, -10350}, {-1000, 877, 3025}},
    };
    // The index into x and y by position code. 7 is the manual position.
    constexpr int across[] = {2, 1, 0, 1, 2, 1, 0, -1, 2, 0};
    constexpr int down[] = {2, 2, 2, 1, 0, 0, 0, -1, 1, 1};
    for (const auto &row : rows) {
        Desktop().dots_per_inch = row.dots;
        Desktop().work_area = row.work_area;
        const Placement placement{GetDesktopRect(true), {10350, 7845}, 7500, {-15, -30}};
        for (std::int16_t code = 0; code < std::ssize(across); ++code) {
            const Point expected =
                code == 7 ? Point{-15, -30} : Point{row.x[across[code]], row.y[down[code]]};
            EXPECT_EQ(Position_Of(code, placement), expected) << &row - rows << ", code " << code;
        }
    }
}

} // namespace

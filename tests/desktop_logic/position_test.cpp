// The ten position codes.
#include "core/convert.h"
#include "desktop/position.h"
#include "tests/fakes/form_test.h"

namespace {

class Position : public Form_Test {};

TEST_F(Position, places_by_code_on_a_work_area_that_does_not_begin_at_zero) {
    Placement placement;
    placement.work_area = {300, 450, 15001, 11001};
    placement.form = {9000, 6000};
    placement.lowest_box_bottom = 5000;
    placement.manual = {-20, 32767};
    const int right = 6301;
    const int middle = 3300; // (15001 - 9000) / 2 + 300
    const int low = 6376;    // 11001 - (75 + 5000) + 450
    const int half_down = 2950;
    const platform::Point expected[] = {{right, low},       {middle, low},   {300, low}, {middle, half_down},
                                        {right, 450},       {middle, 450},   {300, 450}, {-20, 32767},
                                        {right, half_down}, {300, half_down}};
    for (std::int16_t code = 0; code < 10; ++code)
        EXPECT_EQ(Position_Of(code, placement), expected[code]) << code;
    for (const std::int16_t code : std::initializer_list<std::int16_t>{-1, 10, 32767})
        EXPECT_EQ(Position_Of(code, placement), std::nullopt);

    // A window larger than the work area: half of what is missing, its fraction dropped.
    placement.form.width = 15004;
    EXPECT_EQ(Position_Of(1, placement)->x, 299);

    placement.form.width = 0;
    placement.work_area.left = INT32_MAX - 10;
    EXPECT_THROW(Position_Of(0, placement), Conversion_Error);
    EXPECT_EQ(Position_Of(7, placement), expected[7]);
}

// The task bar on each of the four sides, and a screen to the left of and above the main one.
TEST_F(Position, stands_beside_the_task_bar_at_any_dots_per_inch) {
    const struct {
        int dots;
        platform::Rect work_area; // pixels
        int x[3], y[3];           // twips: left, centred and right; top, centred and by the lowest boxes
    } rows[] = {
        {96, {0, 0, 1280, 994}, {0, 4425, 8850}, {0, 3532, 7335}},
        {96, {0, 30, 1280, 994}, {0, 4425, 8850}, {450, 3982, 7785}},
        {96, {62, 0, 1218, 1024}, {930, 4890, 8850}, {0, 3757, 7785}},
        {96, {0, 0, 1218, 1024}, {0, 3960, 7920}, {0, 3757, 7785}},
        {96, {-1280, -200, 1280, 994}, {-19200, -14775, -10350}, {-3000, 532, 4335}},
        {144, {0, 0, 1920, 1160}, {0, 4425, 8850}, {0, 1877, 4025}},
        {144, {0, 40, 1920, 1160}, {0, 4425, 8850}, {400, 2277, 4425}},
        {144, {80, 0, 1840, 1200}, {800, 4825, 8850}, {0, 2077, 4425}},
        {144, {0, 0, 1840, 1200}, {0, 4025, 8050}, {0, 2077, 4425}},
        {144, {-1920, -100, 1920, 1160}, {-19200, -14775, -10350}, {-1000, 877, 3025}},
    };
    // By code: which of the three across, which down. 7 is the user's own place.
    constexpr int across[] = {2, 1, 0, 1, 2, 1, 0, -1, 2, 0};
    constexpr int down[] = {2, 2, 2, 1, 0, 0, 0, -1, 1, 1};
    for (const auto &row : rows) {
        Desktop().dots_per_inch = row.dots;
        Desktop().work_area = row.work_area;
        const Placement placement{GetDesktopRect(true), {10350, 7845}, 7500, {-15, -30}};
        for (std::int16_t code = 0; code < 10; ++code) {
            const platform::Point expected = code == 7
                                                 ? platform::Point{-15, -30}
                                                 : platform::Point{row.x[across[code]], row.y[down[code]]};
            EXPECT_EQ(Position_Of(code, placement), expected) << &row - rows << ", code " << code;
        }
    }
}

TEST_F(Position, the_work_area_comes_in_pixels_and_twips) {
    Desktop().work_area = {-10, 28, 1920, 1052};
    EXPECT_EQ(GetDesktopRect(false), Desktop().work_area);
    EXPECT_EQ(GetDesktopRect(true), (platform::Rect{-150, 420, 28800, 15780}));
    Desktop().dots_per_inch = 144;
    EXPECT_EQ(GetDesktopRect(true), (platform::Rect{-100, 280, 19200, 10520}));
}

} // namespace

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

TEST_F(Position, the_work_area_comes_in_pixels_and_twips) {
    Desktop().work_area = {-10, 28, 1920, 1052};
    EXPECT_EQ(GetDesktopRect(false), Desktop().work_area);
    EXPECT_EQ(GetDesktopRect(true), (platform::Rect{-150, 420, 28800, 15780}));
    Desktop().dots_per_inch = 144;
    EXPECT_EQ(GetDesktopRect(true), (platform::Rect{-100, 280, 19200, 10520}));
}

} // namespace

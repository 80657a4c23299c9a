// A month as users and assistive technology see it: texts, boxes, pixels, regional settings. The Dots tests
// also run at other dots per inch.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

namespace {

constexpr DWORD white = 0xFFFFFF;
constexpr DWORD hairline = 0xB2B2B2;  // around a day's box
constexpr DWORD deep_blue = 0x1F0880; // behind title and headers

using Month = Desktop_Test;
using Dots = Desktop_Test; // these tests also run at other dots per inch

TEST_F(Month, Shows_Days_And_Texts) {
    const std::string long_text = "The quarterly meeting with everybody " + std::string(300, 'x') + " end";
    Write_Data("\"1/5/2027=Exact\"\r\n\"25/5/9999=Every year\"\r\n\"2/5/2026=Another year\"\r\n"
               "\"3/6/2027=Another month\"\r\n\"3/5/2027=One, two = three\"\r\n\"6/5/2027=Crème brûlée\"\r\n"
               "\"7/5/2027=日本語の予定\"\r\n\"8/5/2027=" +
               long_text + "\"\r\n\"9/5/2027=First\"\r\n\"9/5/2027=Second\"\r\n31/5/2027=Unquoted\r\n");
    Set_Regional("iFirstDayOfWeek", "0");
    Clear_Store();
    const Program &program = Start_Calendar();
    EXPECT_EQ(program.Title(), "12th May - 2027");
    const std::vector<Item> days = program.Items(ROLE_SYSTEM_CELL);
    ASSERT_EQ(days.size(), 31U);
    std::string texts;
    for (const Item &day : days)
        texts += ((day.state & STATE_SYSTEM_SELECTED) != 0 ? "today|" : "|") + day.value;
    EXPECT_EQ(texts, "|Exact||One, two = three|||Crème brûlée|日本語の予定|" + long_text + "|Second||today|" +
                         std::string(13, '|') + "Every year||||||Unquoted");
    EXPECT_EQ(days[11].name, "Wednesday 12th May 2027, today");
    EXPECT_EQ(Store(), "") << "a first run writes nothing";
    const std::vector<Item> headers = program.Items(ROLE_SYSTEM_COLUMNHEADER);
    ASSERT_EQ(headers.size(), 7U);
    EXPECT_EQ(headers.front().name + headers.back().name, "MondaySunday");
    EXPECT_EQ(days[30].place.left, headers[0].place.left);
    Save_Picture("month");
}

TEST_F(Dots, Places_And_Texts_Fit) {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    Set_Setting("Settings", "Bar Time", "True");
    Set_Setting("Settings", "Bar Time Format", "HH:mm");
    Set_Setting("Settings", "Bar Date Format", "Weekday - d month - yyyy");
    for (const char *style : {"0", "1"}) {
        Set_Clock(2027, 9, 29, 23, 50, 0); // its title is the widest; a minute is enough for one style
        Set_Setting("Settings", "Style", style);
        Write_Data("\"1/9/2027=Ågjqy ÅÅ 日本語, a text that needs more room than there is in its box or in "
                   "any other\"\r\n");
        Program &program = Start_Calendar();
        EXPECT_EQ(program.Title(), "23:50 - Wednesday 29th September - 2027");
        const std::vector<Item> days = program.Items(ROLE_SYSTEM_CELL);
        ASSERT_EQ(days.size(), 30U);
        const Picture picture = Save_Picture("style-" + std::string(style) + "-" + std::to_string(dots));
        EXPECT_EQ(days[0].place.right - days[0].place.left, dots);
        for (const Item &item : program.Items()) {
            if (item.name.ends_with(", today"))
                continue; // today's frame is at the edge
            RECT place = item.place;
            DWORD back = deep_blue;
            if (item.role == ROLE_SYSTEM_CELL) {
                EXPECT_EQ(picture.Colours(place, true), std::set<DWORD>{hairline}) << item.name;
                const int thickness = (dots + 95) / 96;
                InflateRect(&place, -thickness, -thickness);
                back = white;
            }
            EXPECT_EQ(picture.Colours(place, true), std::set<DWORD>{back}) << item.name << " is cut";
            EXPECT_GT(picture.Colours(place).size(), 2U) << item.name << " shows nothing";
        }
        Stop_All();
    }
}

} // namespace

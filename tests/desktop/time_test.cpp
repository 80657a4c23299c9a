// The program over time: midnight, idle time, and leaks by windows that open and close.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>

#include <functional>

namespace {

using Time = Desktop_Test;

TEST_F(Time, Date_Changes_While_It_Runs) {
    Set_Clock(2027, 5, 31, 23, 59, 0);
    Write_Data("\"31/5/2027=Last of May\"\r\n\"1/6/9999=First of June\"\r\n");
    const Program &program = Start();
    const auto title = [&] { return program.Title(); };
    const auto box = [&] { return program.Box(); };
    ASSERT_TRUE(Becomes(std::string("[Vellatro] Today: 5/31/2027\r\nLast of May"), box, 15000));
    program.Answer();
    ASSERT_TRUE(Becomes(std::string("31st May - 2027"), title));
    program.Do_Default("Previous month");
    ASSERT_TRUE(Becomes(std::string("April - 2027"), title));

    Set_Clock(2027, 5, 31, 23, 59, 58);
    // `still` is the time of the last request that returned the old title: a busy machine may answer late.
    SYSTEMTIME now{}, still{};
    ASSERT_TRUE(Becomes(std::string("1st June - 2027"), [&] {
        still = std::exchange(now, {});
        GetSystemTime(&now);
        return program.Title();
    }));
    EXPECT_TRUE(still.wHour == 23 || still.wSecond <= 2) << "too late";
    GetSystemTime(&now);
    EXPECT_EQ(now.wHour, 0) << "too early";
    ASSERT_TRUE(Becomes(std::string("[Vellatro] Today: 6/1/2027\r\nFirst of June"), box));
    program.Answer();
    EXPECT_EQ(program.Named("Tuesday 1st June 2027, today").value, "First of June");

    // The clock goes back. The alert waits until an open menu is closed.
    program.Click(program.Items(ROLE_SYSTEM_CELL).at(0).place, MOUSEEVENTF_RIGHTDOWN);
    ASSERT_TRUE(Wait_Until([&] { return program.Window("#32768") != nullptr; }));
    Set_Clock(2027, 5, 31, 12, 0, 0);
    EXPECT_FALSE(Wait_Until([&] { return !program.Box().empty(); }, 2500));
    program.Choose({VK_ESCAPE});
    ASSERT_TRUE(Becomes(std::string("[Vellatro] Today: 5/31/2027\r\nLast of May"), box));
    program.Answer();
    EXPECT_TRUE(Becomes(std::string("31st May - 2027"), title));
}

TEST_F(Time, Rests_While_Nothing_Happens) {
    Write_Data("\"1/5/2027=Text\"\r\n");
    const Program &program = Start_Calendar();
    Save_Picture("rest");
    // A repaint would erase a mark drawn over a box, and a read of the locked file would show an error.
    const RECT place = program.Named("Thursday 20th May 2027").place;
    const POINT mark{place.left + 20, place.bottom - 20};
    POINT in_window = mark;
    ScreenToClient(program.Calendar(), &in_window);
    const auto colour = [&] { return Picture().At(mark.x, mark.y); };
    const HDC dc = GetDC(program.Calendar());
    SetPixel(dc, in_window.x, in_window.y, RGB(255, 0, 0));
    ReleaseDC(program.Calendar(), dc);
    ASSERT_TRUE(Becomes(0xFF0000U, colour));
    const HANDLE held = CreateFileW(Data_Path().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const long ticks = program.Processor_Ticks();
    ASSERT_GT(ticks, 0);
    EXPECT_FALSE(Wait_Until([&] { return colour() != 0xFF0000U || !program.Box().empty(); }, 5000));
    EXPECT_LE(program.Processor_Ticks() - ticks, 2);
    // Both signs do appear after a repaint and a read.
    InvalidateRect(program.Calendar(), nullptr, FALSE);
    EXPECT_TRUE(Becomes(0xFFFFFFU, colour));
    program.Press(VK_F5);
    EXPECT_TRUE(
        Becomes(std::string("stop [Vellatro] Error loading in data file."), [&] { return program.Box(); }));
    CloseHandle(held);
}

TEST_F(Time, What_Opens_And_Closes_Leaves_Nothing_Behind) {
    Write_Data("\"8/5/2027=Held\"\r\n");
    Set_Setting("Settings", "Tooltips", "2");
    const Program &program = Start_Calendar();
    constexpr const char *day = "Saturday 8th May 2027";
    const POINT place = Middle(program.Named(day).place);
    POINT press = place; // moves, since two presses at one place make a double click
    WPARAM page = 0;     // of the settings, the next one each time
    const struct {
        const char *window;
        std::function<void()> open, close;
    } rows[] = {{"#32768", [&] { program.Open_Menu(place); }, [&] { program.Choose({VK_ESCAPE}); }},
                {"Vellatro_Balloon", [&] { Send_Mouse(press, MOUSEEVENTF_LEFTDOWN); },
                 [&] { Send_Mouse(press, MOUSEEVENTF_LEFTUP); }},
                {"Vellatro_Settings_Frm",
                 [&] {
                     const HWND tabs =
                         FindWindowExW(program.Open_Settings(), nullptr, WC_TABCONTROLW, nullptr);
                     SendMessageW(tabs, TCM_SETCURFOCUS, page++ % 8, 0);
                 },
                 [&] { PostMessageW(program.Window("Vellatro_Settings_Frm"), WM_CLOSE, 0, 0); }},
                {"Vellatro_Edit_Frm", [&] { program.Do_Default(day); },
                 [&] { PostMessageW(program.Window("Vellatro_Edit_Frm"), WM_CLOSE, 0, 0); }}};
    // Objects that the system creates once stop growing after some rounds; a leak does not.
    ::testing::AssertionResult same = ::testing::AssertionFailure();
    Program::Held before{};
    for (int round = 0; round < 80 && !same; ++round) {
        if (round % 10 == 0) {
            before = program.Holds();
            // Wine 10 leaks a GDI object for each window that is destroyed with a region, such as the
            // balloon. Measure this leak with ten bare windows, and allow as many.
            before[0] -= Gdi_Objects(GetCurrentProcess());
            for (int i = 0; i < 10; ++i) {
                const HWND bare =
                    CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, WC_STATICW, nullptr,
                                    WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
                SetWindowRgn(bare, CreateRectRgn(0, 0, 9, 9), FALSE);
                DestroyWindow(bare);
            }
            before[0] += Gdi_Objects(GetCurrentProcess());
        }
        press.x = place.x + round % 2 * 8;
        for (const auto &[window, open, close] : rows) {
            ASSERT_TRUE(program.Raise_Calendar(place))
                << "the calendar does not appear before " << window << " opens";
            open();
            ASSERT_TRUE(Wait_Until([&, name = window] { return program.Window(name) != nullptr; })) << window;
            close();
            ASSERT_TRUE(Wait_Until([&] { return program.Windows(true) == 1; })) << window;
        }
        for (const char *title : {"June - 2027", "12th May - 2027"}) {
            program.Do_Default(*title == 'J' ? "Next month" : "Previous month");
            ASSERT_TRUE(Becomes(std::string(title), [&] { return program.Title(); }));
        }
        if (round % 10 == 9)
            same = program.Holds_No_More_Than(before);
    }
    EXPECT_TRUE(same);
}

} // namespace

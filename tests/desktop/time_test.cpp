// The program over time: midnight, rest, and many changes of the month.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

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
    ASSERT_TRUE(Becomes(std::string("1st June - 2027"), title));
    SYSTEMTIME now;
    GetSystemTime(&now);
    EXPECT_EQ(now.wHour, 0) << "too early";
    EXPECT_LE(now.wSecond, 2) << "too late";
    ASSERT_TRUE(Becomes(std::string("[Vellatro] Today: 6/1/2027\r\nFirst of June"), box));
    program.Answer();
    EXPECT_EQ(program.Items(ROLE_SYSTEM_CELL).size(), 30U);
    EXPECT_EQ(program.Named("Tuesday 1st June 2027, today").value, "First of June");

    // Back. A menu goes first, as it has the mouse.
    program.Click(program.Items(ROLE_SYSTEM_CELL).at(0).place, MOUSEEVENTF_RIGHTDOWN);
    ASSERT_TRUE(Wait_Until([&] { return program.Window("#32768") != nullptr; }));
    Set_Clock(2027, 5, 31, 12, 0, 0);
    EXPECT_FALSE(Wait_Until([&] { return !program.Box().empty(); }, 2500));
    program.Choose({VK_ESCAPE});
    ASSERT_TRUE(Becomes(std::string("[Vellatro] Today: 5/31/2027\r\nLast of May"), box));
    program.Answer();
    EXPECT_TRUE(Becomes(std::string("31st May - 2027"), title));
    Set_Clock(2028, 2, 29, 12, 0, 0); // and far ahead
    ASSERT_TRUE(Becomes(std::string("29th February - 2028"), title));
    EXPECT_TRUE(Becomes(std::string("Tuesday 29th February 2028, today"),
                        [&] { return program.Items(ROLE_SYSTEM_CELL).back().name; }));
    EXPECT_EQ(program.Box(), "");
}

TEST_F(Time, Rests_While_Nothing_Happens) {
    Write_Data("\"1/5/2027=Text\"\r\n");
    const Program &program = Start_Calendar();
    Save_Picture("rest");
    // A mark over a box, made from outside, shows a repaint; a file that cannot be opened shows a reading.
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
    // Both signs would have shown.
    InvalidateRect(program.Calendar(), nullptr, FALSE);
    EXPECT_TRUE(Becomes(0xFFFFFFU, colour));
    program.Press(VK_F5);
    EXPECT_TRUE(
        Becomes(std::string("stop [Vellatro] Error loading in data file."), [&] { return program.Box(); }));
    CloseHandle(held);
}

/// What can be open while time goes on, and how a user opens and closes it.
class Opened : public Desktop_Test {
protected:
    struct Row {
        const char *window;
        std::function<void()> open, close;
    };
    void SetUp() override {
        Desktop_Test::SetUp();
        Write_Data("\"8/5/2027=Held\"\r\n");
        Set_Setting("Settings", "Tooltips", "2");
        program_ = &Start_Calendar();
        day_ = Middle(program_->Named(saturday).place);
    }
    /// There is the text that was typed, which goes into its own day.
    void Save_Typed() {
        EXPECT_EQ(Text_Of(GetDlgItem(program_->Window("Vellatro_Edit_Frm"), 102)), "HeldUnsaved");
        PostMessageW(GetDlgItem(program_->Window("Vellatro_Edit_Frm"), 104), BM_CLICK, 0, 0);
        EXPECT_TRUE(Becomes(std::string("\"8/5/2027=HeldUnsaved\"\r\n"), [this] { return Data(); }));
        Write_Data("\"8/5/2027=Held\"\r\n");
    }

    static constexpr const char *saturday = "Saturday 8th May 2027";
    const Program *program_ = nullptr;
    POINT day_{};
    const Row rows_[4] = {
        {"#32768", [this] { program_->Open_Menu(day_); }, [this] { program_->Choose({VK_ESCAPE}); }},
        {"Vellatro_Balloon", [this] { Send_Mouse(day_, MOUSEEVENTF_LEFTDOWN); },
         [this] { Send_Mouse(day_, MOUSEEVENTF_LEFTUP); }},
        {"Vellatro_Settings_Frm", [this] { program_->Open_Settings(); },
         [this] { PostMessageW(program_->Window("Vellatro_Settings_Frm"), WM_CLOSE, 0, 0); }},
        {"Vellatro_Edit_Frm",
         [this] {
             program_->Do_Default(saturday);
             const auto text = [this] { return GetDlgItem(program_->Window("Vellatro_Edit_Frm"), 102); };
             EXPECT_TRUE(Wait_Until([&] { return Has_Keyboard(text()); }));
             for (const char letter : std::string("Unsaved"))
                 PostMessageW(text(), WM_CHAR, static_cast<WPARAM>(letter), 1);
             EXPECT_TRUE(Becomes(std::string("HeldUnsaved"), [&] { return Text_Of(text()); }));
         },
         [this] { Save_Typed(); }}};
};

TEST_F(Opened, Leaves_Nothing_Behind) {
    // What the system makes once and keeps goes on for a while; a leak would go on for ever.
    ::testing::AssertionResult same = ::testing::AssertionFailure();
    Program::Held before{};
    for (int round = 0; round < 40 && !same; ++round) {
        if (round % 10 == 0)
            before = program_->Holds();
        for (const Row &row : rows_) {
            program_->Uncover(day_);
            row.open();
            ASSERT_TRUE(Wait_Until([&] { return program_->Window(row.window) != nullptr; })) << row.window;
            row.close();
            ASSERT_TRUE(Wait_Until([&] { return program_->Windows(true) == 1; })) << row.window;
        }
        for (const char *title : {"June - 2027", "12th May - 2027"}) {
            program_->Do_Default(*title == 'J' ? "Next month" : "Previous month");
            ASSERT_TRUE(Becomes(std::string(title), [this] { return program_->Title(); }));
        }
        if (round % 10 == 9)
            same = program_->Holds_No_More_Than(before);
    }
    EXPECT_TRUE(same);
}

TEST_F(Opened, Bears_Jumps_Of_The_Clock) {
    const struct {
        WORD year, month, day;
        const char *title;
        std::size_t days;
    } jumps[] = {{2027, 5, 13, "13th May - 2027", 31},
                 {2028, 2, 13, "13th February - 2028", 29},
                 {2026, 12, 31, "31st December - 2026", 31},
                 {2027, 5, 12, "12th May - 2027", 31}};
    for (const Row &row : rows_) {
        SCOPED_TRACE(row.window);
        const auto open = [&] {
            program_->Uncover(day_);
            row.open();
            return Wait_Until([&] { return program_->Window(row.window) != nullptr; });
        };
        ASSERT_TRUE(open());
        if (&row >= rows_ + 2)
            Send_Key(VK_MENU); // which opens no menu
        for (const auto &[year, month, day, title, days] : jumps) {
            Set_Clock(year, month, day, 12, 0, 0);
            const bool menu = row.window == rows_[0].window;
            if (menu) { // what the clock asks for waits for its end
                Sleep(1100);
                EXPECT_NE(program_->Title(), title);
                row.close();
            }
            ASSERT_TRUE(Becomes(std::string(title), [this] { return program_->Title(); }));
            EXPECT_TRUE(Becomes(days, [this] { return program_->Items(ROLE_SYSTEM_CELL).size(); }));
            ASSERT_TRUE(!menu || open());
        }
        row.close();
        ASSERT_TRUE(Wait_Until([&] { return program_->Windows(true) == 1; }));
        EXPECT_EQ(program_->Named(saturday).value.substr(0, 4), "Held");
    }
}

} // namespace

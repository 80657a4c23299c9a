// The settings dialog's list of all events and their statistics, by mouse and keyboard, on a file of sixty.
#include "tests/desktop/driver.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace {

// The page's controls.
constexpr int stats_opt = 110;
constexpr int sort_cbo = 113;
constexpr int events_lst = 115;
constexpr int countdown_lbl = 117;
constexpr int total_all_lbl = 119;
constexpr int month_count_lbl = 124;

struct Event {
    int year, month, day; ///< year 9999: every year
    std::string text;

    std::string Record() const {
        return "\"" + std::to_string(day) + "/" + std::to_string(month) + "/" + std::to_string(year) + "=" +
               text + "\"\r\n";
    }
    std::string Line() const {
        return std::to_string(month) + "/" + std::to_string(day) + "/" +
               std::to_string(year == 9999 ? 2027 : year) + (year == 9999 ? " (every year)  -  " : "  -  ") +
               text;
    }
};

// All the labels of the statistics, as worked out apart from the program.
const std::vector<std::string> counts = {"Total Events: 51",
                                         "Events This Year: 18",
                                         "No. Before Today: 27",
                                         "No. After Today: 23",
                                         "Jan: 2",
                                         "Feb: 2",
                                         "Mar: 3",
                                         "Apr: 3",
                                         "May: 4",
                                         "Jun: 2",
                                         "July: 1",
                                         "Aug: 2",
                                         "Sep: 2",
                                         "Oct: 3",
                                         "Nov: 2",
                                         "Dec: 1"};

class Events_Page : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        events_ = {{2027, 5, 12, "Today, once"}};
        for (int i = 0; i < 58; ++i)
            events_.push_back({i % 7 == 3 ? 9999 : 2026 + i / 20, 1 + i * 5 % 12, 1 + i * 11 % 28,
                               "No. " + std::to_string(i)});
        events_.push_back({9999, 5, 12, "Today = always"});
        Write_Data(Bytes());
        Set_Setting("Settings", "Show Alerts", "0");
        Set_Setting("Settings", "Settings Tab", "1");
        program_ = &Start_Calendar();
        dialog_ = program_->Open_Settings();
    }

    std::string Bytes() const {
        std::string bytes;
        for (const Event &event : events_)
            bytes += event.Record();
        return bytes;
    }
    /// The lines in the order of that place in Sort_Cbo.
    std::vector<std::string> Lines(int order) const {
        std::vector<Event> events = events_;
        if (order < 2)
            std::stable_sort(events.begin(), events.end(), [](const Event &a, const Event &b) {
                const auto key = [](const Event &event) {
                    return std::tuple(event.year == 9999 ? 2027 : event.year, event.month, event.day);
                };
                return key(a) < key(b);
            });
        if (order == 1)
            std::reverse(events.begin(), events.end());
        std::vector<std::string> lines;
        for (const Event &event : events)
            lines.push_back(event.Line());
        return lines;
    }
    HWND Part(int control) const { return GetDlgItem(dialog_, control); }
    std::vector<std::string> Listed() const {
        const HWND list = Part(events_lst);
        std::vector<std::string> lines(static_cast<std::size_t>(SendMessageA(list, LB_GETCOUNT, 0, 0)));
        for (std::size_t i = 0; i < lines.size(); ++i) {
            wchar_t line[200] = L""; // LB_GETTEXT takes no account of the asking process's kind of text
            SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(line));
            for (const wchar_t *letter = line; *letter; ++letter)
                lines[i] += static_cast<char>(*letter);
        }
        return lines;
    }
    void Double_Click_Line(const std::string &line) const {
        const std::vector<std::string> lines = Listed();
        const auto index = std::find(lines.begin(), lines.end(), line) - lines.begin();
        for (int i = 0; i < 3 && program_->Box().empty(); ++i) { // as in Click_On
            SendMessageA(Part(events_lst), LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
            const LRESULT row = index - SendMessageA(Part(events_lst), LB_GETTOPINDEX, 0, 0);
            const LRESULT height = SendMessageA(Part(events_lst), LB_GETITEMHEIGHT, 0, 0);
            POINT point{30, static_cast<LONG>(row * height + height / 2)};
            ClientToScreen(Part(events_lst), &point);
            constexpr DWORD down = MOUSEEVENTF_LEFTDOWN, up = MOUSEEVENTF_LEFTUP;
            for (const DWORD flags : {down, up, down, up})
                Send_Mouse(point, flags);
            Wait_Until([&] { return !program_->Box().empty(); }, 2000);
        }
    }
    ::testing::AssertionResult Counts(const std::vector<std::string> &expected) const {
        Click_On(Part(stats_opt), [&] { return IsWindowVisible(Part(total_all_lbl)) != FALSE; });
        return Becomes(expected, [this] {
            std::vector<std::string> labels;
            for (int i = 0; i < 4; ++i)
                labels.push_back(Text_Of(Part(total_all_lbl + i)));
            for (int i = 0; i < 12; ++i)
                labels.push_back(Text_Of(Part(month_count_lbl + i)));
            return labels;
        });
    }

    std::vector<Event> events_;
    Program *program_ = nullptr;
    HWND dialog_ = nullptr;
};

TEST_F(Events_Page, Lists_In_Three_Orders_And_Counts) {
    // The countdowns of the first line, of the fifth and of the last one.
    const std::array<std::string, 4> rows[] = {{"Ascending Date", "-496 days", "-372 days", "594 days"},
                                               {"Descending Date", "594 days", "498 days", "-496 days"},
                                               {"Date Added", "0 days", "-36 days", "0 days"}};
    for (int order = 0; order < 3; ++order) {
        const auto &[name, first, fifth, last] = rows[order];
        SCOPED_TRACE(name);
        if (order > 0) {
            Focus_On(Part(sort_cbo), 'B');
            Send_Key(VK_DOWN);
        }
        EXPECT_TRUE(Becomes(Lines(order), [&] { return Listed(); }));
        EXPECT_EQ(Text_Of(Part(sort_cbo)), name);
        Focus_On(Part(events_lst), 'E');
        const auto countdown = [&] { return Text_Of(Part(countdown_lbl)); };
        Send_Key(VK_HOME);
        EXPECT_TRUE(Becomes(first, countdown));
        for (int down = 0; down < 4; ++down)
            Send_Key(VK_DOWN);
        EXPECT_TRUE(Becomes(fifth, countdown));
        Send_Key(VK_END);
        EXPECT_TRUE(Becomes(last, countdown));
    }
    EXPECT_TRUE(Counts(counts));
    EXPECT_FALSE(IsWindowVisible(Part(events_lst)));
    EXPECT_EQ(Data(), Bytes());
}

TEST_F(Events_Page, Removes_On_Yes_Only) {
    const std::string question = "[Vellatro] Do you really want to remove the event..\r\n\r\n";
    for (const std::size_t place : {std::size_t{59}, std::size_t{30}}) { // yearly, beside today's; exact
        const std::string line = events_[place].Line();
        for (const WORD answer : {WORD{IDNO}, WORD{IDCANCEL}, WORD{IDYES}}) {
            SCOPED_TRACE(line + " " + std::to_string(answer));
            Double_Click_Line(line);
            ASSERT_EQ(program_->Box(), question + line);
            program_->Answer(answer);
            if (answer == IDYES)
                events_.erase(events_.begin() + static_cast<std::ptrdiff_t>(place));
            EXPECT_TRUE(Becomes(Lines(0), [&] { return Listed(); }));
            EXPECT_EQ(Data(), Bytes());
        }
    }
    EXPECT_EQ(program_->Named("Wednesday 12th May 2027, today").value, "Today, once");
    std::vector<std::string> left = counts;
    for (const auto &[label, text] : {std::pair(0, "Total Events: 50"),
                                      {1, "Events This Year: 17"},
                                      {3, "No. After Today: 22"},
                                      {5, "Feb: 1"},
                                      {8, "May: 3"}})
        left[static_cast<std::size_t>(label)] = text;
    EXPECT_TRUE(Counts(left));
}

} // namespace

// The settings dialog's list of all events and their statistics, by mouse and keyboard.
#include "tests/desktop/driver.h"

namespace {

// The page's controls.
constexpr int stats_opt = 110;
constexpr int sort_cbo = 113;
constexpr int events_lst = 115;
constexpr int countdown_lbl = 117;
constexpr int total_all_lbl = 119;

const std::string Today_Once = "5/12/2027  -  Today, once";
const std::string Always = "5/12/2027 (every year)  -  Today = always";
const std::string Past = "2/1/2026  -  Past";
const std::string Future = "12/28/2028  -  Future";

class Events_Page : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        Write_Data(bytes_);
        Set_Setting("Settings", "Show Alerts", "0");
        Set_Setting("Settings", "Settings Tab", "1");
        program_ = &Start_Calendar();
        dialog_ = program_->Open_Settings();
    }

    HWND Part(int control) const { return GetDlgItem(dialog_, control); }
    ::testing::AssertionResult Lists(const std::vector<std::string> &expected) const {
        return Becomes(expected, [this] {
            const HWND list = Part(events_lst);
            std::vector<std::string> lines(static_cast<std::size_t>(SendMessageA(list, LB_GETCOUNT, 0, 0)));
            for (std::size_t i = 0; i < lines.size(); ++i) {
                wchar_t line[200] = L""; // LB_GETTEXT takes no account of the asking process's kind of text
                SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(line));
                for (const wchar_t *letter = line; *letter; ++letter)
                    lines[i] += static_cast<char>(*letter);
            }
            return lines;
        });
    }
    void Double_Click_Line(int index) const {
        for (int i = 0; i < 3 && program_->Box().empty(); ++i) { // as in Click_On
            const LONG height = static_cast<LONG>(SendMessageA(Part(events_lst), LB_GETITEMHEIGHT, 0, 0));
            POINT point{30, index * height + height / 2};
            ClientToScreen(Part(events_lst), &point);
            constexpr DWORD down = MOUSEEVENTF_LEFTDOWN, up = MOUSEEVENTF_LEFTUP;
            for (const DWORD flags : {down, up, down, up})
                Send_Mouse(point, flags);
            Wait_Until([&] { return !program_->Box().empty(); }, 2000);
        }
    }
    /// The totals, and the counts of February and May.
    ::testing::AssertionResult Counts(const std::vector<std::string> &expected) const {
        Click_On(Part(stats_opt), [&] { return IsWindowVisible(Part(total_all_lbl)) != FALSE; });
        return Becomes(expected, [this] {
            std::vector<std::string> labels;
            for (const int label : {0, 1, 2, 3, 6, 9})
                labels.push_back(Text_Of(Part(total_all_lbl + label)));
            return labels;
        });
    }

    const std::string bytes_ = "\"12/5/2027=Today, once\"\r\n\"28/12/2028=Future\"\r\n\"1/2/2026=Past\"\r\n"
                               "\"12/5/9999=Today = always\"\r\n";
    Program *program_ = nullptr;
    HWND dialog_ = nullptr;
};

TEST_F(Events_Page, Lists_Counts_And_Removes_On_Yes_Only) {
    // The countdowns of the first line and of the last one.
    const struct {
        const char *name, *first, *last;
        std::vector<std::string> lines;
    } rows[] = {{"Ascending Date", "-465 days", "596 days", {Past, Today_Once, Always, Future}},
                {"Descending Date", "596 days", "-465 days", {Future, Always, Today_Once, Past}},
                {"Date Added", "0 days", "0 days", {Today_Once, Future, Past, Always}}};
    for (const auto &[name, first, last, lines] : rows) {
        SCOPED_TRACE(name);
        if (&name != &rows[0].name) {
            Focus_On(Part(sort_cbo), 'B');
            Send_Key(VK_DOWN);
        }
        EXPECT_TRUE(Lists(lines));
        EXPECT_EQ(Text_Of(Part(sort_cbo)), name);
        Focus_On(Part(events_lst), 'E');
        const auto countdown = [&] { return Text_Of(Part(countdown_lbl)); };
        for (const auto &[key, days] : {std::pair<WORD, const char *>{VK_HOME, first}, {VK_END, last}}) {
            Send_Key(key);
            EXPECT_TRUE(Becomes(std::string(days), countdown));
        }
    }
    for (const WORD answer : {WORD{IDNO}, WORD{IDCANCEL}, WORD{IDYES}}) {
        Double_Click_Line(3);
        ASSERT_EQ(program_->Box(), "[Vellatro] Do you really want to remove the event..\r\n\r\n" + Always);
        program_->Answer(answer);
        EXPECT_EQ(Data() == bytes_, answer != IDYES);
    }
    EXPECT_TRUE(Lists({Today_Once, Future, Past}));
    EXPECT_EQ(program_->Named("Wednesday 12th May 2027, today").value, "Today, once");
    EXPECT_TRUE(Counts({"Total Events: 3", "Events This Year: 1", "No. Before Today: 1", "No. After Today: 1",
                        "Feb: 0", "May: 1"}));
    EXPECT_FALSE(IsWindowVisible(Part(events_lst)));
}

} // namespace

// Hundreds of random clicks, keys and menu picks on the running program. Afterwards, back where it began, it
// holds no more objects of the system than before, and shows what is in its file.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

#include <algorithm>
#include <map>
#include <random>
#include <sstream>

namespace {

constexpr const char *this_month = "12th May - 2027";

class Random_Use : public Desktop_Test {
protected:
    int Upto(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    WORD One_Of(std::initializer_list<int> keys) {
        return static_cast<WORD>(keys.begin()[Upto(static_cast<int>(keys.size()))]);
    }
    HWND Editor() const { return program_->Window("Vellatro_Edit_Frm"); }
    HWND Settings() const { return program_->Window("Vellatro_Settings_Frm"); }
    HWND Menu() const { return program_->Window("#32768"); }

    /// Whatever came before has reached the program.
    void Sync() const {
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(program_->Calendar(), WM_NULL, 0, 0, SMTO_NORMAL, 5000, &answer);
    }

    /// For the keyboard may be anywhere.
    void Post(WPARAM key) const {
        PostMessageW(program_->Calendar(), WM_KEYDOWN, key, 1);
        PostMessageW(program_->Calendar(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    /// Not the last items of a menu, for one of them ends the program.
    void Use_Menu() {
        if (!Wait_Until([this] { return Menu() != nullptr; }, 2000))
            return;
        ++did_["menus"];
        for (int down = Upto(3); down > 0; --down)
            Send_Key(VK_DOWN);
        Send_Key(VK_RETURN);
        if (!Wait_Until([this] { return !Menu(); }, 500)) // with no item chosen
            program_->Choose({VK_ESCAPE});
    }

    void Answer_Box() {
        ++did_["boxes"];
        const HWND box = program_->Box_Window();
        WORD button = One_Of({IDYES, IDNO, IDCANCEL});
        if (!GetDlgItem(box, button)) // of the buttons that there are, the one with the least consequences
            button = GetDlgItem(box, IDOK) ? IDOK : IDNO;
        PostMessageW(box, WM_COMMAND, button, 0); // a key that was pressed before may be quicker
        EXPECT_TRUE(Wait_Until([box] { return !IsWindow(box); }));
    }

    void Use_Editor() {
        ++did_["editors"];
        if (Has_Keyboard(GetDlgItem(Editor(), 102)))
            Send_Text(Upto(8) == 0 ? "\"" : "text" + std::to_string(Upto(100)));
        Send_Key(One_Of({'Y', 'A'}), true);
        Send_Key(One_Of({VK_RETURN, VK_RETURN, VK_ESCAPE, VK_TAB, VK_BACK}));
    }

    void Use_Mouse() {
        RECT place{};
        GetWindowRect(program_->Calendar(), &place);
        const bool title = Upto(3) == 0;
        const POINT point{place.left + 30 + Upto(place.right - place.left - 60),
                          place.top + (title ? 5 + Upto(16) : Upto(place.bottom - place.top))};
        if (WindowFromPoint(point) != program_->Calendar())
            return;
        const int kind = Upto(8);
        // Not low on the screen, where the menu of a day opens over the mouse: its release may end the
        // program.
        const bool day = point.y > place.top + 60 && point.y < GetSystemMetrics(SM_CYSCREEN) - 130;
        const bool menu = kind == 0 && (title || day);
        Send_Mouse(point, menu ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN);
        if (kind == 1 && Wait_Until([this] { return program_->Window("Vellatro_Balloon") != nullptr; }, 500))
            ++did_["balloons"];
        Send_Mouse(point, menu ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP);
        if (menu)
            return Use_Menu();
        if (kind < 5)
            return;
        Send_Mouse(point, MOUSEEVENTF_LEFTDOWN); // the second of a double click
        Send_Mouse(point, MOUSEEVENTF_LEFTUP);
    }

    void Use_Key() {
        if (!Has_Keyboard(program_->Calendar()))
            return Use_Mouse();
        const WORD key = One_Of({VK_F1,   VK_F2,     VK_F3,     VK_F4, VK_F5,   VK_F8,    VK_F9,
                                 VK_F12,  VK_LEFT,   VK_RIGHT,  VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT,
                                 VK_HOME, VK_RETURN, VK_DELETE, 'M',   'Y',     VK_APPS});
        const bool menu = key == 'M' || key == 'Y' || key == VK_APPS;
        if (menu) // an item under the mouse would be the first, and the one after it may end the program
            Send_Mouse({GetSystemMetrics(SM_CXSCREEN) - 2, 2}, 0);
        Send_Key(key);
        if (menu)
            Use_Menu();
    }

    void Act() {
        Sync();
        if (program_->Box_Window())
            Answer_Box();
        else if (Menu())
            program_->Choose({VK_ESCAPE});
        else if (Settings())
            PostMessageW(Settings(), WM_CLOSE, 0, 0); // its pages are another matter
        else if (Editor() && Upto(3) > 0)
            Use_Editor();
        else if (Upto(3) == 0)
            Use_Key();
        else
            Use_Mouse();
    }

    /// Nothing open, this month, all of it, in the usual style.
    void Return() {
        EXPECT_TRUE(Wait_Until([this] {
            Sync();
            if (program_->Box_Window())
                Answer_Box();
            else if (Menu())
                program_->Choose({VK_ESCAPE});
            else if (Editor() || Settings())
                PostMessageW(Editor() ? Editor() : Settings(), WM_CLOSE, 0, 0);
            else
                return !Wait_Until([this] { return program_->Windows(true) != 1; }, 300);
            return false;
        })) << "something stays open";
        if (program_->Items().size() == 1)
            Post(VK_F12);
        if (Store().find("Style=0\n") != std::string::npos)
            Post(VK_F9);
        Post(VK_HOME);
        ASSERT_TRUE(Becomes(std::string(this_month), [this] { return program_->Title(); }));
        ASSERT_TRUE(Becomes(31U, [this] { return program_->Items(ROLE_SYSTEM_CELL).size(); }));
    }

    /// Each thing once, so that what is made at its first use is there.
    void Use_All() {
        for (const int key : {VK_F8, VK_F9, VK_F12, VK_F12, VK_F1})
            Post(static_cast<WPARAM>(key));
        EXPECT_TRUE(Wait_Until([this] { return program_->Box_Window() != nullptr; }));
        program_->Answer();
        program_->Do_Default("Monday 31st May 2027");
        EXPECT_TRUE(Wait_Until([this] { return Has_Keyboard(GetDlgItem(Editor(), 102)); }));
        Send_Text("\"");
        Send_Key(VK_RETURN);
        EXPECT_TRUE(Wait_Until([this] { return program_->Box_Window() != nullptr; }));
        program_->Answer();
        const POINT day = Middle(program_->Named("Sunday 2nd May 2027").place);
        EXPECT_TRUE(program_->Uncover(day));
        Send_Mouse(day, MOUSEEVENTF_LEFTDOWN);
        EXPECT_TRUE(Wait_Until([this] { return program_->Window("Vellatro_Balloon") != nullptr; }));
        Send_Mouse(day, MOUSEEVENTF_LEFTUP);
        Return();
    }

    /// The text that a day has by the file: of several records the last one's.
    std::string In_File(int day, int month) const {
        std::istringstream lines(Data());
        std::string text;
        for (std::string line; std::getline(lines, line);)
            for (const char *year : {"2027", "9999"}) {
                const std::string key =
                    "\"" + std::to_string(day) + "/" + std::to_string(month) + "/" + year + "=";
                if (line.starts_with(key))
                    text = line.substr(key.size(), line.size() - key.size() - 2);
            }
        return text;
    }

    std::mt19937 random_{20270512};
    std::map<std::string, int> did_;
    const Program *program_ = nullptr;
};

TEST_F(Random_Use, Leaves_Nothing_Behind) {
    std::string events;
    for (int day = 1; day <= 28; ++day)
        for (const char *month : {"/4/2027=", "/5/9999=", "/6/2027="})
            events += "\"" + std::to_string(day) + month + "An event\"\r\n";
    Write_Data(events);
    Set_Setting("Settings", "Show Alerts", "0");
    Set_Setting("Settings", "Tooltips", "2");
    Set_Setting("Settings", "Allow Dragging", "0"); // off the screen it could not be used any more
    program_ = &Start_Calendar();
    // What the system and the program make once and keep goes on for a while; a leak would go on for ever.
    const auto objects = [this] { return std::pair(program_->Gdi_Objects(), program_->Windows(false)); };
    std::pair<std::ptrdiff_t, std::ptrdiff_t> before;
    bool unchanged = false;
    int exits = 0;
    Use_All();
    for (int round = 0; round < 4 && !unchanged && !HasFatalFailure(); ++round) {
        did_.clear();
        before = objects();
        for (int i = 0; i < (round == 0 ? 150 : 500); ++i)
            if (!program_->Exit_Code(0))
                Act();
        if (const std::optional<DWORD> code = program_->Exit_Code(0)) {
            // A click can meet a menu that has just opened under it, and with it the item "Exit".
            ASSERT_EQ(*code, 0U) << "the program has broken off";
            ASSERT_LT(++exits, 3) << "the program ends and ends";
            program_ = &Start_Calendar();
            Use_All();
            round = -1;
            continue;
        }
        Return();
        unchanged = round > 0 && Wait_Until([&] { return objects() == before; }, 1000);
    }
    EXPECT_TRUE(unchanged) << ::testing::PrintToString(before) << ::testing::PrintToString(objects());
    for (const char *what : {"menus", "boxes", "editors"})
        EXPECT_GT(did_[what], 0) << what;
    EXPECT_NE(Data(), events);
    program_->Do_Default("Previous month");
    for (const int month : {4, 5, 6}) {
        const char *titles[] = {"April - 2027", this_month, "June - 2027"};
        ASSERT_TRUE(Becomes(std::string(titles[month - 4]), [this] { return program_->Title(); }));
        const std::vector<Item> days = program_->Items(ROLE_SYSTEM_CELL);
        for (std::size_t i = 0; i < days.size(); ++i)
            EXPECT_EQ(days[i].value, In_File(static_cast<int>(i) + 1, month)) << days[i].name;
        program_->Do_Default("Next month");
    }
}

} // namespace

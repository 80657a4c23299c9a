// The settings dialog: what Apply, OK, Cancel and the close box write and what they leave, what the calendar
// shows of it, and that fifty openings leave nothing behind. Its pages for events, themes and files are not
// here.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <map>
#include <sstream>

namespace {

using Stored = std::map<std::string, std::string>; // "Section/key", and "Run" of the machine
constexpr const wchar_t *run_key = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char *today = "Wednesday 12th May 2027, today";
constexpr const char *saturday = "Saturday 15th May 2027";
constexpr const char *alert = "A&lert me when a date Comes up";
constexpr const char *use_system = "Use System Colours";
enum Swatch { Today = -9, Normal = -7, Num = -5, Text = -3, Back = 2, Fore = 4 }; // from that option on

class Settings_Dialog : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, run_key, L"Vellatro");
        program = &Start_Calendar();
    }
    void TearDown() override {
        Desktop_Test::TearDown();
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, run_key, L"Vellatro");
    }

    static HWND Dialog() {
        const HWND window = FindWindowA("Vellatro_Settings_Frm", nullptr);
        return IsWindowVisible(window) ? window : nullptr;
    }
    /// By caption, or a control made after or before it.
    static HWND Part(const char *caption, int further = 0) {
        const HWND part = FindWindowExA(Dialog(), nullptr, "Button", caption);
        EXPECT_TRUE(part) << caption;
        return further == 0 ? part : GetDlgItem(Dialog(), GetDlgCtrlID(part) + further);
    }
    static HWND Tabs() { return FindWindowExA(Dialog(), nullptr, "SysTabControl32", nullptr); }
    static void Turn_To(int tab) { SendMessageA(Tabs(), TCM_SETCURFOCUS, static_cast<WPARAM>(tab - 1), 0); }
    static bool Ticked(const char *caption) { return SendMessageA(Part(caption), BM_GETCHECK, 0, 0) == 1; }
    static void Push(const char *caption) { SendMessageA(Part(caption), BM_CLICK, 0, 0); }
    static void Choose(HWND combo, const char *item) {
        ASSERT_GE(
            SendMessageA(combo, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(item)), 0);
        SendMessageA(Dialog(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(combo));
    }
    static void Click_At(HWND part, int right, int down) { // percent of its size
        RECT place{};
        GetClientRect(part, &place);
        for (const UINT message : {UINT{WM_LBUTTONDOWN}, UINT{WM_LBUTTONUP}})
            SendMessageA(part, message, 0, MAKELPARAM(place.right * right / 100, place.bottom * down / 100));
    }
    static void Colour(Swatch swatch, const char *name) {
        Click_At(Part(use_system, swatch), 50, 50);
        Choose(Part(use_system, 17), name);
    }
    static Stored All() {
        Stored values;
        std::string section;
        std::istringstream lines(Store());
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with('['))
                section = line.substr(line.rfind('\\') + 1, line.size() - line.rfind('\\') - 2) + "/";
            else
                values[section + line.substr(0, line.find('='))] = line.substr(line.find('=') + 1);
        char run[MAX_PATH + 1];
        DWORD size = sizeof run;
        if (RegGetValueA(HKEY_LOCAL_MACHINE, std::string(run_key, run_key + wcslen(run_key)).c_str(),
                         "Vellatro", RRF_RT_REG_SZ, nullptr, run, &size) == ERROR_SUCCESS)
            values["Run"] = run;
        return values;
    }
    /// Leaves a store without values behind, into which only what is saved comes.
    static void Forget() {
        Clear_Store();
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, run_key, L"Vellatro");
        EXPECT_EQ(All(), Stored());
    }
    /// Adds what is always written, with the values that it got last.
    void Apply(Stored written) {
        Forget();
        Click_On(Part("&Apply"), [] { return All().contains("Settings/Bar Date Format"); });
        for (auto &[key, value] : always)
            value = written.try_emplace(key, value).first->second;
        ASSERT_TRUE(Becomes(written, All));
    }
    /// 0xRRGGBB in the lower right corner, inside of a frame.
    static DWORD Pixel(const std::string &name) {
        const RECT place = program->Named(name).place;
        return Picture().At(place.right - 6, place.bottom - 6);
    }
    static ::testing::AssertionResult Painted(const std::string &name, DWORD colour) {
        return Becomes(colour, [&] { return Pixel(name); });
    }
    static std::string Value() { return Text_Of(Part(use_system, 11)); } ///< of the colour shown last
    std::string Executable() const {
        return std::string(Data_Path().begin(), Data_Path().end() - 12) + "vellatro.exe";
    }

    static inline const Program *program = nullptr;
    Stored always{{"Run", ""},
                  {"Settings/Use Other Display Mode", "False"},
                  {"Settings/Other Display Mode", "0"},
                  {"Settings/Style", "1"},
                  {"Settings/Alignment", "0"},
                  {"Settings/Bar Time", "False"},
                  {"Settings/Bar Time Format", "H:mm"},
                  {"Settings/Bar Date Format", "d Month - yyyy"}};
};

TEST_F(Settings_Dialog, Apply_Writes_What_Has_Changed) {
    program->Open_Settings();
    Apply({});
    Turn_To(2);
    Colour(Normal, "Yellow");
    Apply({{"Colours/Normal", "65535"}});
    ASSERT_TRUE(Painted(saturday, 0xFFFF00));
    Colour(Today, "Red");
    Apply({{"Colours/Today", "255"}});
    ASSERT_TRUE(Painted(today, 0xFF0000));
    Colour(Num, "Blue");
    Colour(Text, "Lime");
    Apply({{"Colours/Num", "16711680"}, {"Colours/Text", "65280"}});
    Colour(Fore, "White"); // as it is
    Colour(Back, "Blue");
    Apply({{"Colours/Back", "16711680"}});
    ASSERT_TRUE(Painted(program->Title(), 0x0000FF));
    Push(use_system);
    Apply({{"Colours/Menu Colour Source", "0"}});
    EXPECT_TRUE(Wait_Until([] { return Pixel(program->Title()) != 0x0000FF; }));
    Push("Use &Other Colours");
    Apply({{"Colours/Menu Colour Source", "1"}, {"Colours/Back", "16711680"}, {"Colours/Fore", "16777215"}});
    ASSERT_TRUE(Painted(program->Title(), 0x0000FF));
    Push("&Default Colours");
    Apply({{"Colours/Normal", "16777215"},
           {"Colours/Today", "16761024"},
           {"Colours/Num", "-2147483630"},
           {"Colours/Text", "-2147483630"},
           {"Colours/Back", "8390687"}});
    ASSERT_TRUE(Painted(saturday, 0xFFFFFF));
    Colour(Today, "Red");
    Click_At(Part(use_system, 8), 40, 60); // the palette
    ASSERT_TRUE(Wait_Until([] { return Value() != "255"; }));
    Apply({{"Colours/Today", Value()}});

    Turn_To(3);
    Push(alert);
    Push("Allow d&ragging when Manual Position is not selected");
    Push("Switch into &Compact Mode when not in use");
    Apply({{"Settings/Show Alerts", "0"}, {"Settings/Allow Dragging", "0"}, {"Settings/Auto Compact", "1"}});
    for (const std::string &value : {Executable(), std::string()}) {
        Push("Run at &Startup");
        Apply({{"Run", value}});
    }
    Push("&Time:");
    Choose(Part("&Time:", 2), "HH:mm");
    const HWND date = FindWindowExA(Part("&Time:", 4), nullptr, "Edit", nullptr);
    SendMessageA(date, EM_SETSEL, 0, -1);
    for (const char letter : std::string("mm/yyyy"))
        SendMessageA(date, WM_CHAR, static_cast<WPARAM>(letter), 0);
    Apply({{"Settings/Bar Time", "True"},
           {"Settings/Bar Time Format", "HH:mm"},
           {"Settings/Bar Date Format", "mm/yyyy"}});
    EXPECT_TRUE(Wait_Until([] {
        return program->Title().starts_with("10:3") && program->Title().ends_with(" - 05/2027");
    })) << program->Title();

    Turn_To(4);
    const RECT before = program->Named(saturday).place;
    Push("Thin Box");
    Apply({{"Settings/Style", "0"}});
    EXPECT_TRUE(Wait_Until([&] {
        const RECT place = program->Named(saturday).place;
        return place.bottom > place.top && place.bottom - place.top < before.bottom - before.top;
    }));
    Click_At(Part("&Manual position", 2), 10, 10); // the screen in small
    Apply({{"Settings/Alignment", "6"}});
    EXPECT_TRUE(Becomes(0L, [] { return program->Items().at(0).place.left; }));
    Push("&Manual position");
    Apply({{"Settings/Alignment", "7"}});

    Turn_To(5);
    Push("&Don't use Tooltips");
    Apply({{"Settings/Tooltips", "0"}});
    Push("Use '&Balloon' Tooltips");
    Apply({{"Settings/Tooltips", "2"}});
    Apply({});
    Save_Picture("settings");
}

TEST_F(Settings_Dialog, Only_Ok_And_Apply_Save) {
    const auto click = [](const char *button) { Click_On(Part(button), [] { return !Dialog(); }); };
    const struct {
        int tab;
        const char *seen; // of its page
        std::function<void()> close;
        bool saves;
    } rows[] = {{2, use_system, [&] { click("Cancel"); }, false},
                {8, nullptr, [] { PostMessageA(Dialog(), WM_CLOSE, 0, 0); }, false},
                {5, "&Don't use Tooltips", [] { Send_Key(VK_ESCAPE); }, false},
                {3, alert, [&] { click("OK"); }, true},
                {4, "Thin Box", [&] { Push("&Apply"), click("Cancel"); }, true}};
    bool alerts = true;
    program->Open_Settings();
    EXPECT_EQ(SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0), 3); // of a first run
    for (const auto &row : rows) {
        SCOPED_TRACE(row.tab);
        Turn_To(3);
        EXPECT_EQ(Ticked(alert), alerts);
        Push(alert);
        Turn_To(row.tab);
        Forget();
        row.close();
        ASSERT_TRUE(Wait_Until([] { return !Dialog(); }));
        Stored expected = row.saves ? always : Stored();
        if (row.saves)
            expected["Settings/Show Alerts"] = (alerts = !alerts) ? "1" : "0";
        if (row.saves)
            always["Run"] = Executable(); // the box is ticked by the empty value, too
        expected["Settings/Settings Tab"] = std::to_string(row.tab);
        EXPECT_TRUE(Becomes(expected, All));
        program->Open_Settings();
        EXPECT_EQ(SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0), row.tab - 1);
        for (const auto &other : rows)
            EXPECT_TRUE(!other.seen ||
                        (IsWindowVisible(FindWindowExA(Dialog(), nullptr, "Button", other.seen)) != FALSE) ==
                            (other.tab == row.tab))
                << other.seen;
    }
}

TEST_F(Settings_Dialog, Fifty_Openings_Leave_Nothing_Behind) {
    Program::Held before{};
    long memory = 0;
    // What the system makes once and keeps may come in the first fifty, too; a leak would go on for ever.
    bool unchanged = false;
    for (int round = 0; round < 4 && !unchanged && !HasFailure(); ++round) {
        before = program->Holds();
        memory = program->Private_Memory();
        for (int i = 0; i < (round == 0 ? 8 : 50) && !HasFailure(); ++i) { // each page once before it counts
            program->Open_Settings();
            Turn_To(i % 8 + 1);
            PostMessageA(Dialog(), WM_CLOSE, 0, 0);
            ASSERT_TRUE(Wait_Until([] { return !Dialog() && program->Windows(true) == 1; }));
        }
        // The process's memory swings by 2 MB and more under Wine, whatever the program does.
        unchanged =
            round > 0 && program->Holds_No_More_Than(before) && program->Private_Memory() <= memory + 4096;
    }
    EXPECT_TRUE(unchanged) << ::testing::PrintToString(before) << " and " << memory << " KB, then "
                           << ::testing::PrintToString(program->Holds()) << " and "
                           << program->Private_Memory();
}

} // namespace

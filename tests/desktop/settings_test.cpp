// The settings dialog: what each kind of control on its pages writes, and what the calendar shows of it. Its
// pages for events, themes and files are not here.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <map>
#include <sstream>

namespace {

using Stored = std::map<std::string, std::string>; // "Section/key", and "Run" of the machine
constexpr const wchar_t *run_key = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char *saturday = "Saturday 15th May 2027";
constexpr const char *alert = "A&lert me when a date Comes up";
constexpr const char *use_system = "Use System Colours";
constexpr int normal_swatch = -7; // from that option on

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
    /// 0xRRGGBB in the lower right corner.
    static ::testing::AssertionResult Painted(const std::string &name, DWORD colour) {
        return Becomes(colour, [&] {
            const RECT place = program->Named(name).place;
            return Picture().At(place.right - 6, place.bottom - 6);
        });
    }
    static std::string Value() { return Text_Of(Part(use_system, 11)); } ///< of the colour shown last
    std::string Executable() const {
        const std::wstring path = Path_Of(L"vellatro.exe");
        return {path.begin(), path.end()};
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

TEST_F(Settings_Dialog, Each_Kind_Of_Control_Reaches_The_Store_And_The_Calendar) {
    program->Open_Settings();
    EXPECT_EQ(SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0), 3); // of a first run
    Apply({});
    Turn_To(2);
    Click_At(Part(use_system, normal_swatch), 50, 50);
    Choose(Part(use_system, 17), "Yellow");
    Apply({{"Colours/Normal", "65535"}});
    ASSERT_TRUE(Painted(saturday, 0xFFFF00));
    Click_At(Part(use_system, 8), 40, 60); // the palette
    ASSERT_TRUE(Wait_Until([] { return Value() != "65535"; }));
    Apply({{"Colours/Normal", Value()}});
    Push(use_system);
    Apply({{"Colours/Menu Colour Source", "0"}});

    Turn_To(3);
    Push(alert);
    Apply({{"Settings/Show Alerts", "0"}});
    for (const std::string &value : {Executable(), std::string()}) {
        Push("Run at &Startup");
        Apply({{"Run", value}});
    }
    const HWND date = FindWindowExA(Part("&Time:", 4), nullptr, "Edit", nullptr);
    SendMessageA(date, EM_SETSEL, 0, -1);
    for (const char letter : std::string("mm/yyyy"))
        SendMessageA(date, WM_CHAR, static_cast<WPARAM>(letter), 0);
    Apply({{"Settings/Bar Date Format", "mm/yyyy"}});
    EXPECT_TRUE(Becomes(std::string("05/2027"), [] { return program->Title(); }));

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
    Save_Picture("settings");

    const std::pair<std::function<void()>, bool> ends[] = {
        {[] { PostMessageA(Dialog(), WM_CLOSE, 0, 0); }, false},
        {[] { Send_Key(VK_ESCAPE); }, false},
        {[] { Click_On(Part("OK"), [] { return !Dialog(); }); }, true}};
    for (const auto &[end, saves] : ends) {
        Turn_To(3);
        EXPECT_FALSE(SendMessageA(Part(alert), BM_GETCHECK, 0, 0));
        Push(alert);
        Forget();
        end();
        ASSERT_TRUE(Wait_Until([] { return !Dialog(); }));
        EXPECT_EQ(All()["Settings/Settings Tab"], "3");
        EXPECT_EQ(All()["Settings/Show Alerts"], saves ? "1" : "");
        program->Open_Settings();
        EXPECT_EQ(SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0), 2);
    }
}

} // namespace

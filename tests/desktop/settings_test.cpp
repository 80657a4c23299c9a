// The settings dialog: what each kind of control on its pages writes, and what the calendar shows of it. Its
// pages for events, themes and files are not here.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>

#include <functional>

namespace {

constexpr const wchar_t *run_key = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char *saturday = "Saturday 15th May 2027";
constexpr const char *alert = "A&lert me when a date Comes up";
constexpr const char *use_system = "Use System Colours";
constexpr int normal_swatch = -7; // from that option on

class Settings_Dialog : public Desktop_Test {
protected:
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
    static LRESULT Tab() { return SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0) + 1; }
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
    static bool Holds(const std::string &line) { return Store().find(line + "\n") != std::string::npos; }
    /// Until the store holds a line that it did not hold before.
    static void Apply(const std::string &line) {
        EXPECT_FALSE(Holds(line)) << line;
        Click_On(Part("&Apply"), [&] { return Holds(line); });
    }
    static std::wstring Run() {
        wchar_t text[MAX_PATH + 1] = L"";
        DWORD size = sizeof text;
        RegGetValueW(HKEY_LOCAL_MACHINE, run_key, L"Vellatro", RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }
};

TEST_F(Settings_Dialog, Each_Kind_Of_Control_Reaches_The_Store_And_The_Calendar) {
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, run_key, L"Vellatro");
    const Program &program = Start_Calendar();
    program.Open_Settings();
    EXPECT_EQ(Tab(), 4); // of a first run
    Turn_To(2);
    Click_At(Part(use_system, normal_swatch), 50, 50);
    Choose(Part(use_system, 17), "Yellow");
    Apply("Normal=65535");
    EXPECT_TRUE(Becomes(0xFFFF00U, [&] {
        const RECT place = program.Named(saturday).place;
        return Picture().At(place.right - 6, place.bottom - 6);
    }));
    Click_At(Part(use_system, 8), 40, 60); // the palette
    Apply("Normal=" + Text_Of(Part(use_system, 11)));
    Push(use_system);
    Apply("Menu Colour Source=0");

    Turn_To(3);
    Push(alert);
    Push("Run at &Startup");
    Apply("Show Alerts=0");
    EXPECT_EQ(Run(), Path_Of(L"vellatro.exe"));
    Push("Run at &Startup");
    const HWND date = FindWindowExA(Part("&Time:", 4), nullptr, "Edit", nullptr);
    SendMessageA(date, EM_SETSEL, 0, -1);
    for (const char letter : std::string("mm/yyyy"))
        SendMessageA(date, WM_CHAR, static_cast<WPARAM>(letter), 0);
    Apply("Bar Date Format=mm/yyyy");
    EXPECT_EQ(Run(), L"");
    EXPECT_TRUE(Becomes(std::string("05/2027"), [&] { return program.Title(); }));

    Turn_To(4);
    const RECT before = program.Named(saturday).place;
    Push("Thin Box");
    Apply("Style=0");
    EXPECT_TRUE(Wait_Until([&] {
        const RECT place = program.Named(saturday).place;
        return place.bottom > place.top && place.bottom - place.top < before.bottom - before.top;
    }));
    Click_At(Part("&Manual position", 2), 10, 10); // the screen in small
    Apply("Alignment=6");
    EXPECT_TRUE(Becomes(0L, [&] { return program.Items().at(0).place.left; }));
    Save_Picture("settings");

    const std::pair<std::function<void()>, const char *> ends[] = {
        {[] { PostMessageA(Dialog(), WM_CLOSE, 0, 0); }, "Show Alerts=0"},
        {[] { Send_Key(VK_ESCAPE); }, "Show Alerts=0"},
        {[] { Click_On(Part("OK"), [] { return !Dialog(); }); }, "Show Alerts=1"}};
    for (const auto &[end, stored] : ends) {
        Turn_To(3);
        EXPECT_FALSE(SendMessageA(Part(alert), BM_GETCHECK, 0, 0));
        Push(alert);
        end();
        ASSERT_TRUE(Wait_Until([] { return !Dialog(); }));
        EXPECT_TRUE(Holds(stored) && Holds("Settings Tab=3")) << Store();
        program.Open_Settings();
        EXPECT_EQ(Tab(), 3);
    }
}

} // namespace

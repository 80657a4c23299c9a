// The driver's mouse and keyboard: what a person does to the program and to its message boxes.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

namespace {

void Send_Key_Event(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

/// Over all others. Moved twice, as what stays in its place is not raised.
void Raise(HWND window) {
    for (const HWND place : {HWND_TOPMOST, HWND_NOTOPMOST})
        SetWindowPos(window, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

} // namespace

bool Has_Keyboard(HWND window) {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    return GetGUIThreadInfo(0, &state) && state.hwndFocus == window;
}

POINT Middle(const RECT &place) {
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

// Place and button in one event: what X tells late of an earlier place would move a mouse that is there
// already.
void Send_Mouse(const std::vector<std::pair<POINT, DWORD>> &steps) {
    std::vector<INPUT> inputs;
    for (const auto &[point, flags] : steps) {
        INPUT &input = inputs.emplace_back();
        input.type = INPUT_MOUSE;
        input.mi.dx = (point.x * 65536 + 65535) / GetSystemMetrics(SM_CXSCREEN);
        input.mi.dy = (point.y * 65536 + 65535) / GetSystemMetrics(SM_CYSCREEN);
        input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
    }
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void Send_Mouse(POINT point, DWORD flags) {
    Send_Mouse({{point, flags}});
}

void Send_Key(WORD key, bool with_alt) {
    if (with_alt)
        Send_Key_Event(VK_MENU, 0);
    Send_Key_Event(key, 0);
    Send_Key_Event(key, KEYEVENTF_KEYUP);
    if (with_alt)
        Send_Key_Event(VK_MENU, KEYEVENTF_KEYUP);
}

void Send_Text(std::string_view ascii) {
    for (const char letter : ascii)
        for (const DWORD flags : {0UL, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = static_cast<unsigned char>(letter);
            input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
            SendInput(1, &input, sizeof input);
        }
}

void Click_On(HWND window, const std::function<bool()> &done) {
    // Wine loses a click while X changes the focus, after a message box for instance.
    for (int i = 0; i < 3 && !done(); ++i) {
        RECT place{};
        EXPECT_TRUE(Wait_Until([&] {
            GetWindowRect(window, &place);
            const HWND seen = WindowFromPoint(Middle(place));
            // Wine may have raised the stand-in, see below.
            if (seen != window && GetAncestor(seen, GA_ROOT) == FindWindowA("Progman", nullptr))
                Raise(GetAncestor(window, GA_ROOT));
            return seen == window;
        })) << "there is nothing to click";
        Send_Mouse({{Middle(place), MOUSEEVENTF_LEFTDOWN}, {Middle(place), MOUSEEVENTF_LEFTUP}});
        Wait_Until(done, 2000);
    }
    EXPECT_TRUE(done()) << "no effect of a click";
}

void Program::Answer(WORD button) const {
    const HWND box = Box_Window();
    PostMessageW(box, WM_COMMAND, button, 0);
    EXPECT_TRUE(box && Wait_Until([box] { return !IsWindow(box); })) << "no box that takes an answer";
    // The program takes nothing else until it has seen the answer, and then it is back in its loop.
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(Calendar(), WM_NULL, 0, 0, SMTO_NORMAL, 2000, &answer);
}

bool Program::Uncover(POINT point) const {
    // Inside the stand-in the calendar is painted in its view only (see shell_standin.cpp). And a calendar
    // that is a window of its own may get below the stand-in, which on Windows nothing can: Wine raises the X
    // window of whatever gets the focus, without knowing it, and puts what X has found below the mouse, some
    // time ago, above the others. So both are asked.
    const HWND calendar = Calendar();
    const HWND standin = FindWindowA("Progman", nullptr);
    return Wait_Until([&] {
        DWORD_PTR answer = 0; // which comes after what X has told the stand-in
        SendMessageTimeoutW(standin, WM_NULL, 0, 0, SMTO_NORMAL, 2000, &answer);
        if (const HWND view = Shell_View(); GetAncestor(calendar, GA_PARENT) == GetAncestor(view, GA_PARENT))
            SetParent(calendar, view);
        if (Picture().At(point.x, point.y) != Bare_Screen->At(point.x, point.y) &&
            WindowFromPoint(point) == calendar)
            return true;
        if (GetAncestor(calendar, GA_PARENT) == GetDesktopWindow())
            Raise(calendar);
        else // what it paints during the move, and right after it, is lost now and then
            InvalidateRect(calendar, nullptr, FALSE);
        return false;
    });
}

void Program::Click(const RECT &place, DWORD button, int times) const {
    EXPECT_TRUE(Uncover(Middle(place))) << "there is nothing to click";
    std::vector<std::pair<POINT, DWORD>> steps;
    for (int i = 0; i < 2 * times; ++i) // the next bit is that of the button's release
        steps.push_back({Middle(place), button << (i % 2)});
    Send_Mouse(steps);
}

bool Program::Open_Menu(POINT place) const {
    const HWND calendar = Calendar();
    Send_Mouse({GetSystemMetrics(SM_CXSCREEN) - 2, 2}, 0); // the menu opens at the mouse
    ScreenToClient(calendar, &place);
    PostMessageW(calendar, WM_RBUTTONDOWN, 0, MAKELPARAM(place.x, place.y));
    return Wait_Until([this] { return Window("#32768") != nullptr; });
}

void Program::Choose(const std::vector<WORD> &keys) const {
    ASSERT_TRUE(Wait_Until([this] { return Window("#32768") != nullptr; })) << "no menu";
    // The menu takes them from any of its program's windows. This one has no other use for them: X, late with
    // the focus, takes a menu away now and then.
    for (const WORD key : keys)
        PostMessageW(FindWindowA("Vellatro_Broadcasts", nullptr), WM_KEYDOWN, key, 1);
    EXPECT_TRUE(Wait_Until([this] { return Window("#32768") == nullptr; })) << "the menu stays";
}

HWND Program::Open_Settings() const {
    HWND dialog = nullptr;
    for (int i = 0; i < 3 && !dialog; ++i) {
        std::vector<Item> days;
        EXPECT_TRUE(Wait_Until([&] { return !(days = Items(ROLE_SYSTEM_CELL, 1)).empty(); }));
        if (!days.empty() && Open_Menu(Middle(days[0].place)))
            Choose({VK_HOME, VK_DOWN, VK_DOWN, VK_RETURN}); // wherever the mouse is on the menu
        Wait_Until([&] { return (dialog = Window("Vellatro_Settings_Frm")) != nullptr; });
    }
    EXPECT_TRUE(Wait_Until([&] { return dialog && dialog == GetForegroundWindow(); })) << "no settings";
    return dialog;
}

void Program::Press(WORD key, bool with_alt) const {
    const HWND calendar = Calendar();
    const auto ready = [calendar] { return Has_Keyboard(calendar); };
    for (int i = 0; i < 3 && !ready(); ++i) { // as in Click_On; by far too slow for a double click
        Click(Named(Title()).place);
        Wait_Until(ready, 2000);
    }
    EXPECT_TRUE(ready()) << "no keyboard by a click";
    Send_Key(key, with_alt);
}

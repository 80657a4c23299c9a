// The driver's mouse and keyboard: what a person does to the program and to its message boxes.
#include "tests/desktop/driver.h"

#include <windows.h>

namespace {

void Send_Key_Event(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

} // namespace

POINT Middle(const RECT &place) {
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

// Place and button in one event: what X tells late of an earlier place would move a mouse that is there
// already.
void Send_Mouse(POINT point, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = (point.x * 65536 + 65535) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (point.y * 65536 + 65535) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
    SendInput(1, &input, sizeof input);
}

void Send_Key(WORD key) {
    Send_Key_Event(key, 0);
    Send_Key_Event(key, KEYEVENTF_KEYUP);
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

void Click_On(HWND window) {
    RECT place{};
    EXPECT_TRUE(Wait_Until([&] {
        return GetWindowRect(window, &place) && WindowFromPoint(Middle(place)) == window;
    })) << "there is nothing to click";
    Send_Mouse(Middle(place), MOUSEEVENTF_LEFTDOWN);
    Send_Mouse(Middle(place), MOUSEEVENTF_LEFTUP);
}

void Program::Answer(WORD button) const {
    const HWND box = Box_Window();
    PostMessageW(box, WM_COMMAND, button, 0);
    EXPECT_TRUE(box && Wait_Until([box] { return !IsWindow(box); })) << "no box that takes an answer";
}

bool Program::Uncover(POINT point) const {
    // Inside the stand-in the calendar is painted in its view only (see shell_standin.cpp). And a calendar
    // that is a window of its own may get below the stand-in, which on Windows nothing can: Wine raises the X
    // window of whatever gets the focus, without knowing it, and puts what X has found below the mouse, some
    // time ago, above the others. So both are asked, and the calendar is moved twice, as what stays in its
    // place is not raised.
    const HWND calendar = Calendar();
    const HWND standin = FindWindowA("Progman", nullptr);
    return Wait_Until([&] {
        DWORD_PTR answer = 0; // which comes after what X has told the stand-in
        SendMessageTimeoutW(standin, WM_NULL, 0, 0, SMTO_NORMAL, 2000, &answer);
        if (GetAncestor(calendar, GA_PARENT) == standin)
            SetParent(calendar, FindWindowExA(standin, nullptr, "SHELLDLL_DefView", nullptr));
        if (Picture().At(point.x, point.y) != Bare_Screen->At(point.x, point.y) &&
            WindowFromPoint(point) == calendar)
            return true;
        if (GetAncestor(calendar, GA_PARENT) == GetDesktopWindow())
            for (const HWND place : {HWND_TOPMOST, HWND_NOTOPMOST})
                SetWindowPos(calendar, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return false;
    });
}

void Program::Click(const RECT &place, DWORD button, int times) const {
    EXPECT_TRUE(Uncover(Middle(place))) << "there is nothing to click";
    for (int i = 0; i < times; ++i) {
        Send_Mouse(Middle(place), button);
        Send_Mouse(Middle(place), 2 * button); // the bit of its release
    }
}

void Program::Choose(std::initializer_list<WORD> keys) const {
    ASSERT_TRUE(Wait_Until([this] { return Window("#32768") != nullptr; })) << "no menu";
    for (const WORD key : keys)
        Send_Key(key);
    EXPECT_TRUE(Wait_Until([this] { return Window("#32768") == nullptr; })) << "the menu stays";
}

void Program::Press(WORD key, bool with_alt) const {
    const HWND calendar = Calendar();
    const auto has_keyboard = [calendar] {
        GUITHREADINFO state{};
        state.cbSize = sizeof state;
        return GetGUIThreadInfo(0, &state) && state.hwndFocus == calendar;
    };
    if (!has_keyboard())
        Click(Named(Title()).place);
    EXPECT_TRUE(Wait_Until(has_keyboard)) << "no keyboard by a click";
    if (with_alt)
        Send_Key_Event(VK_MENU, 0);
    Send_Key(key);
    if (with_alt)
        Send_Key_Event(VK_MENU, KEYEVENTF_KEYUP);
}

// The driver's mouse, keyboard, menus and answers to message boxes.
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

/// Raises the window above all others. Changes the window's place in the order twice, because Wine does not
/// raise a window whose place stays the same.
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

// Puts place and button into one event: otherwise a late X event about an earlier place could move the mouse
// in between.
void Send_Mouse(const std::vector<std::pair<POINT, DWORD>> &steps) {
    std::vector<INPUT> inputs;
    const DWORD now = GetTickCount();
    for (const auto &[point, flags] : steps) {
        INPUT &input = inputs.emplace_back();
        input.type = INPUT_MOUSE;
        input.mi.dx = (point.x * 65536 + 65535) / GetSystemMetrics(SM_CXSCREEN);
        input.mi.dy = (point.y * 65536 + 65535) / GetSystemMetrics(SM_CYSCREEN);
        input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
        input.mi.time = now;
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
    // Wine loses clicks while X changes the focus, for instance after a message box.
    for (int i = 0; i < 3 && !done(); ++i) {
        RECT place{};
        EXPECT_TRUE(Wait_Until([&] {
            GetWindowRect(window, &place);
            const HWND seen = WindowFromPoint(Middle(place));
            // Wine may have raised the stand-in: see Raise_Calendar.
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
    // Wait until the program has processed the answer and is back in its message loop.
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(Calendar(), WM_NULL, 0, 0, SMTO_NORMAL, 2000, &answer);
}

bool Program::Raise_Calendar(POINT point) const {
    // Inside the stand-in, Wine paints the calendar only as a child of the icon view (see shell_standin.cpp).
    // A top-level calendar may get below the stand-in, which cannot happen on Windows: Wine raises the X
    // window of whatever gets the focus, and the window that X last reported below the mouse. So check both
    // the pixel and the window at the point.
    const HWND standin = FindWindowA("Progman", nullptr);
    return Wait_Until([&] {
        DWORD_PTR answer = 0; // the stand-in has processed X's events when it answers
        SendMessageTimeoutW(standin, WM_NULL, 0, 0, SMTO_NORMAL, 2000, &answer);
        const HWND calendar = Calendar();
        if (!calendar) // it is not listed while it changes its parent
            return false;
        if (const HWND view = Shell_View(); GetAncestor(calendar, GA_PARENT) == GetAncestor(view, GA_PARENT))
            SetParent(calendar, view);
        if (Picture().At(point.x, point.y) != Bare_Screen->At(point.x, point.y) &&
            WindowFromPoint(point) == calendar)
            return true;
        if (GetAncestor(calendar, GA_PARENT) == GetDesktopWindow())
            Raise(calendar);
        else // Wine sometimes loses what the calendar paints during and right after the move
            InvalidateRect(calendar, nullptr, FALSE);
        return false;
    });
}

void Program::Click(const RECT &place, DWORD button, int times) const {
    EXPECT_TRUE(Raise_Calendar(Middle(place))) << "there is nothing to click";
    std::vector<std::pair<POINT, DWORD>> steps;
    for (int i = 0; i < 2 * times; ++i) // the next higher flag is the button's release
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
    // The menu receives keys posted to any window of its thread. The broadcast window ignores them if X, late
    // with the focus, has just closed the menu.
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
            Choose({VK_HOME, VK_DOWN, VK_DOWN, VK_RETURN}); // starts at the top, wherever the mouse is
        Wait_Until([&] { return (dialog = Window("Vellatro_Settings_Frm")) != nullptr; });
    }
    EXPECT_TRUE(Wait_Until([&] { return dialog && dialog == GetForegroundWindow(); })) << "no settings";
    return dialog;
}

void Program::Press(WORD key, bool with_alt) const {
    const HWND calendar = Calendar();
    const auto ready = [calendar] { return Has_Keyboard(calendar); };
    for (int i = 0; i < 3 && !ready(); ++i) { // repeated as in Click_On; too slow for a double click
        Click(Named(Title()).place);
        Wait_Until(ready, 2000);
    }
    EXPECT_TRUE(ready()) << "no keyboard by a click";
    Send_Key(key, with_alt);
}

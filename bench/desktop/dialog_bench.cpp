// Times the settings dialog: from its menu item until each page is painted, and from one tab to another. For
// comparison it times an empty dialog of the same size, which this program opens itself. Only a dialog that
// does not appear is a failure.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int rounds = 15;
constexpr int pages = 8;

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

void Paint(HWND dialog) {
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    SendMessageW(dialog, WM_NULL, 0, 0); // waits for painting that the dialog has begun by itself
}

INT_PTR CALLBACK Dialog_Procedure(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

/// Returns the milliseconds until an empty dialog with the given client area is painted.
double Open_Empty(const RECT &client) {
    const double begin = Milliseconds_Now();
    struct {
        DLGTEMPLATE head;
        WORD menu, window_class, title;
    } words{};
    words.head.style = WS_CAPTION | WS_SYSMENU | WS_POPUP;
    const HWND dialog =
        CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &words.head, nullptr, Dialog_Procedure, 0);
    SetWindowPos(dialog, nullptr, 0, 0, client.right, client.bottom, SWP_NOZORDER);
    ShowWindow(dialog, SW_SHOW);
    Paint(dialog);
    const double end = Milliseconds_Now();
    DestroyWindow(dialog);
    return end - begin;
}

class Dialogs : public Desktop_Test {
protected:
    static HWND Dialog() {
        const HWND dialog = FindWindowA("Vellatro_Settings_Frm", nullptr);
        return dialog && IsWindowVisible(dialog) ? dialog : nullptr;
    }
    /// Returns the milliseconds from the choice in the menu until the dialog is painted, or a negative number
    /// if no menu appears.
    static double Open(const Program &program) {
        const HWND calendar = program.Calendar();
        if (!program.Open_Menu(Middle(program.Items(ROLE_SYSTEM_CELL).at(0).place)))
            return -1;
        for (int i = 0; i < 2; ++i)
            PostMessageA(calendar, WM_KEYDOWN, VK_UP, 1);
        const double begin = Milliseconds_Now();
        PostMessageA(calendar, WM_KEYDOWN, VK_RETURN, 1);
        while (!Dialog() && Milliseconds_Now() - begin < 5000)
            Sleep(1);
        Paint(Dialog());
        return Milliseconds_Now() - begin;
    }
    static void Close() {
        PostMessageA(Dialog(), WM_CLOSE, 0, 0);
        EXPECT_TRUE(Wait_Until([] { return !Dialog(); }));
    }
};

TEST_F(Dialogs, Open_And_Turn) {
    Set_Setting("Settings", "Show Alerts", "0");
    const Program &program = Start_Calendar();
    std::vector<double> openings[pages], turns[pages], empty;
    RECT client{};
    for (int round = 0; round < rounds; ++round) {
        for (int page = 0; page < pages; ++page) {
            const double opened = Open(program); // opens at the last page shown
            ASSERT_TRUE(opened > 0 && Dialog());
            const HWND tabs = FindWindowExA(Dialog(), nullptr, "SysTabControl32", nullptr);
            const auto shown = SendMessageA(tabs, TCM_GETCURSEL, 0, 0);
            openings[shown].push_back(opened);
            GetClientRect(Dialog(), &client);
            const double begin = Milliseconds_Now();
            SendMessageA(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(page), 0);
            Paint(Dialog());
            turns[page].push_back(Milliseconds_Now() - begin);
            Close();
        }
        empty.push_back(Open_Empty(client));
    }
    std::printf("medians of %d, an empty dialog: %.0f ms\n", rounds, Median(empty));
    for (int page = 0; page < pages; ++page)
        std::printf("medians of %d, settings dialog, page %d: opened %.0f ms, turned to %.0f ms\n", rounds,
                    page + 1, Median(openings[page]), Median(turns[page]));
}

} // namespace

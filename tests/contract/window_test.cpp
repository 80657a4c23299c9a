// The contract of platform/forms.h about a window's place and about what a change shows and announces, and of
// message_loop.h about waiting input. These tests need Windows.
#ifdef _WIN32
#include "base/twips.h"
#include "platform/forms.h"
#include "platform/menu.h"
#include "platform/message_loop.h"
#include "platform/screen.h"
#include "tests/contract/contract.h"
#include "win32/broadcasts.h"

#include <commctrl.h>
#include <oleacc.h>

namespace {

struct Window_Contract : Contract_Test {
    Window_Contract() { model.kind = platform::Form_Kind::Painted, model.name = "Contract_Painted"; }
    platform::Form_Model model;
};

TEST_F(Window_Contract, Its_Place_Is_Where_It_Is_And_It_Can_Be_Put_Back) {
    const auto is_put = [this](int right = 0, int down = 0) {
        const auto pixels = [](int twips) { return Twips_To_Pixels(twips, platform::Dots_Per_Inch()); };
        return platform::Window_Corner(model) ==
               Point{pixels(model.bounds.left) + right, pixels(model.bounds.top) + down};
    };
    EXPECT_EQ(platform::Window_Corner(model), std::nullopt);
    for (const bool mirrored : {false, true}) { // the parent window, like the shell's
        model.bounds = {3000, 1500, 1500, 900};
        platform::Create_Mirror(model);
        EXPECT_TRUE(is_put());
        const HWND outer = CreateWindowExW(mirrored ? WS_EX_LAYOUTRTL : 0, L"Static", L"", WS_POPUP, 10, 20,
                                           700, 500, nullptr, nullptr, nullptr, nullptr);
        SetParent(FindWindowW(L"Vellatro_Contract_Painted", nullptr), outer);
        model.bounds.left += 600;
        platform::Form_Changed(model, platform::Aspect::Bounds);
        EXPECT_TRUE(is_put()) << mirrored;
        SetWindowPos(outer, nullptr, 50, 15, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        EXPECT_TRUE(is_put(40, -5)) << mirrored;
        platform::Form_Changed(model, platform::Aspect::Bounds);
        EXPECT_TRUE(is_put()) << mirrored;
        platform::Destroy_Mirror(model);
        DestroyWindow(outer);
    }
}

int values_told = 0;

void CALLBACK Hear_Value(HWINEVENTHOOK, DWORD, HWND, LONG, LONG, DWORD, DWORD) {
    ++values_told;
}

TEST_F(Window_Contract, Long_Work_Drops_Its_Input_And_Changes_Show_And_Are_Announced) {
    platform::Control_State part, part_above;
    part.access.role = part_above.access.role = platform::Access_Role::Cell;
    part.tooltip = "Tip";
    part.bounds = part_above.bounds = model.bounds = {0, 0, 1500, 900};
    model.controls = {&part, &part_above};
    model.focused = 0;
    model.visible = true;
    part_above.index = 1;
    std::vector<platform::Input_Kind> came;
    model.input = [&came](const platform::Input_Event &event) { came.push_back(event.kind); };
    model.kind = platform::Form_Kind::Floating;
    platform::Create_Mirror(model);
    const HWND window = FindWindowW(L"Vellatro_Contract_Painted", nullptr);
    EXPECT_TRUE(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST);
    for (const UINT message : {UINT{WM_KEYDOWN}, UINT{WM_CLOSE}, UINT{WM_LBUTTONDOWN}})
        PostMessageW(window, message, VK_F2, 0);
    platform::Paint_Waiting();
    platform::Process_Waiting_Messages();
    SendMessageW(window, WM_CONTEXTMENU, 0, -1);
    using enum platform::Input_Kind;
    EXPECT_EQ(came, (std::vector{Close, Key_Down, Key_Up}));
    IAccessible *accessible = nullptr;
    ASSERT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                         reinterpret_cast<void **>(&accessible)),
              S_OK);
    VARIANT focused = {}, hit = {};
    SetFocus(window);
    EXPECT_TRUE(accessible->get_accFocus(&focused) == S_OK && focused.lVal == 1);
    EXPECT_TRUE(accessible->accHitTest(5, 5, &hit) == S_OK && hit.lVal == 2) << "the upper part";
    SendMessageW(window, WM_MOUSEMOVE, 0, 0); // the first one makes the tips
    const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_VALUECHANGE, EVENT_OBJECT_VALUECHANGE, nullptr,
                                               Hear_Value, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    ValidateRect(window, nullptr);
    part.bounds.top = 600;
    part.access.value = "Lunch";
    platform::Control_Changed(model, part, platform::Aspect::Bounds, part_above.bounds);
    RECT dirty = {};
    EXPECT_TRUE(GetUpdateRect(window, &dirty, FALSE) && dirty.top == 0) << "the old place";
    platform::Process_Waiting_Messages();
    UnhookWinEvent(hook);
    EXPECT_EQ(std::exchange(values_told, 0), 1);
    TTTOOLINFOW tip = {TTTOOLINFOW_V1_SIZE, 0, window, 1, {}, nullptr, nullptr, 0, nullptr};
    SendMessageW(Own_Window(TOOLTIPS_CLASSW), TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tip));
    EXPECT_EQ(tip.rect.top, Twips_To_Pixels(600, platform::Dots_Per_Inch()));
    platform::Destroy_Mirror(model);
    EXPECT_EQ(accessible->get_accFocus(&focused), CO_E_OBJNOTCONNECTED);
    accessible->Release();
}

TEST_F(Window_Contract, A_Menu_Opens_In_Its_Place_And_What_Comes_Meanwhile_Waits) {
    int times_told = 0;
    RECT menu = {};
    model.bounds = {3000, 1500, 1500, 900};
    model.input = [&menu](const platform::Input_Event &) {
        GetWindowRect(Own_Window(L"#32768"), &menu);
        EndMenu();
    };
    platform::Create_Mirror(model);
    platform::Listen_To_Broadcasts([&times_told](platform::Broadcast what) {
        times_told += what == platform::Broadcast::Time_Changed;
        return true;
    });
    PostMessageW(win32::Broadcast_Window(), WM_TIMECHANGE, 0, 0);
    PostMessageW(Own_Window(L"Vellatro_Contract_Painted"), WM_CLOSE, 0, 0);
    const Point at = {600, 300};
    platform::Track_Popup_Menu(model, {{1, "Edit"}}, &at);
    EXPECT_TRUE(menu.top == Twips_To_Pixels(1800, platform::Dots_Per_Inch()) && times_told == 0);
    win32::Tick(0);
    EXPECT_EQ(times_told, 1);
    platform::Listen_To_Broadcasts({});
    platform::Destroy_Mirror(model);
    PostQuitMessage(0);
    platform::Paint_Waiting(), platform::Process_Waiting_Messages();
    MSG message = {};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the main loop sees it too";
}

} // namespace
#endif

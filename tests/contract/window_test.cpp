// The contract of platform/forms.h about a window's place, and of message_loop.h about waiting input.
#include "base/twips.h"
#include "platform/forms.h"
#include "platform/message_loop.h"
#include "platform/screen.h"
#include "tests/contract/contract.h"

#ifndef _WIN32
#include "tests/fakes/fake_forms.h"
#else
#include <oleacc.h>
#endif

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
#ifdef _WIN32
        const HWND outer = CreateWindowExW(mirrored ? WS_EX_LAYOUTRTL : 0, L"Static", L"", WS_POPUP, 10, 20,
                                           700, 500, nullptr, nullptr, nullptr, nullptr);
        SetParent(FindWindowW(L"Vellatro_Contract_Painted", nullptr), outer);
#endif
        model.bounds.left += 600;
        platform::Form_Changed(model, platform::Aspect::Bounds);
        EXPECT_TRUE(is_put()) << mirrored;
#ifdef _WIN32
        SetWindowPos(outer, nullptr, 50, 15, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
#else
        Desktop().mirrors.at(&model).displaced = {40, -5};
#endif
        EXPECT_TRUE(is_put(40, -5)) << mirrored;
        platform::Form_Changed(model, platform::Aspect::Bounds);
        EXPECT_TRUE(is_put()) << mirrored;
        platform::Destroy_Mirror(model);
#ifdef _WIN32
        DestroyWindow(outer);
#endif
    }
}

#ifdef _WIN32
TEST_F(Window_Contract, Long_Work_Drops_Its_Input_And_Assistive_Technology_Finds_Its_Parts) {
    platform::Control_State part, part_above;
    part.access.role = part_above.access.role = platform::Access_Role::Cell;
    part.bounds = part_above.bounds = model.bounds = {0, 0, 1500, 900};
    model.controls = {&part, &part_above};
    model.focused = 0;
    part_above.index = 1;
    std::vector<platform::Input_Kind> came;
    model.input = [&came](const platform::Input_Event &event) { came.push_back(event.kind); };
    platform::Create_Mirror(model);
    const HWND window = FindWindowW(L"Vellatro_Contract_Painted", nullptr);
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
    VARIANT children[3] = {}, focused = {}, hit = {};
    long count = 0;
    EXPECT_TRUE(AccessibleChildren(accessible, 0, 3, children, &count) == S_FALSE && count == 2);
    SetFocus(window);
    EXPECT_TRUE(accessible->get_accFocus(&focused) == S_OK && focused.lVal == 1);
    EXPECT_TRUE(accessible->accHitTest(5, 5, &hit) == S_OK && hit.lVal == 2) << "the upper part";
    platform::Destroy_Mirror(model);
    EXPECT_EQ(AccessibleChildren(accessible, 0, 3, children, &count), CO_E_OBJNOTCONNECTED);
    accessible->Release();
}
#endif

} // namespace

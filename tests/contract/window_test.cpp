// Where a form's window is, whoever moved it.
#include "platform/forms.h"
#include "platform/screen.h"
#include "platform/twips.h"
#include "tests/contract/contract.h"

#ifndef _WIN32
#include "tests/fakes/fake_forms.h"
#endif

namespace {

using platform::Point;

class Window_Contract : public Contract_Test {
protected:
    Window_Contract() {
        model_.kind = platform::Form_Kind::Painted;
        model_.name = "Contract_Painted";
        model_.bounds = {3000, 1500, 1500, 900};
    }
    ~Window_Contract() override { platform::Destroy_Mirror(model_); }

#ifdef _WIN32
    /// The window is in another one, as the shell's desktop is, and that moves. Its own place in there stays.
    void Move_Around_It(Point pixels, bool mirrored) {
        const HWND parent = CreateWindowExW(mirrored ? WS_EX_LAYOUTRTL : 0, L"Static", L"", WS_POPUP, 10, 20,
                                            700, 500, nullptr, nullptr, nullptr, nullptr);
        parents_.emplace_back(parent, DestroyWindow);
        SetParent(FindWindowW(L"Vellatro_Contract_Painted", nullptr), parent);
        platform::Form_Changed(model_, platform::Aspect::Bounds);
        EXPECT_EQ(platform::Window_Corner(model_), Put()) << "the first time in there";
        SetWindowPos(parent, nullptr, 10 + pixels.x, 20 + pixels.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    std::vector<std::unique_ptr<HWND__, decltype(&DestroyWindow)>> parents_;
#else
    void Move_Around_It(Point pixels, bool) {
        Desktop().mirrors.at(&model_).displaced = pixels;
    }
#endif

    Point Put() const {
        const auto pixels = [](int twips) {
            return platform::Twips_To_Pixels(twips, platform::Dots_Per_Inch());
        };
        return {pixels(model_.bounds.left), pixels(model_.bounds.top)};
    }

    platform::Form_Model model_;
};

TEST_F(Window_Contract, Its_Place_Is_Where_It_Is_And_It_Can_Be_Put_Back) {
    EXPECT_EQ(platform::Window_Corner(model_), std::nullopt);
    for (const bool mirrored : {false, true}) {
        SCOPED_TRACE(mirrored);
        platform::Create_Mirror(model_);
        EXPECT_EQ(platform::Window_Corner(model_), Put());
        model_.bounds.left += 600;
        platform::Form_Changed(model_, platform::Aspect::Bounds);
        EXPECT_EQ(platform::Window_Corner(model_), Put());
        Move_Around_It({40, -5}, mirrored);
        EXPECT_EQ(platform::Window_Corner(model_), (Point{Put().x + 40, Put().y - 5}));
        platform::Form_Changed(model_, platform::Aspect::Bounds);
        EXPECT_EQ(platform::Window_Corner(model_), Put());
        platform::Destroy_Mirror(model_);
    }
}

} // namespace

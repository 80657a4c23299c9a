// The calendar beside the shell's view of icons: where the shell has it at the start and moves it later.
#include "tests/desktop/driver.h"

namespace {

class View : public Desktop_Test {
protected:
    void TearDown() override {
        Desktop_Test::TearDown();
        Stop_All();
        Exchange_Shell(L"");
    }

    /// What is wrong with the calendar's window beside the view; empty: nothing.
    static std::string Wrong_With(HWND calendar, POINT place) {
        const HWND view = Shell_View();
        const HWND holder = GetAncestor(view, GA_PARENT);
        HWND above = view;
        while (above && above != calendar)
            above = GetWindow(above, GW_HWNDPREV);
        RECT now{};
        GetWindowRect(calendar, &now);
        const bool raised = GetWindowLongW(holder, GWL_EXSTYLE) & 0x00200000;
        const bool layered = GetWindowLongW(calendar, GWL_EXSTYLE) & WS_EX_LAYERED;
        BYTE alpha = 0;
        GetLayeredWindowAttributes(calendar, nullptr, &alpha, nullptr);
        return !IsWindowVisible(calendar)                            ? "it is not visible"
               : !view || GetAncestor(calendar, GA_PARENT) != holder ? "it is not beside the view"
               : !above                                              ? "it is below the view"
               : now.left != place.x || now.top != place.y
                   ? "it is at " + std::to_string(now.left) + ", " + std::to_string(now.top)
               : layered != raised || (layered && alpha != 255) ? "it has the wrong surface"
                                                                : "";
    }
};

TEST_F(View, Is_Where_The_Calendar_Is) {
    const struct {
        const wchar_t *options;
        std::string_view letters; // of the stand-in, one after the other
    } cases[] = {{L"", "wpaw"},      {L"--do=w", "px"}, {L"--late", "a"},   {L"", "ll"},
                 {L"--do=l", "wpl"}, {L"--do=m", "lm"}, {L"--do=b", "bbwp"}};
    for (const auto &[options, letters] : cases) {
        Stop_All();
        Exchange_Shell(options);
        const Program &program = Start();
        ASSERT_TRUE(Wait_Until([&] { return program.Calendar() != nullptr; }, 15000));
        const bool late = std::wstring_view(options) == L"--late";
        // At the bottom right, by the last of six weeks.
        RECT size{};
        GetWindowRect(program.Calendar(), &size);
        const POINT place{GetSystemMetrics(SM_CXSCREEN) - (size.right - size.left), size.top};
        for (std::size_t i = 0; i <= letters.size(); ++i) {
            SCOPED_TRACE(std::string(options, options + std::wcslen(options)) + ", " +
                         std::string(letters.substr(0, i)));
            if (i > 0) {
                SetParent(program.Calendar(), GetAncestor(Shell_View(), GA_PARENT)); // see Uncover
                PostMessageW(FindWindowW(L"Progman", nullptr), WM_APP, static_cast<WPARAM>(letters[i - 1]),
                             0);
                Sleep(50);
            }
            const DWORD patience = i == 0 && late ? 5000 : 2000;
            ASSERT_TRUE(Becomes(
                std::string(), [&] { return Wrong_With(program.Calendar(), place); }, patience));
            if (i == 0)
                ASSERT_TRUE(Wait_Until([&] { return program.Windows(true) == 1; }))
                    << "the splash window stays";
            EXPECT_TRUE(program.Uncover(Middle(program.Named("Sunday").place))) << "it is not seen";
        }
    }
}

} // namespace

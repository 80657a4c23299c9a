// The calendar inside the shell's desktop: its parent, colours and region, and its end and return with the
// shell. The tests replace the stand-in for the shell with others.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

#include <algorithm>

namespace {

class Attachment : public Desktop_Test {
protected:
    void TearDown() override {
        Desktop_Test::TearDown();
        Stop_All();
        Exchange_Shell(L"");
    }

    /// Sends the stand-in a letter for one of its actions, as listed in shell_standin.cpp.
    static void Tell_Shell(char letter) {
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(FindWindowW(L"Progman", nullptr), WM_APP, static_cast<WPARAM>(letter), 0,
                            SMTO_NORMAL, 5000, &answer);
    }

    /// Describes where the calendar's window is relative to the icon view.
    static std::string Place_Of(HWND calendar) {
        const HWND view = Shell_View(), holder = GetAncestor(view, GA_PARENT);
        HWND above = view;
        while (above && above != calendar)
            above = GetWindow(above, GW_HWNDPREV);
        RECT now{};
        GetWindowRect(calendar, &now);
        BYTE alpha = 0;
        GetLayeredWindowAttributes(calendar, nullptr, &alpha, nullptr);
        const bool raised = GetWindowLongW(holder, GWL_EXSTYLE) & 0x00200000;
        const bool layered = GetWindowLongW(calendar, GWL_EXSTYLE) & WS_EX_LAYERED;
        return std::string(view && GetAncestor(calendar, GA_PARENT) == holder ? "inside" : "outside") +
               (above ? ", above" : ", below") +
               (raised == layered && (!layered || alpha == 255) ? "" : ", without a surface") + " at " +
               std::to_string(now.left) + ", " + std::to_string(now.top);
    }

    /// Expects the window's region to match the items to the pixel, and the bare desktop around them.
    static void Is_Only_Its_Items(const Program &program) {
        const std::vector<Item> items = program.Items();
        RECT window{};
        GetWindowRect(program.Calendar(), &window);
        const HRGN region = CreateRectRgn(0, 0, 0, 0);
        const HRGN expected = CreateRectRgn(0, 0, 0, 0);
        for (const auto &[role, state, name, value, action, place] : items) {
            const HRGN part = CreateRectRgn(place.left - window.left, place.top - window.top,
                                            place.right - window.left, place.bottom - window.top);
            CombineRgn(expected, expected, part, RGN_OR);
            DeleteObject(part);
        }
        EXPECT_NE(GetWindowRgn(program.Calendar(), region), ERROR);
        EXPECT_TRUE(EqualRgn(region, expected)) << items.size() << " items";
        DeleteObject(region);
        DeleteObject(expected);
        EXPECT_TRUE(Wait_Until([&] {
            std::vector<DWORD> outside = Picture().pixels;
            for (const Item &item : items)
                for (LONG y = item.place.top; y < item.place.bottom; ++y) {
                    const LONG line = y * Bare_Screen->width;
                    std::copy(&Bare_Screen->pixels[static_cast<std::size_t>(line + item.place.left)],
                              &Bare_Screen->pixels[static_cast<std::size_t>(line + item.place.right)],
                              &outside[static_cast<std::size_t>(line + item.place.left)]);
                }
            return outside == Bare_Screen->pixels;
        })) << "something is painted beside the items";
    }
};

TEST_F(Attachment, Takes_Place_And_Colours_From_What_There_Is_Of_The_Shell) {
    const struct {
        const wchar_t *options;
        bool inside, splash;
        DWORD back, text;
    } cases[] = {
        {L"--back=336699 --text=F0E010", true, true, 0x336699, 0xF0E010},
        {L"--back=none --text=F0E010", true, true, 0x4B4B4B, 0xF0E010},
        {L"--no-list", false, true, 0, 0},
        {L"--no-view", false, true, 0, 0},
        {L"--no-shell", false, false, 0, 0},
    };
    Set_Setting("Colours", "Menu Colour Source", "0");
    for (const auto &[options, inside, splash, back, text] : cases) {
        SCOPED_TRACE(std::string(options, options + std::wcslen(options)));
        Stop_All();
        Exchange_Shell(options);
        const Program &program = Start();
        bool splash_seen = false;
        ASSERT_TRUE(Wait_Until(
            [&] {
                const bool there = program.Calendar() != nullptr; // the splash window appears first
                splash_seen = splash_seen || program.Window("Vellatro_Splash");
                return there;
            },
            15000));
        EXPECT_EQ(splash_seen, splash);
        // If the stand-in answers late, the calendar moves into it later.
        EXPECT_TRUE(Becomes(inside ? FindWindowA("Progman", "Program Manager") : GetDesktopWindow(),
                            [&] { return GetAncestor(program.Calendar(), GA_PARENT); }));
        ASSERT_TRUE(Wait_Until([&] { return program.Windows(true) == 1; })) << "the splash window stays";
        const RECT title = program.Named(program.Title()).place;
        ASSERT_TRUE(program.Raise_Calendar(Middle(program.Named("Sunday").place)));
        ASSERT_TRUE(Becomes(back, [&] { return Picture().At(title.left + 4, title.bottom - 4); }));
        const std::set<DWORD> colours = Picture().Colours(title);
        EXPECT_TRUE(colours.contains(text)) << "the title's text has not the colour of the icons' texts";
        EXPECT_EQ(colours.size() > 1, text != back);
        Is_Only_Its_Items(program);
        program.Do_Default("Next month"); // June has one row of boxes less
        ASSERT_TRUE(Becomes(std::string("June - 2027"), [&] { return program.Title(); }));
        Is_Only_Its_Items(program);
    }
}

TEST_F(Attachment, Follows_The_View_Of_Icons) {
    const struct {
        const wchar_t *options;
        std::string_view letters; // sent to the stand-in one by one
    } cases[] = {{L"", "wpawpll"},   {L"--do=w", "px"}, {L"--late", ""},
                 {L"--do=l", "wpl"}, {L"--do=m", "lm"}, {L"--do=b", "bbwp"}};
    std::string place; // the first place, which all later ones must equal
    POINT header{};
    for (const auto &[options, letters] : cases) {
        Stop_All();
        Exchange_Shell(options);
        const Program &program = Start();
        ASSERT_TRUE(Wait_Until([&] { return program.Calendar() && Shell_View(); }, 15000));
        for (std::size_t i = 0; i <= letters.size(); ++i) {
            SCOPED_TRACE(std::string(options, options + std::wcslen(options)) + ", " +
                         std::string(letters.substr(0, i)));
            if (i > 0) {
                // Undo the move by Raise_Calendar.
                SetParent(program.Calendar(), GetAncestor(Shell_View(), GA_PARENT));
                Tell_Shell(letters[i - 1]);
            }
            // During the move, the calendar is inside before it is above the view.
            if (place.empty() && Wait_Until([&] {
                    return (place = Place_Of(program.Calendar())).starts_with("inside, above at ");
                })) {
                // Look far to the right: Wine 10 cuts off the calendar's left by the offset of the desktop's
                // origin.
                header = Middle(program.Named("Saturday").place);
            }
            ASSERT_TRUE(Becomes(place, [&] { return Place_Of(program.Calendar()); }));
            EXPECT_TRUE(program.Raise_Calendar(header)) << "it is not seen";
        }
    }
    EXPECT_TRUE(place.starts_with("inside, above at ")) << place;
    Stop_All();
    // The calendar follows at once: by the clock's tick alone, each step after the first would take a second.
    // A busy machine may delay some of them as long, so look at the fastest step in either direction.
    const Program &program = Start_Calendar();
    double now = 0, fastest[2] = {1000, 1000};
    for (const char letter : std::string_view("wpwpwp")) {
        Tell_Shell(letter);
        EXPECT_TRUE(Becomes(GetAncestor(Shell_View(), GA_PARENT),
                            [&] { return GetAncestor(program.Calendar(), GA_PARENT); }));
        const double before = std::exchange(now, Milliseconds_Now());
        fastest[letter == 'p'] = std::min(fastest[letter == 'p'], now - before);
    }
    EXPECT_LT(std::max(fastest[0], fastest[1]), 500);
}

TEST_F(Attachment, Comes_Back_With_The_Next_Shell_And_Asks_For_The_Users_Text_First) {
    const auto windows = [](const Program &program) {
        return [&program] { return program.Exit_Code(0) ? -1 : program.Windows(true); };
    };
    const auto loses_shell_with_text = [](const Program &program) {
        program.Do_Default("Saturday 1st May 2027");
        const auto editor = [&program] { return program.Window("Vellatro_Edit_Frm"); };
        ASSERT_TRUE(Wait_Until([&] { return editor() != nullptr; }));
        SendMessageA(GetDlgItem(editor(), 102), EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("kept"));
        ASSERT_TRUE(Wait_Until([&] { return Text_Of(GetDlgItem(editor(), 102)) == "kept"; }));
        Kill_Shell();
        ASSERT_TRUE(Becomes(std::string("[Desktop Wallpaper] Save changes for the Saturday 1st May 2027?"),
                            [&program] { return program.Box(); }));
    };
    const Program &first = Start_Calendar();
    loses_shell_with_text(first);
    first.Answer(IDNO);
    EXPECT_TRUE(Becomes(std::ptrdiff_t{0}, windows(first)));
    Exchange_Shell(L"");
    EXPECT_EQ(first.Exit_Code(), 0U);
    const Program &next = Calendar_Inside();
    ASSERT_TRUE(Becomes(std::ptrdiff_t{1}, windows(next))) << "the splash window stays";
    loses_shell_with_text(next);
    next.Answer(IDCANCEL);
    // 104 is the OK button. Until it is clicked, only the editor keeps the program running.
    Click_On(GetDlgItem(next.Window("Vellatro_Edit_Frm"), 104), [&] { return windows(next)() == 0; });
    EXPECT_EQ(Data(), "\"1/5/2027=kept\"\r\n");
    PostMessageA(FindWindowA("Vellatro_Broadcasts", nullptr), WM_CLOSE, 0, 0);
    EXPECT_EQ(next.Exit_Code(), 0U);
}

} // namespace

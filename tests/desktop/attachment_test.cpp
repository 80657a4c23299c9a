// The calendar inside the shell's desktop: whose child it is, its colours and its region there, and its end
// with the shell, which other stand-ins take the place of.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

#include <algorithm>
#include <set>

namespace {

class Attachment : public Desktop_Test {
protected:
    void TearDown() override {
        Desktop_Test::TearDown();
        Stop_All();
        Exchange_Shell(L"");
    }

    /// The window's region is that of the items, to the pixel, and around them there is the wallpaper.
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
                const bool there = program.Calendar() != nullptr; // the splash window comes first and stays
                splash_seen = splash_seen || program.Window("Vellatro_Splash");
                return there;
            },
            15000));
        EXPECT_EQ(splash_seen, splash);
        EXPECT_EQ(GetAncestor(program.Calendar(), GA_PARENT),
                  inside ? FindWindowA("Progman", "Program Manager") : GetDesktopWindow());
        ASSERT_TRUE(Wait_Until([&] { return program.Windows(true) == 1; })) << "the splash window stays";
        const RECT title = program.Named(program.Title()).place;
        ASSERT_TRUE(program.Uncover(Middle(program.Named("Sunday").place)));
        ASSERT_TRUE(Becomes(back, [&] { return Picture().At(title.left + 4, title.bottom - 4); }));
        std::set<DWORD> colours;
        const Picture now;
        for (LONG y = title.top; y < title.bottom; ++y)
            for (LONG x = title.left; x < title.right; ++x)
                colours.insert(now.At(x, y));
        EXPECT_TRUE(colours.contains(text)) << "the title's text has not the colour of the icons' texts";
        EXPECT_EQ(colours.size() > 1, text != back);
        Is_Only_Its_Items(program);
    }
}

TEST_F(Attachment, Region_Is_What_Is_Seen) {
    const struct {
        WORD month;
        const char *title;
        std::size_t days, weeks;
    } cases[] = {{2, "10th February - 2015", 28, 4},
                 {3, "10th March - 2015", 31, 5},
                 {8, "10th August - 2015", 31, 6}};
    Set_Clock(2015, 2, 10, 12, 0, 0);
    Set_Setting("Settings", "Allow Dragging", "0"); // by the click that takes the keyboard
    const Program &program = Start_Calendar();
    for (const auto &[month, title, days, weeks] : cases) {
        SCOPED_TRACE(title);
        Set_Clock(2015, month, 10, 12, 0, 0);
        ASSERT_TRUE(Becomes(std::string(title), [&] { return program.Title(); }));
        std::set<LONG> tops;
        for (const Item &day : program.Items(ROLE_SYSTEM_CELL))
            tops.insert(day.place.top);
        EXPECT_EQ(program.Items().size(), days + 7 + 3);
        EXPECT_EQ(tops.size(), weeks);
        Is_Only_Its_Items(program);
    }
    for (const std::size_t items : {1U, 41U}) {
        program.Press(VK_F12);
        ASSERT_TRUE(Becomes(items, [&] { return program.Items().size(); }));
        Is_Only_Its_Items(program);
    }
}

TEST_F(Attachment, Comes_Back_With_The_Next_Shell_And_Asks_For_The_Users_Text_First) {
    const auto windows = [](const Program &program) {
        return [&program] { return program.Exit_Code(0) ? -1 : program.Windows(true); };
    };
    const auto loses_shell_with_text = [](const Program &program) {
        program.Do_Default("Saturday 1st May 2027");
        const auto editor = [&program] { return program.Window("Vellatro_Edit_Frm"); };
        ASSERT_TRUE(Wait_Until([&] { return editor() && GetForegroundWindow() == editor(); }));
        Send_Text("kept");
        ASSERT_TRUE(Wait_Until([&] { return Text_Of(GetDlgItem(editor(), 102)) == "kept"; }));
        Kill_Shell();
        ASSERT_TRUE(Becomes(
            std::string("[Desktop Wallpaper] Save changes for the Saturday 1st May 2027?"),
            [&program] { return program.Box(); }, 2000));
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
    // OK: until then the editor alone keeps the program.
    Click_On(GetDlgItem(next.Window("Vellatro_Edit_Frm"), 104), [&] { return windows(next)() == 0; });
    EXPECT_EQ(Data(), "\"1/5/2027=kept\"\r\n");
    PostMessageA(FindWindowA("Vellatro_Broadcasts", nullptr), WM_CLOSE, 0, 0);
    EXPECT_EQ(next.Exit_Code(), 0U);
}

} // namespace

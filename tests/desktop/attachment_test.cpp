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
        program.Do_Default("Next month"); // which has a row of boxes less
        ASSERT_TRUE(Becomes(std::string("June - 2027"), [&] { return program.Title(); }));
        Is_Only_Its_Items(program);
    }
}

TEST_F(Attachment, Ends_With_The_Shell_But_Not_Without_The_Users_Text) {
    {
        const Program &program = Start_Calendar();
        Kill_Shell();
        EXPECT_EQ(program.Exit_Code(2000), 0U);
    }
    Exchange_Shell(L"");
    const Program &program = Start_Calendar();
    program.Do_Default("Saturday 1st May 2027");
    ASSERT_TRUE(Wait_Until([&] { return GetForegroundWindow() == program.Window("Vellatro_Edit_Frm"); }));
    Send_Text("kept");
    const HWND editor = program.Window("Vellatro_Edit_Frm");
    ASSERT_TRUE(Wait_Until([&] { return Text_Of(GetDlgItem(editor, 102)) == "kept"; }));
    Kill_Shell();
    ASSERT_TRUE(Becomes(
        std::string("[Desktop Wallpaper] Save changes for the Saturday 1st May 2027?"),
        [&] { return program.Box(); }, 2000));
    program.Answer(IDCANCEL);
    // OK: the editor alone keeps the program.
    Click_On(GetDlgItem(editor, 104), [&] { return program.Exit_Code(0) == 0U; });
    EXPECT_EQ(Data(), "\"1/5/2027=kept\"\r\n");
}

} // namespace

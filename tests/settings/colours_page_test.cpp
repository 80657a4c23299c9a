// The colours page: how it shows a colour, and which swatch takes the picked one.
#include "settings/colours_page.h"
#include "settings/palette.h"
#include "tests/calendar/calendar_test.h"
#include "toolkit/keys.h"

namespace {

using platform::Input_Kind;
using platform::Mouse_Button;

class Colours : public Calendar_Test {
protected:
    Colours() {
        page.Show(Cur_Settings);
        dialog.Show();
    }

    /// Returns the colours of the swatches in the order of the page.
    std::vector<Colour> Swatches() {
        std::vector<Colour> colours;
        for (const Picture_Box *box : {&page.Col_Today_Pic, &page.Col_Normal_Pic, &page.Col_Num_Pic,
                                       &page.Col_Text_Pic, &page.Col_Back_Pic, &page.Col_Fore_Pic})
            colours.push_back(box->Back_Colour());
        return colours;
    }
    void Mouse(Input_Kind kind, Mouse_Button button, int x, int y) {
        Input(dialog, {.kind = kind, .point = {x, y}, .button = button}, &page.Pal);
    }

    Form dialog{platform::Form_Kind::Dialog, "Test"};
    Frame frame{dialog, "Frame"};
    Colours_Page page{frame, form};
};

TEST_F(Colours, a_colour_is_shown_as_numbers_and_by_name) {
    const std::pair<Colour, std::string> rows[] = {
        {0x000A09FF, "657919 #FF09A 255,9,10 "},
        {0x00000000, "0 #000000 0,0,0 Black"},
        {System_Colour(5), "12632256 #C0C0C0 192,192,192 Silver"},
    };
    for (const auto &[colour, shown] : rows) {
        page.ShowColors(colour);
        EXPECT_EQ(page.txCol[0].Text() + " " + page.txCol[1].Text() + " " + page.txCol[2].Text() + " " +
                      page.Names_Cbo.Text(),
                  shown);
    }
}

TEST_F(Colours, the_selected_swatch_takes_what_is_picked_and_keeps_a_system_colour_otherwise) {
    const std::vector<Colour> first = Swatches();
    Click(dialog, page.Pal); // into the swatch of today's box
    const Colour picked = page.Col_Today_Pic.Back_Colour();
    EXPECT_TRUE(std::to_string(picked) == page.txCol[0].Text() && picked != first[0]);
    EXPECT_EQ(page.Preview_Today_Lbl.State().back_colour, picked);
    Push(dialog, page.Col_Text_Pic); // the space bar
    EXPECT_EQ(Swatches()[3], first[3]) << "showing it changes nothing";
    EXPECT_EQ(page.txCol[0].Text(), std::to_string(platform::Resolve_Colour(first[3])));
    const auto &names = page.Names_Cbo.Items();
    const int cyan = static_cast<int>(std::find(names.begin(), names.end(), "Cyan") - names.begin());
    Choose(dialog, page.Names_Cbo, cyan);
    EXPECT_EQ(page.Names_Cbo.Selected(), cyan) << "not the first name of that colour";
    EXPECT_TRUE(page.Preview_Caption1_Lbl.Fore_Colour() == 0x00FFFF00 && Swatches()[3] == 0x00FFFF00);
    Push(dialog, page.Default_Cols_Btn);
    EXPECT_EQ(Swatches(), first);
    EXPECT_EQ(page.Preview_Today_Lbl.State().back_colour, first[0]);
    // The title uses its own colours or the system's.
    form.Icon_TextColour = 0x00123456;
    Click(dialog, page.Col_Fore_Pic);
    Push(dialog, page.Col_Sys_Opt);
    EXPECT_EQ(page.Preview_Month_Lbl.State().back_colour, 4934475);
    EXPECT_EQ(page.Preview_Prev_Lbl.Fore_Colour(), 0x00123456);
    EXPECT_NE(page.Col_Back_Lbl.Fore_Colour(), page.Col_Num_Lbl.Fore_Colour()) << "grey";
    Click(dialog, page.Col_Back_Pic);
    Click(dialog, page.Col_Back_Lbl);
    Click(dialog, page.Pal);
    Push(dialog, page.Col_Other_Opt);
    EXPECT_EQ(Swatches(), (std::vector{picked, first[1], first[2], first[3], first[4], first[5]}))
        << "those of the title can neither be selected then nor stay so";
    EXPECT_EQ(page.Preview_Month_Lbl.State().back_colour, 8390687);
}

TEST_F(Colours, the_mouse_shows_colours_and_its_release_picks_the_last_one) {
    const auto shown = [this] { return page.txCol[0].Text(); };
    Desktop().messages.assign(2, [] {}); // each move processes one
    Mouse(Input_Kind::Mouse_Move, Mouse_Button::None, page.Pal.Width() / 2, 300);
    const std::string passed = shown();
    Mouse(Input_Kind::Mouse_Down, Mouse_Button::Left, page.Pal.Width() / 2, 300);
    EXPECT_TRUE(page.Gradient_Pic.Visible() && shown() == passed) << passed;
    const int below = page.Pal.Height() + 500; // outside, where the colour is black
    Mouse(Input_Kind::Mouse_Move, Mouse_Button::Left, 0, below);
    EXPECT_TRUE(shown() == "0" && Desktop().messages.empty());
    Mouse(Input_Kind::Mouse_Up, Mouse_Button::Left, 0, below);
    EXPECT_FALSE(page.Gradient_Pic.Visible() || page.Col_Today_Pic.Back_Colour() == 0) << "released outside";
    Input(dialog, {.kind = Input_Kind::Key_Down, .key = Key_Up}, &page.Pal);
    EXPECT_NE(shown(), "0") << "the cross has left the palette";
    for (int i = 0; i < 100; ++i) // the keyboard continues from that colour
        Input(dialog, {.kind = Input_Kind::Key_Down, .key = i < 50 ? Key_Right : Key_Up, .shift = true},
              &page.Pal);
    platform::Canvas canvas;
    page.Pal.State().paint(canvas, page.Pal.Bounds());
    EXPECT_EQ(canvas.operations.back().rect, (Rect{page.Pal.Width() - 60, -45, 105, 105})) << "the cross";
    Input(dialog, {.kind = Input_Kind::Default_Action}, &page.Pal);
    EXPECT_EQ(page.Col_Today_Pic.Back_Colour(), 0x00FFFFFF) << "the light end of the greys";
}

TEST(Palette, the_picture_is_the_formula_and_goes_through_all_hues) {
    const Size size{120, 41};
    const Picture picture = Palette_Picture(size);
    const auto last = picture.pixels->end() - 3 * 86;
    EXPECT_EQ(Palette_Colour({34, 40}, size), Rgb(last[2], last[1], last[0]));
    // The pure hues are halfway down. The last tenth of the width is grey.
    const int colours[] = {0x0000FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF};
    for (int i = 0; i < 6; ++i) {
        const Colour seen = Palette_Colour({(i * 110 + 5) / 6, 20}, size);
        for (const int shift : {0, 8})
            EXPECT_LT(std::abs(((seen >> shift) & 0xFF) - ((colours[i] >> shift) & 0xFF)), 15) << i;
    }
    EXPECT_EQ(Palette_Colour({115, 20}, size), 0x7F7F7F);
}

} // namespace

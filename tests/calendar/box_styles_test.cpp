// Geometry of the two styles, and the fitting of texts, in a font whose characters are all equally wide.
#include "core/settings.h"
#include "platform/drawing.h"
#include "tests/calendar/calendar_test.h"
#include "toolkit/units.h"

namespace {

class Box_Styles : public Calendar_Test {};

platform::Rect Pixels_Of(const Control &control) {
    const int left = Twips_To_Pixels(control.Left());
    const int top = Twips_To_Pixels(control.Top());
    return {left, top, Twips_To_Pixels(control.Bounds().Right()) - left,
            Twips_To_Pixels(control.Bounds().Bottom()) - top};
}

TEST_F(Box_Styles, columns_and_rows_are_equal_in_pixels_and_nothing_overlaps) {
    for (const int dots : {96, 110, 120, 144, 168, 192}) {
        for (const std::int16_t style : std::initializer_list<std::int16_t>{0, 1}) {
            SCOPED_TRACE(std::to_string(dots) + " dots, style " + std::to_string(style));
            Desktop().dots_per_inch = dots;
            form.Which_Style(style);
            const platform::Rect first = Pixels_Of(form.Box_Lbl[0]);
            const int across = Pixels_Of(form.Box_Lbl[1]).left - first.left;
            const int down = Pixels_Of(form.Box_Lbl[7]).top - first.top;
            EXPECT_GT(across, first.width);
            EXPECT_EQ(across - first.width, down - first.height) << "gaps";
            for (int i = 0; i < Main_Frm::box_count; ++i) {
                const platform::Rect box = Pixels_Of(form.Box_Lbl[i]);
                EXPECT_EQ(box, (platform::Rect{first.left + i % 7 * across, first.top + i / 7 * down,
                                               first.width, first.height}));
                const platform::Rect text = Pixels_Of(form.Box_Caption_Lbl[i]);
                EXPECT_TRUE(box.Contains({text.left, text.top}) && text.Right() < box.Right() &&
                            text.Bottom() < box.Bottom());
                EXPECT_GE(form.Box_Caption_Lbl[i].Height() + 15,
                          platform::Line_Height(form.Box_Caption_Lbl[i].Font()));
            }
            const platform::Rect header = Pixels_Of(form.Day_Lbl[6]);
            EXPECT_EQ(header.left, Pixels_Of(form.Box_Lbl[6]).left);
            EXPECT_EQ(header.width, first.width);
            EXPECT_EQ(first.top - header.Bottom(), across - first.width);
            const platform::Rect next = Pixels_Of(form.Next_Month_Lbl);
            EXPECT_EQ(next.width, next.height);
            EXPECT_EQ(next.Right(), header.Right());
            EXPECT_LT(Pixels_Of(form.Which_Month_Lbl).Right(), next.left);
            EXPECT_LT(next.Bottom(), header.top);
            EXPECT_EQ(Twips_To_Pixels(form.Width()), header.Right());
            EXPECT_EQ(Twips_To_Pixels(form.Height()), Pixels_Of(form.Box_Lbl[36]).Bottom());
        }
    }
}

TEST_F(Box_Styles, an_unknown_style_is_the_square_one) {
    form.Which_Style(0);
    const int thin = form.Box_Lbl[0].Height();
    form.Which_Style(1);
    const int square = form.Box_Lbl[0].Height();
    EXPECT_LT(thin, square);
    for (const std::int16_t style : std::initializer_list<std::int16_t>{2, -1, 32767}) {
        form.Which_Style(0);
        form.Which_Style(style);
        EXPECT_EQ(form.Box_Lbl[0].Height(), square);
    }
}

TEST_F(Box_Styles, texts_are_broken_at_words_and_shortened_at_characters) {
    // A line holds 13 characters, 10 before "..."; the square box has 4 lines.
    Desktop().char_width = 97;
    struct {
        std::int16_t style;
        const char *text, *shown;
    } const rows[] = {
        {0, "", ""},
        {0, "thirteen char", "thirteen char"},
        {0, "fourteen chars", "fourteen c..."},
        {0, "nineteen two words", "nineteen t..."},
        {0, "cut at a blank here", "cut at a b..."},
        {0, "dentist, 1 pm today", "dentist, 1..."},
        {0, "ninechars then more", "ninechars..."},
        {0, "\r\n  a\tb\r\n\r\nc  ", "a b c"},
        {0, "éééééééééééééé", "éééééééééé..."},
        {0, "漢字漢字漢字漢字漢字漢字漢字", "漢字漢字漢字漢字漢字..."},
        {0, "123456789e\u0301abcdef", "123456789e\u0301..."},
        {1, "one two three four five", "one two three\nfour five"},
        {1, "a\r\nb", "a b"},
        {1, "abcdefghijklmnopqrst uv", "abcdefghijklm\nnopqrst uv"},
        {1, "in abcdefghijklmnop", "in\nabcdefghijklm\nnop"},
        {1, "aaaaaaaaaaa bbbbbbbbbbb ccccccccccc ddddddddddd",
         "aaaaaaaaaaa\nbbbbbbbbbbb\nccccccccccc\nddddddddddd"},
        {1, "aaaaaaaaaaa bbbbbbbbbbb ccccccccccc ddddddddddd eee",
         "aaaaaaaaaaa\nbbbbbbbbbbb\nccccccccccc\ndddddddddd..."},
        {1, "漢字漢字漢字漢字漢字漢字漢字", "漢字漢字漢字漢字漢字漢字漢\n字"},
    };
    for (const auto &row : rows) {
        form.Which_Style(row.style);
        form.DotDotDot(form.Box_Caption_Lbl[3], row.text);
        EXPECT_EQ(form.Box_Caption_Lbl[3].Caption(), row.shown) << row.text;
    }
}

TEST_F(Box_Styles, get_line_drops_whole_characters_until_it_is_narrower_and_ends_on_nothing) {
    Label &box = form.Box_Lbl[0];
    struct {
        int width;
        const char *text, *left;
    } const rows[] = {
        {301, "abcd", "abc"}, {300, "abc", "ab"}, {201, "aé漢", "aé"}, {101, "e\u0301e\u0301", "e\u0301"},
        {100, "ab", ""},      {0, "ab", ""},      {0, "", ""},         {150, "\xC3\xC3", "\xC3"},
    };
    for (const auto &row : rows) {
        box.Move({0, 0, row.width, 10});
        form.DotDotDot_Lbl.Set_Caption(row.text);
        form.Get_Line(box);
        EXPECT_EQ(form.DotDotDot_Lbl.Caption(), row.left) << row.text;
    }
    // Boxes without any room, and characters without any width, come to an end, too.
    form.Which_Style(1);
    Desktop().char_width = 5000;
    form.DotDotDot(form.Box_Caption_Lbl[0], "some words");
    EXPECT_EQ(form.Box_Caption_Lbl[0].Caption(), "...");
    Desktop().char_width = 0;
    form.DotDotDot(form.Box_Caption_Lbl[0], std::string(100000, 'x'));
    EXPECT_LT(form.Box_Caption_Lbl[0].Caption().size(), 2000U);
}

TEST_F(Box_Styles, a_text_of_any_length_costs_little) {
    form.Which_Style(1);
    std::string words;
    while (words.size() < 1000000)
        words += "word ";
    for (const std::string &text : {words, std::string(1000000, 'i'), std::string(999999, ' ') + "end"}) {
        Desktop().measured = 0;
        form.DotDotDot(form.Box_Caption_Lbl[0], text);
        EXPECT_LT(Desktop().measured, 150);
        EXPECT_LT(form.Box_Caption_Lbl[0].Caption().size(), 60U);
    }
    EXPECT_EQ(form.Box_Caption_Lbl[0].Caption(), "end");
}

TEST_F(Box_Styles, new_dots_per_inch_lay_the_month_out_anew) {
    Events({"7/3/2002=fourteen chars and more than that"});
    Desktop().char_width = 97;
    Start();
    const int before = Twips_To_Pixels(form.Width());
    Desktop().dots_per_inch = 192;
    platform::Input_Event event{};
    event.kind = platform::Input_Kind::Dots_Changed;
    form.Input(event);
    EXPECT_EQ(Twips_To_Pixels(form.Width()), 2 * before);
    EXPECT_EQ(Text_Of(7), "fourteen\nchars and\nmore than\nthat");
    EXPECT_EQ(Box_Of(5).Back_Colour(), Cur_Settings.Col_Today);
}

} // namespace

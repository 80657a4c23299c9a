// The geometry of the two box styles, and the fitting of texts, in a font of equally wide characters.
#include "platform/drawing.h"
#include "tests/calendar/calendar_test.h"
#include "toolkit/units.h"

namespace {

using Box_Styles = Calendar_Test;

Rect Pixels_Of(const Control &control) {
    const int left = Twips_To_Pixels(control.Left()), top = Twips_To_Pixels(control.Top());
    return {left, top, Twips_To_Pixels(control.Bounds().Right()) - left,
            Twips_To_Pixels(control.Bounds().Bottom()) - top};
}

TEST_F(Box_Styles, columns_and_rows_are_equal_in_pixels_and_nothing_overlaps) {
    for (const int dots : {96, 110, 120, 144, 192}) {
        for (const int style : {0, 1, -1}) {
            SCOPED_TRACE(std::to_string(dots) + " dots, style " + std::to_string(style));
            Desktop().dots_per_inch = dots;
            form.Which_Style(static_cast<std::int16_t>(style));
            const Rect first = Pixels_Of(form.Box_Lbl[0]), header = Pixels_Of(form.Day_Lbl[6]);
            EXPECT_GE(header.height, 20 * dots / 96);
            EXPECT_EQ(first.height > 70 * dots / 96, style != 0) << "unknown ones are the square one";
            const int gap = Pixels_Of(form.Box_Lbl[1]).left - first.Right();
            EXPECT_GT(gap, 0);
            for (int i = 0; i < Main_Frm::box_count; ++i) {
                const Rect box = Pixels_Of(form.Box_Lbl[i]);
                const Rect text = Pixels_Of(form.Box_Caption_Lbl[i]);
                EXPECT_EQ(box.left, i % 7 * (first.width + gap));
                EXPECT_EQ(box.top, first.top + i / 7 * (first.height + gap));
                EXPECT_TRUE(box.width == first.width && box.height == first.height);
                EXPECT_TRUE(box.Contains({text.left, text.top}) &&
                            box.Contains({text.Right(), text.Bottom()}));
            }
            EXPECT_GE(form.Box_Caption_Lbl[0].Height(),
                      (style == 0 ? 1 : 4) * (platform::Line_Height(form.Box_Caption_Lbl[0].Font()) - 15));
            EXPECT_TRUE(header.left == Pixels_Of(form.Box_Lbl[6]).left && header.Bottom() + gap == first.top);
            EXPECT_EQ(Pixels_Of(form.Next_Month_Lbl).Right(), header.Right());
            EXPECT_EQ(Twips_To_Pixels(form.Width()), header.Right());
            EXPECT_EQ(Twips_To_Pixels(form.Height()), Pixels_Of(form.Box_Lbl[36]).Bottom());
        }
    }
}

TEST_F(Box_Styles, texts_are_broken_at_words_and_shortened_at_characters) {
    // A line holds 13 characters, or 10 and "...". The square box has 4 lines.
    Desktop().char_width = 97;
    struct {
        std::int16_t style;
        const char *text, *shown;
    } const rows[] = {
        {0, "thirteen char", "thirteen char"},
        {0, "fourteen chars", "fourteen c..."},
        {0, "ninechars then more", "ninechars..."},
        {0, "\r\n  a\tb\r\n\r\nc  ", "a b c"},
        {0, "123456789e\u0301abcdef", "123456789e\u0301..."},
        {1, "aaaaaaa bbbbbbb ccccccc ddddddd", "aaaaaaa\nbbbbbbb\nccccccc\nddddddd"},
        {1, "aaaaaaa bbbbbbb ccccccc ddddddd eeeeeee", "aaaaaaa\nbbbbbbb\nccccccc\nddddddd ee..."},
    };
    Label &box = form.Box_Caption_Lbl[3];
    for (const auto &row : rows) {
        form.Which_Style(row.style);
        form.DotDotDot(box, row.text);
        EXPECT_EQ(box.Caption(), row.shown) << row.text;
    }
    for (const int width : {0, 100, 5000}) { // fitting a long text is cheap in any font
        Desktop().char_width = width;
        Desktop().measured = 0;
        form.DotDotDot(box, std::string(900000, ' ') + std::string(500000, 'i'));
        EXPECT_LT(Desktop().measured, 150);
        EXPECT_LT(box.Caption().size(), width == 0 ? 2000U : 60U);
    }
    EXPECT_EQ(box.Caption(), "...");
}

} // namespace

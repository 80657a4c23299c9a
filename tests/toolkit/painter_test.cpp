// What a painted form draws, where and in which order.
#include "tests/fakes/form_test.h"
#include "toolkit/form.h"

using Kind = Canvas_Operation::Kind;

namespace {

struct Painted_Form : Form {
    Painted_Form()
        : Form(platform::Form_Kind::Painted, "Test"), A_Lbl(*this, "A_Lbl"), B_Lbl(*this, "B_Lbl") {
        Resize(1000, 1000);
        Set_Back_Colour(7);
        A_Lbl.Move({0, 0, 500, 600});
        A_Lbl.Set_Back_Colour(1);
        A_Lbl.Set_Fore_Colour(2);
        B_Lbl.Move({500, 0, 500, 600});
        B_Lbl.Set_Transparent(true);
    }
    Label A_Lbl;
    Label B_Lbl;
};

class Painter : public Form_Test {
protected:
    /// Kind and upper edge of the operations after the background's.
    static std::string Shape(const platform::Canvas &canvas) {
        std::string shape;
        for (std::size_t i = 1; i < canvas.operations.size(); ++i) {
            const Canvas_Operation &op = canvas.operations[i];
            constexpr const char *names[] = {"fill ", "frame ", "polygon ", "text "};
            shape += names[static_cast<int>(op.kind)] + op.text + "@" + std::to_string(op.rect.top) + "; ";
        }
        return shape;
    }
    Painted_Form form;
};

TEST_F(Painter, draws_the_background_and_the_visible_labels_within_the_clip) {
    form.A_Lbl.Set_Caption("a");
    form.A_Lbl.Set_Frame_Colour(3);
    form.B_Lbl.Set_Caption("b");
    const platform::Canvas all = Painted(form, {0, 0, 1000, 1000});
    EXPECT_EQ(all.operations.at(0).colour, 7);
    EXPECT_EQ(all.operations.at(0).rect, (platform::Rect{0, 0, 1000, 1000}));
    EXPECT_EQ(Shape(all), "fill @0; frame @0; text a@0; text b@0; ");
    EXPECT_EQ(Shape(Painted(form, {600, 0, 10, 10})), "text b@0; ");
    form.B_Lbl.Set_Visible(false);
    EXPECT_EQ(Shape(Painted(form, {600, 0, 10, 10})), "");
}

TEST_F(Painter, parts_a_caption_into_lines_and_cuts_them_at_the_lower_edge) {
    form.B_Lbl.Set_Font({90, false}); // a line is 240 twips high
    form.B_Lbl.Set_Caption("1\n\n3\n4");
    const platform::Canvas canvas = Painted(form, {500, 0, 500, 1000});
    EXPECT_EQ(Shape(canvas), "text 1@0; text 3@480; ");
    EXPECT_EQ(canvas.operations.at(2).rect.height, 120);

    form.B_Lbl.Set_Padding(20);
    EXPECT_EQ(Painted(form, {500, 0, 500, 1000}).operations.at(1).rect, (platform::Rect{520, 20, 460, 240}));
    form.B_Lbl.Set_Caption("one\ntwo");
    form.B_Lbl.Set_Align(platform::Text_Align::Centre, true);
    const platform::Canvas centred = Painted(form, {500, 0, 500, 1000});
    EXPECT_EQ(Shape(centred), "text one@60; text two@300; ");
    EXPECT_EQ(centred.operations.at(1).rect, (platform::Rect{520, 60, 460, 240}));
    EXPECT_EQ(centred.operations.at(1).align, platform::Text_Align::Centre);
}

TEST_F(Painter, marks_the_focus_over_the_frame_and_below_the_caption) {
    form.A_Lbl.Set_Caption("a");
    form.A_Lbl.Set_Frame_Colour(5);
    form.A_Lbl.Set_Marked(true);
    const auto canvas = Painted(form, {0, 0, 100, 100});
    EXPECT_EQ(Shape(canvas), "fill @0; frame @0; frame @0; text a@0; ");
    EXPECT_EQ(canvas.operations[3].colour, 2);
}

TEST_F(Painter, draws_an_arrow_instead_of_the_caption) {
    form.B_Lbl.Set_Caption("never seen");
    form.B_Lbl.Set_Glyph(platform::Glyph::Arrow_Left);
    const platform::Canvas left = Painted(form, {500, 0, 500, 1000});
    EXPECT_EQ(Shape(left), "polygon @0; ");
    form.B_Lbl.Set_Glyph(platform::Glyph::Arrow_Right);
    const platform::Canvas right = Painted(form, {500, 0, 500, 1000});
    // The first corner is the tip; both arrows are as large and stand around the middle.
    EXPECT_EQ(left.operations.at(1).corners.at(0), (platform::Point{700, 300}));
    EXPECT_EQ(right.operations.at(1).corners.at(0), (platform::Point{800, 300}));
}

} // namespace

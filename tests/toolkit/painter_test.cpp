// What a painted form draws, and in which order.
#include "tests/fakes/form_test.h"
#include "toolkit/form.h"

namespace {

struct Painted_Form : Form {
    Painted_Form() : Form(platform::Form_Kind::Painted, "Test") {
        A_Lbl.Move({0, 0, 500, 600});
        A_Lbl.Set_Caption("a");
        A_Lbl.Set_Frame_Colour(3);
        B_Lbl.Move({500, 0, 500, 600});
        B_Lbl.Set_Transparent(true);
        B_Lbl.Set_Font({90, false}); // a line is 240 twips high
    }

    /// Returns kind, text and top of each operation after the background's.
    std::string Shape(const Rect &clip) {
        drawn = Painted(*this, clip).operations;
        std::string shape;
        for (std::size_t i = 1; i < drawn.size(); ++i) {
            constexpr const char *names[] = {"fill ", "frame ", "polygon ", "text "};
            shape += names[static_cast<int>(drawn[i].kind)] + drawn[i].text;
            shape += "@" + std::to_string(drawn[i].rect.top) + "; ";
        }
        return shape;
    }

    Label A_Lbl{*this, "A_Lbl"}, B_Lbl{*this, "B_Lbl"};
    std::vector<Canvas_Operation> drawn;
};

TEST_F(Form_Test, painting_covers_the_visible_labels_within_the_clip_and_cuts_captions_into_lines) {
    Painted_Form form;
    form.A_Lbl.Set_Marked(true);
    form.B_Lbl.Set_Caption("1\n\n3\n4");
    form.B_Lbl.Set_Padding(20);
    EXPECT_EQ(form.Shape({0, 0, 1000, 1000}),
              "fill @0; frame @0; frame @0; text a@0; text 1@20; text 3@500; ");
    EXPECT_EQ(form.Shape({600, 0, 10, 1000}), "text 1@20; text 3@500; ");
    EXPECT_EQ(form.drawn.at(1).rect, (Rect{520, 20, 460, 240}));
    EXPECT_EQ(form.drawn.at(2).rect.height, 100);
    form.B_Lbl.Set_Caption("one\ntwo");
    form.B_Lbl.Set_Align(platform::Text_Align::Centre, true);
    EXPECT_EQ(form.Shape({600, 0, 10, 1000}), "text one@60; text two@300; ");
    EXPECT_EQ(form.drawn.at(1).align, platform::Text_Align::Centre);
    using platform::Text_Align;
    struct {
        const char *caption;
        Text_Align align, drawn;
        bool right_to_left;
    } const texts[] = {{"1. \u05D0 a", Text_Align::Left, Text_Align::Right, true},
                       {"\u0662 \uFE8D", Text_Align::Centre, Text_Align::Centre, true},
                       {"\U0001F382 a \u05D0", Text_Align::Left, Text_Align::Left, false},
                       {"\u0662 \u3001\u3042\u05D0", Text_Align::Left, Text_Align::Left, false}};
    for (const auto &text : texts) {
        form.B_Lbl.Set_Caption(text.caption);
        form.B_Lbl.Set_Align(text.align, true);
        form.Shape({600, 0, 10, 1000});
        const Canvas_Operation &drawn = form.drawn.at(1);
        EXPECT_TRUE(drawn.align == text.drawn && drawn.right_to_left == text.right_to_left) << text.caption;
    }
    form.A_Lbl.Set_Hairline(true); // the edge appears only without frame and mark
    form.A_Lbl.Set_Back_Colour(Rgb(255, 100, 0));
    form.A_Lbl.Set_Fore_Colour(Rgb(0, 200, 0));
    EXPECT_EQ(form.Shape({0, 0, 10, 10}), "fill @0; frame @0; frame @0; text a@0; ");
    form.A_Lbl.Set_Frame_Colour(-1);
    form.A_Lbl.Set_Marked(false);
    EXPECT_EQ(form.Shape({0, 0, 10, 10}), "fill @0; frame @0; text a@0; ");
    EXPECT_EQ(form.drawn.at(2).colour, Rgb(178, 130, 0));
    form.B_Lbl.Set_Visible(false);
    EXPECT_EQ(form.Shape({600, 0, 10, 1000}), "");
}

} // namespace

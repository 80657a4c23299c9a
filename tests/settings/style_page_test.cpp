// The style page: its choices of style and position, and the miniature that shows them.
#include "desktop/position.h"
#include "settings/style_page.h"
#include "tests/calendar/calendar_test.h"
#include "toolkit/keys.h"

namespace {

class Style : public Calendar_Test {
protected:
    Style() {
        Cur_Settings.Style = 0;
        page.Show(Cur_Settings);
        dialog.Show();
    }

    enum Part { Title = 2, First_Box, Task_Bar = First_Box + 2 * 31 }; // after the boxes of March
    /// Returns the place of a part of the miniature, in pixels of the screen.
    Rect Place(Part part) {
        platform::Canvas canvas;
        page.Pos_Preview_Img.State().paint(canvas, page.Pos_Preview_Img.Bounds());
        const Rect small = canvas.operations[part].rect;
        const auto whole = [this](int twips) { return twips * 1024 / page.Pos_Preview_Img.Width(); };
        return {whole(small.left), whole(small.top), whole(small.width), whole(small.height)};
    }

    Form dialog{platform::Form_Kind::Dialog, "Test"};
    Frame frame{dialog, "Frame"};
    Style_Page page{frame, form};
};

TEST_F(Style, nine_places_are_chosen_by_mouse_and_keyboard) {
    // The points are on the screen; its lowest 28 pixels belong to the taskbar.
    constexpr std::int16_t codes[] = {6, 5, 4, 9, 3, 8, 2, 1, 0};
    for (int i = 0; i < 9; ++i) {
        page.Pos_Manual_Opt.Set_Checked(true);
        Input(dialog,
              {.kind = platform::Input_Kind::Mouse_Down,
               .point = {(100 + i % 3 * 400) * page.Pos_Preview_Img.Width() / 1024,
                         (100 + i / 3 * 330) * page.Pos_Preview_Img.Height() / 768},
               .button = platform::Mouse_Button::Left},
              &page.Pos_Preview_Img);
        EXPECT_TRUE(page.Get_Set_Position() == codes[i] && page.Pos_Set_Opt.Checked());
        EXPECT_EQ(page.Position_Lbl.Caption(), Positions[codes[i]].name);
    }
    for (const int key : {Key_Left, Key_Up, Key_Up, Key_Up, Key_Left, Key_Down})
        Input(dialog, {.kind = platform::Input_Kind::Key_Down, .key = key}, &page.Pos_Preview_Img);
    EXPECT_EQ(page.Position_Lbl.Caption(), "Center Left");
    Push(dialog, page.Pos_Manual_Opt);
    EXPECT_EQ(page.Position_Lbl.Caption(), "Manual");
    page.Pos_Set_Opt.Set_Enabled(false);
    Input(dialog, {.kind = platform::Input_Kind::Key_Down, .key = Key_Up}, &page.Pos_Preview_Img);
    EXPECT_EQ(page.Get_Set_Position(), 9) << "the miniature goes with its option";
}

TEST_F(Style, the_settings_are_shown_also_odd_ones) {
    for (const std::int16_t alignment : std::initializer_list<std::int16_t>{8, 7, 12}) {
        Cur_Settings.Alignment = alignment;
        Cur_Settings.Style = alignment == 8 ? 0 : 5;
        page.Show(Cur_Settings);
        EXPECT_TRUE(page.Style1_Opt.Checked() == (alignment == 8) &&
                    page.Style2_Opt.Checked() != (alignment == 8));
        EXPECT_EQ(page.Pos_Manual_Opt.Checked(), alignment == 7);
        EXPECT_EQ(page.Get_Set_Position(), alignment == 8 ? 8 : 0);
    }
    for (Control *example :
         std::initializer_list<Control *>{&page.Example2_Lbl, &page.Example3_Lbl, &page.Backdrop1_Pic}) {
        page.Style1_Opt.Set_Enabled(example != &page.Backdrop1_Pic);
        Click(dialog, *example);
        EXPECT_EQ(page.Style1_Opt.Checked(), example == &page.Example2_Lbl);
    }
}

TEST_F(Style, the_miniature_shows_the_calendar_where_it_will_be) {
    Start();
    Cur_Settings.Manual_PosX = 1500;
    Cur_Settings.Manual_PosY = 900;
    for (const std::int16_t month : {std::int16_t{2}, std::int16_t{3}}) { // five and six rows
        for (std::int16_t position = 0; position < 9; ++position) {
            SCOPED_TRACE(position);
            const std::int16_t style = position % 2;
            Show_Month(month, 2002);
            form.Which_Style(style);
            form.Position_Form(position);
            Theme_Look look;
            look.style = style;
            look.position = position;
            page.Set_Theme(look);
            const Rect title = Place(Title);
            EXPECT_NEAR(title.left, form.Left() / 15, 1);
            EXPECT_NEAR(title.top, form.Top() / 15, 2);
            EXPECT_NEAR(title.width, form.Width() / 15, 2);
            EXPECT_NEAR(Place(First_Box).height, form.Box_Lbl[10].Bounds().height / 15, 9);
        }
    }
    EXPECT_NEAR(Place(Task_Bar).top, 740, 4);
    Desktop().work_area = {62, 0, 962, 768};
    EXPECT_NEAR(Place(Task_Bar).width, 62, 4) << "at the left edge";
    page.Set_Theme({});
    EXPECT_EQ(page.Position_Lbl.Caption(), "Bottom Right") << "the theme's has gone";
}

} // namespace

// The page of style and position: its choices, and the miniature that shows them.
#include "settings/style_page.h"
#include "settings/theme_names.h"
#include "tests/calendar/calendar_test.h"
#include "toolkit/keys.h"

namespace {

class Style : public Calendar_Test {
protected:
    Style() {
        Cur_Settings.Style = 0;
        page.Load_Settings();
        dialog.Show();
    }

    void Click_At(int x, int y) {
        platform::Input_Event event{};
        event.kind = platform::Input_Kind::Mouse_Down;
        event.button = platform::Mouse_Button::Left;
        event.control = page.Pos_Preview_Img.State().index;
        event.point = {x * page.Pos_Preview_Img.Width() / 1024, y * page.Pos_Preview_Img.Height() / 768};
        dialog.Model().input(event);
    }
    void Use_Key(int key) {
        platform::Input_Event event{};
        event.kind = platform::Input_Kind::Key_Down;
        event.control = page.Pos_Preview_Img.State().index;
        event.key = key;
        dialog.Model().input(event);
    }

    /// What the miniature draws first after the desktop: the title of the calendar, in pixels of the screen.
    platform::Rect Title() {
        platform::Canvas canvas;
        page.Pos_Preview_Img.State().paint(canvas, page.Pos_Preview_Img.Bounds());
        const int width = page.Pos_Preview_Img.Width();
        const platform::Rect small = canvas.operations[2].rect;
        const auto whole = [width](int twips) { return twips * 1024 / width; };
        return {whole(small.left), whole(small.top), whole(small.width), whole(small.height)};
    }

    Form dialog{platform::Form_Kind::Dialog, "Test"};
    Frame frame{dialog, "Frame"};
    Style_Page page{dialog, frame, form};
};

TEST_F(Style, nine_places_are_chosen_by_mouse_and_keyboard) {
    // The points are on the screen, of which the lowest 28 pixels are the task bar.
    constexpr std::int16_t codes[] = {6, 5, 4, 9, 3, 8, 2, 1, 0};
    for (int i = 0; i < 9; ++i) {
        page.Pos_Manual_Opt.Set_Checked(true);
        Click_At(100 + i % 3 * 400, 100 + i / 3 * 330);
        EXPECT_EQ(page.Get_Set_Position(), codes[i]);
        EXPECT_TRUE(page.Pos_Set_Opt.Checked());
        EXPECT_EQ(page.Position_Lbl.Caption(), Position_Name(codes[i]));
    }
    for (const int key : {Key_Left, Key_Up, Key_Up, Key_Up, Key_Left, Key_Down})
        Use_Key(key);
    EXPECT_EQ(page.Position_Lbl.Caption(), "Center Left");
    Push(dialog, page.Pos_Manual_Opt);
    EXPECT_EQ(page.Position_Lbl.Caption(), "Manual");
    EXPECT_EQ(page.Get_Set_Position(), 9);
}

TEST_F(Style, the_settings_are_shown_also_odd_ones) {
    struct {
        std::int16_t style, alignment;
        bool thin, is_manual;
        std::int16_t set;
    } const rows[] = {{0, 8, true, false, 8}, {1, 7, false, true, 0}, {5, 12, false, false, 0}};
    for (const auto &row : rows) {
        Cur_Settings.Style = row.style;
        Cur_Settings.Alignment = row.alignment;
        page.Load_Settings();
        EXPECT_EQ(page.Style1_Opt.Checked(), row.thin);
        EXPECT_NE(page.Style2_Opt.Checked(), row.thin);
        EXPECT_EQ(page.Pos_Manual_Opt.Checked(), row.is_manual);
        EXPECT_EQ(page.Get_Set_Position(), row.set);
    }
    Click(dialog, page.Example2_Lbl);
    EXPECT_TRUE(page.Style1_Opt.Checked() && !page.Style2_Opt.Checked());
    Click(dialog, page.Example3_Lbl);
    EXPECT_TRUE(page.Style2_Opt.Checked());
}

TEST_F(Style, the_miniature_shows_the_calendar_where_it_will_be) {
    Start();
    EXPECT_NEAR(page.Pos_Preview_Img.Width() * 768, page.Pos_Preview_Img.Height() * 1024, 1024);
    struct {
        bool thin;
        std::int16_t position;
    } const rows[] = {{true, 0}, {false, 0}, {true, 3}, {false, 6}, {true, 8}, {false, 7}};
    Cur_Settings.Manual_PosX = 1500;
    Cur_Settings.Manual_PosY = 900;
    for (const std::int16_t month : {std::int16_t{2}, std::int16_t{3}}) { // five rows, and six
        for (const auto &row : rows) {
            SCOPED_TRACE(std::to_string(row.position) + (row.thin ? " thin" : " square"));
            Show_Month(month, 2002);
            form.Which_Style(row.thin ? 0 : 1);
            form.Position_Form(row.position);
            Style_Page::Theme_Look look;
            look.style = row.thin ? 0 : 1;
            look.position = row.position;
            page.Set_Theme(look);
            const platform::Rect title = Title();
            EXPECT_NEAR(title.left, form.Left() / 15, 1);
            EXPECT_NEAR(title.top, form.Top() / 15, 2);
            EXPECT_NEAR(title.width, form.Width() / 15, 2);
        }
    }
    page.Set_Theme({});
    EXPECT_EQ(page.Position_Lbl.Caption(), "Bottom Right") << "the theme's has gone";
    page.Pos_Set_Opt.Set_Enabled(false);
    Use_Key(Key_Up);
    EXPECT_EQ(page.Get_Set_Position(), 0) << "the miniature goes with its option";
}

} // namespace

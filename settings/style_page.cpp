#include "settings/style_page.h"

#include "calendar/box_layout.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "settings/screen_miniature.h"
#include "toolkit/keys.h"
#include "toolkit/units.h"

#include <string>

using namespace layout;
using platform::Mouse_Button;

namespace {

constexpr int group_bottom = 8 * 15;
constexpr int options_width = 118 * 15; ///< width of the column left of the miniature
constexpr int hint_lines = 4;
constexpr int manual_lines = 5;
constexpr int marker_size = 7 * 15;

constexpr const char *place_hint = "Click a place in the picture, or use the arrow keys.";

Size Size_Of(const Control &control) {
    return {control.Width(), control.Height()};
}

} // namespace

Style_Page::Style_Page(Frame &frame, Main_Frm &calendar) : Page(frame), calendar_(calendar) {
    Wire_Examples();
    Style1_Opt.On_Click = [this] { Choose_Style(Style1_Opt); };
    Style2_Opt.On_Click = [this] { Choose_Style(Style2_Opt); };
    Pos_Set_Opt.On_Click = [this] { Show_Position(); };
    Pos_Manual_Opt.On_Click = [this] { Show_Position(); };
    Pos_Preview_Img.Set_Tab_Stop();
    Pos_Preview_Img.On_Paint = [this](platform::Canvas &canvas) { Paint_Miniature(canvas); };
    Pos_Preview_Img.On_Mouse_Down = [this](Mouse_Button button, Point at) {
        if (button == Mouse_Button::Left)
            Choose_Position(Screen_Miniature(calendar_).Nearest_Place(at, Size_Of(Pos_Preview_Img)));
    };
    Pos_Preview_Img.On_Key_Down = [this](const platform::Input_Event &event) { Key_Over_Miniature(event); };
    Style_Theme_Lbl.Set_Visible(false);
    Position_Lbl.Set_Painted();
    Position_Lbl.Set_Transparent(true);
    Position_Lbl.Set_Align(platform::Text_Align::Centre, true);
    Lay_Out();
}

void Style_Page::Wire_Examples() {
    for (Label *label : {&Example1_Lbl, &Example2_Lbl, &Example3_Lbl, &Example4_Lbl})
        label->Set_Painted();
    for (Control *control : std::initializer_list<Control *>{&Backdrop1_Pic, &Example1_Lbl, &Example2_Lbl})
        control->On_Click = [this] { Choose_Style(Style1_Opt); };
    for (Control *control : std::initializer_list<Control *>{&Backdrop2_Pic, &Example3_Lbl, &Example4_Lbl})
        control->On_Click = [this] { Choose_Style(Style2_Opt); };
    for (Picture_Box *backdrop_pic : {&Backdrop1_Pic, &Backdrop2_Pic})
        backdrop_pic->Set_Back_Colour(desktop_colour);
}

void Style_Page::Show(const Settings &settings) {
    // The calendar uses the square box for every number except 0.
    (settings.Style == 0 ? Style1_Opt : Style2_Opt).Set_Checked(true);
    (settings.Alignment == Manual_Position ? Pos_Manual_Opt : Pos_Set_Opt).Set_Checked(true);
    set_position_ = Is_Place(settings.Alignment) ? settings.Alignment : std::int16_t{0};
    const auto pixels = [](int twips) { return std::to_string(Twips_To_Pixels(twips)) + " pixels\n"; };
    Manual_Lbl.Set_Caption("X: " + pixels(settings.Manual_PosX) + "Y: " + pixels(settings.Manual_PosY) +
                           "Drag the calendar by its title.");
    Style_Preview();
    Show_Position();
}

void Style_Page::Write_To(Settings &settings) const {
    settings.Style = Chosen_Style();
    settings.Alignment = Chosen_Position();
}

void Style_Page::Set_Theme(const Theme_Look &look) {
    theme_ = look;
    for (Control *control : std::initializer_list<Control *>{&Style1_Opt, &Style2_Opt, &Example1_Lbl,
                                                             &Example2_Lbl, &Example3_Lbl, &Example4_Lbl})
        control->Set_Enabled(!look.decides_style);
    for (Control *control : std::initializer_list<Control *>{&Pos_Set_Opt, &Pos_Manual_Opt, &Manual_Lbl})
        control->Set_Enabled(!look.decides_position);
    Style_Theme_Lbl.Set_Visible(look.decides_style);
    Pos_Hint_Lbl.Set_Caption(look.decides_position ? theme_hint : place_hint);
    Style_Preview();
    Show_Position();
}

void Style_Page::Choose_Style(Option_Button &option) {
    if (!option.Enabled())
        return;
    option.Set_Checked(true);
    Style_Preview();
}

void Style_Page::Choose_Position(std::int16_t place) {
    if (!Pos_Set_Opt.Enabled())
        return;
    set_position_ = place;
    Pos_Set_Opt.Set_Checked(true);
    Show_Position();
}

void Style_Page::Key_Over_Miniature(const platform::Input_Event &event) {
    const Point step = Arrow_Step(event.key);
    if (step == Point{})
        return;
    const Screen_Miniature miniature(calendar_);
    const Size size = Size_Of(Pos_Preview_Img);
    const std::int16_t place = miniature.Nearest_Place(miniature.Mark(set_position_, size), size, step);
    Choose_Position(Is_Place(place) ? place : set_position_);
}

std::int16_t Style_Page::Chosen_Style() const {
    return Style1_Opt.Checked() ? 0 : 1;
}

std::int16_t Style_Page::Chosen_Position() const {
    return Pos_Manual_Opt.Checked() ? Manual_Position : set_position_;
}

std::int16_t Style_Page::Shown_Style() const {
    return theme_.style.value_or(Chosen_Style());
}

std::int16_t Style_Page::Shown_Position() const {
    return theme_.position.value_or(Chosen_Position());
}

void Style_Page::Show_Position() {
    Preview_Position();
    Position_Boxes();
}

void Style_Page::Style_Preview() {
    for (Label *box : {&Example1_Lbl, &Example3_Lbl})
        box->Set_Fore_Colour(Cur_Settings.Col_Num);
    for (Label *label : {&Example1_Lbl, &Example2_Lbl, &Example3_Lbl, &Example4_Lbl})
        label->Set_Back_Colour(Cur_Settings.Col_Normal);
    for (Label *text : {&Example2_Lbl, &Example4_Lbl})
        text->Set_Fore_Colour(Cur_Settings.Col_Text);
    Preview_Position();
}

void Style_Page::Preview_Position() {
    Pos_Preview_Img.Repaint();
}

void Style_Page::Position_Boxes() {
    const std::int16_t code = Shown_Position();
    const std::string name = Is_Position(code) ? Positions[code].name : "";
    Position_Lbl.Set_Caption(name);
    Pos_Preview_Img.Set_Access(
        {platform::Access_Role::Button, false, "Position on the screen, " + name, {}, {}});
}

void Style_Page::Paint_Miniature(platform::Canvas &canvas) {
    const Size size = Size_Of(Pos_Preview_Img);
    Screen_Miniature miniature(calendar_);
    miniature.Place_Calendar(Shown_Style(), Shown_Position());
    miniature.Paint(canvas, theme_.picture, size);
    for (std::int16_t place = 0; Is_Position(place); ++place) {
        const bool marked = place == Shown_Position();
        if (!Is_Place(place) || (theme_.decides_position && !marked))
            continue; // the user cannot choose this place
        const Point middle = miniature.Mark(place, size);
        const int side = marked ? marker_size + 4 * one_pixel : marker_size;
        const Rect marker{Snap(middle.x - side / 2), Snap(middle.y - side / 2), side, side};
        platform::Fill_Rect(canvas, marker, marked ? System_Colour(13) : Rgb(255, 255, 255));
        platform::Frame_Rect(canvas, marker, Rgb(64, 64, 64), one_pixel);
    }
}

void Style_Page::Lay_Out() {
    const Box_Layout styles[] = {Box_Layout(0), Box_Layout(1)};
    constexpr int column_width = page_width / 2;
    constexpr int box_top = group_top + check_height + backdrop;
    const auto example = [](const Box_Layout &style, Option_Button &option, Picture_Box &desktop,
                            Label &number, Label &text, int left) {
        option.Move({left, group_top, column_width - margin, check_height});
        Place_Example(style, number, text, left + check_mark + backdrop, box_top);
        desktop.Move({number.Left() - backdrop, number.Top() - backdrop, number.Width() + 2 * backdrop,
                      number.Height() + 2 * backdrop});
    };
    example(styles[0], Style1_Opt, Backdrop1_Pic, Example1_Lbl, Example2_Lbl, margin);
    example(styles[1], Style2_Opt, Backdrop2_Pic, Example3_Lbl, Example4_Lbl, column_width);
    const int line = platform::Line_Height(Manual_Lbl.Font());
    Rows style{margin, Backdrop2_Pic.Bounds().Bottom() + small_gap, inner_width};
    style.Add(Style_Theme_Lbl, group_bottom);
    Rows page = Page_Rows();
    page.Add(Style_Fra, group_gap, style.Top());
    page.Add(Position_Fra, 0, page_height - page.Top());

    Rows position{margin, group_top, options_width};
    position.Add(Pos_Set_Opt);
    position.Add_Note(Pos_Hint_Lbl, gap, hint_lines * line);
    position.Add(Pos_Manual_Opt);
    position.Add_Note(Manual_Lbl, gap, manual_lines * line);

    const int left = margin + options_width + gap;
    const Size room{page_width - left - margin,
                    Position_Fra.Height() - group_top - margin - line - small_gap};
    const Size size = Screen_Miniature(calendar_).Fit(room);
    Pos_Preview_Img.Move({left + (room.width - size.width) / 2, group_top, size.width, size.height});
    Position_Lbl.Move({left, Pos_Preview_Img.Bounds().Bottom() + small_gap, room.width, line});
}

// The behaviour of the "Colours" page: its swatches, the picking of a colour, and the preview.
// colours_layout.cpp places its controls.
#include "settings/colours_page.h"

#include "base/twips.h"
#include "calendar/box_layout.h"
#include "core/settings.h"
#include "platform/locale.h"
#include "platform/message_loop.h"
#include "settings/named_colours.h"
#include "settings/palette.h"
#include "toolkit/keys.h"
#include "toolkit/units.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>
#include <vector>

using platform::Mouse_Button;

namespace {

constexpr int first_menu_swatch = 4; ///< index of Back; Back and Fore colour the title and the headers
constexpr int big_step = 10;         ///< pixels by which an arrow key with Shift moves the cross-hair

struct Rgb_Parts {
    int red;
    int green;
    int blue;
};

Rgb_Parts Parts_Of(Colour colour) {
    const int blue = colour / 65536;
    const int green = (colour - blue * 65536) / 256;
    return {colour - blue * 65536 - green * 256, green, blue};
}

/// Returns one channel of the web text. The padding is inconsistent on purpose: a zero precedes a single
/// digit, but not a single letter.
std::string Web_Part(int part) {
    constexpr const char *digits = "0123456789ABCDEF";
    if (part >= 16)
        return {digits[part / 16], digits[part % 16]};
    return part < 10 ? std::string{'0', digits[part]} : std::string{digits[part]};
}

std::string Web_Text(Colour colour) {
    const Rgb_Parts parts = Parts_Of(colour);
    return "#" + Web_Part(parts.red) + Web_Part(parts.green) + Web_Part(parts.blue);
}

/// Returns the three channels as decimal numbers, each after its label.
std::string Parts_Text(Colour colour, const char *red, const char *green, const char *blue) {
    const Rgb_Parts parts = Parts_Of(colour);
    return red + std::to_string(parts.red) + green + std::to_string(parts.green) + blue +
           std::to_string(parts.blue);
}

/// Returns the colour in words for assistive technology.
std::string Spoken_Colour(Colour colour) {
    return Parts_Text(platform::Resolve_Colour(colour), "red ", ", green ", ", blue ");
}

} // namespace

Colours_Page::Colours_Page(Frame &frame, Main_Frm &calendar)
    : Page(frame), calendar_(calendar), swatches_{{{&Col_Today_Lbl, &Col_Today_Pic, &Settings::Col_Today},
                                                   {&Col_Normal_Lbl, &Col_Normal_Pic, &Settings::Col_Normal},
                                                   {&Col_Num_Lbl, &Col_Num_Pic, &Settings::Col_Num},
                                                   {&Col_Text_Lbl, &Col_Text_Pic, &Settings::Col_Text},
                                                   {&Col_Back_Lbl, &Col_Back_Pic, &Settings::Col_Back},
                                                   {&Col_Fore_Lbl, &Col_Fore_Pic, &Settings::Col_Fore}}} {
    for (int i = 0; i < colour_count; ++i)
        Wire_Swatch(i);
    Col_Sys_Opt.On_Click = [this] { Col_Sys_Opt_Click(); };
    Col_Other_Opt.On_Click = [this] { Col_Other_Opt_Click(); };
    Default_Cols_Btn.On_Click = [this] { Default_Cols_Btn_Click(); };
    Wire_Palette();
    std::vector<std::string> names;
    for (const Named_Colour &named : Named_Colours())
        names.emplace_back(named.name);
    Names_Cbo.Set_Items(std::move(names));
    Names_Cbo.On_Click = [this] { Names_Cbo_Click(); };
    constexpr std::array shown_as{"Value:", "Web:", "RGB:"};
    for (int i = 0; i < static_cast<int>(shown_as.size()); ++i) {
        txCol_Lbl[i].Set_Caption(shown_as[static_cast<std::size_t>(i)]);
        txCol[i].Set_Display_Only();
    }
    Style_Preview_Labels();
    Lay_Out();
    Move_Cross(cross_);
}

void Colours_Page::Wire_Swatch(int index) {
    const Swatch &swatch = swatches_[static_cast<std::size_t>(index)];
    swatch.label->Set_Painted();
    swatch.label->Set_Transparent(true);
    swatch.label->Set_Align(platform::Text_Align::Left, true);
    swatch.picture->Set_Tab_Stop();
    swatch.picture->On_Paint = [this, index](platform::Canvas &canvas) { Paint_Swatch(index, canvas); };
    swatch.label->On_Click = [this, index] { Select(index); };
    swatch.picture->On_Click = swatch.label->On_Click;
    swatch.picture->On_Default_Action = swatch.label->On_Click;
}

void Colours_Page::Wire_Palette() {
    Gradient_Pic.Set_Visible(false);
    Pal.Set_Tab_Stop();
    Pal.On_Paint = [this](platform::Canvas &canvas) { Paint_Palette(canvas); };
    Gradient_Pic.On_Paint = [this](platform::Canvas &canvas) { Paint_Gradient(canvas); };
    Pal.On_Mouse_Move = [this](Mouse_Button held, Point at) { Pal_MouseMove(held, at); };
    // A press may come without a move before it.
    Pal.On_Mouse_Down = [this](Mouse_Button, Point at) {
        Move_Cross(Pixel_At(at));
        ShowGradient(Cross_Colour());
    };
    Pal.On_Mouse_Up = [this](Mouse_Button, Point at) {
        Move_Cross(Pixel_At(at));
        ShowColors(Cross_Colour());
    };
    // A mouse click, a key or assistive technology runs this. A click has already moved the cross-hair.
    Pal.On_Click = [this] {
        ShowColors(Cross_Colour());
        Pal_Click();
    };
    Pal.On_Default_Action = Pal.On_Click;
    Pal.On_Key_Down = [this](const platform::Input_Event &event) { Key_Over_Palette(event); };
}

void Colours_Page::Show(const Settings &settings) {
    for (int i = 0; i < colour_count; ++i)
        Set_Swatch(i, settings.*swatches_[static_cast<std::size_t>(i)].setting);
    if (settings.Menu_Col_Sorce == 0) {
        Col_Sys_Opt.Set_Checked(true);
        Col_Sys_Opt_Click();
    } else {
        Col_Other_Opt.Set_Checked(true);
        Col_Other_Opt_Click();
    }
    Select(selector_);
}

void Colours_Page::Write_To(Settings &settings) const {
    for (const Swatch &swatch : swatches_)
        settings.*swatch.setting = swatch.picture->Back_Colour();
    settings.Menu_Col_Sorce = Col_Sys_Opt.Checked() ? 0 : 1;
}

void Colours_Page::Reset_Labels() {
    for (const Swatch &swatch : swatches_) {
        platform::Font font = swatch.label->Font();
        font.bold = false;
        swatch.label->Set_Font(font);
        swatch.picture->Repaint();
    }
}

void Colours_Page::Select(int index) {
    Reset_Labels();
    const Swatch &swatch = swatches_[static_cast<std::size_t>(index)];
    platform::Font font = swatch.label->Font();
    font.bold = true;
    swatch.label->Set_Font(font);
    selector_ = static_cast<std::int16_t>(index);
    Describe_Swatches();
    ShowColors(swatch.picture->Back_Colour());
}

void Colours_Page::Set_Swatch(int index, Colour colour) {
    const Swatch &swatch = swatches_[static_cast<std::size_t>(index)];
    swatch.picture->Set_Back_Colour(colour);
    Describe_Swatches();
}

void Colours_Page::Describe_Swatches() {
    for (int i = 0; i < colour_count; ++i) {
        const Swatch &swatch = swatches_[static_cast<std::size_t>(i)];
        swatch.picture->Set_Access(
            {platform::Access_Role::Choice,
             i == selector_,
             swatch.label->Caption() + " colour, " + Spoken_Colour(swatch.picture->Back_Colour()),
             {},
             "Select"});
    }
}

void Colours_Page::ShowColors(Colour colour) {
    Gradient_Pic.Set_Visible(false);
    colour = platform::Resolve_Colour(colour);
    txCol[0].Set_Text(std::to_string(colour));
    txCol[1].Set_Text(Web_Text(colour));
    txCol[2].Set_Text(Parts_Text(colour, "", ",", ","));
    // Keep the chosen name selected if the colour has two names.
    const auto names = Named_Colours();
    const int chosen = Names_Cbo.Selected();
    if (chosen == -1 || names[static_cast<std::size_t>(chosen)].Colour() != colour)
        Names_Cbo.Select(Index_Of_Colour(colour));
}

void Colours_Page::ShowGradient(Colour colour) {
    ShowColors(colour);
    gradient_ = colour;
    Gradient_Pic.Set_Visible(true);
    Gradient_Pic.Repaint();
}

/// Returns the pixel of palette_ at a point of the control (twips), at any DPI of the screen.
Point Colours_Page::Pixel_At(Point at) const {
    return {Scale_Nearest(at.x, palette_.width, std::max(Pal.Width(), 1)),
            Scale_Nearest(at.y, palette_.height, std::max(Pal.Height(), 1))};
}

Colour Colours_Page::Cross_Colour() const {
    return Palette_Colour(cross_, {palette_.width, palette_.height});
}

void Colours_Page::Move_Cross(Point pixel) {
    cross_ = {std::clamp(pixel.x, 0, palette_.width - 1), std::clamp(pixel.y, 0, palette_.height - 1)};
    Pal.Set_Access({platform::Access_Role::Button, false, "Palette", Spoken_Colour(Cross_Colour()), "Pick"});
    Pal.Repaint();
}

void Colours_Page::Pal_MouseMove(Mouse_Button held, Point at) {
    if (held == Mouse_Button::None) {
        ShowColors(Palette_Colour(Pixel_At(at), {palette_.width, palette_.height}));
    } else {
        Move_Cross(Pixel_At(at));
        ShowGradient(Cross_Colour());
    }
    // Never nest this, because fast mouse moves would process messages without end. A message may destroy the
    // page, so use only the local pointer afterwards.
    const std::shared_ptr<bool> processing = processing_;
    if (std::exchange(*processing, true))
        return;
    platform::Process_Waiting_Messages();
    *processing = false;
}

void Colours_Page::Key_Over_Palette(const platform::Input_Event &event) {
    if (event.key == Key_Return)
        return Pal.On_Click();
    const Point step = Arrow_Step(event.key);
    if (step == Point{})
        return;
    const int pixels = event.shift ? big_step : 1;
    Move_Cross({cross_.x + pixels * step.x, cross_.y + pixels * step.y});
    ShowColors(Cross_Colour());
}

void Colours_Page::Pal_Click() {
    const std::string &shown = txCol[0].Text();
    Colour colour = 0;
    if (std::from_chars(shown.data(), shown.data() + shown.size(), colour).ec != std::errc{})
        return; // the page has not shown a colour yet
    Set_Swatch(selector_, colour);
    Recolour_Preview();
}

/// Gives the chosen name's colour to the selected swatch, as a click on the palette does.
void Colours_Page::Names_Cbo_Click() {
    ShowColors(Named_Colours()[static_cast<std::size_t>(Names_Cbo.Selected())].Colour());
    Pal_Click();
}

void Colours_Page::Col_Sys_Opt_Click() {
    Enable_Menu_Swatches(false);
}

void Colours_Page::Col_Other_Opt_Click() {
    Enable_Menu_Swatches(true);
}

void Colours_Page::Enable_Menu_Swatches(bool enabled) {
    for (std::size_t i = first_menu_swatch; i < swatches_.size(); ++i) {
        swatches_[i].label->Set_Enabled(enabled);
        swatches_[i].label->Set_Fore_Colour(enabled ? text_colour : grey_text_colour);
        swatches_[i].picture->Set_Enabled(enabled);
        swatches_[i].picture->Repaint();
    }
    // The palette must not change a disabled swatch.
    if (!enabled && selector_ >= first_menu_swatch)
        Select(0);
    Recolour_Preview();
}

void Colours_Page::Default_Cols_Btn_Click() {
    const Settings first_run;
    for (int i = 0; i < colour_count; ++i)
        Set_Swatch(i, first_run.*swatches_[static_cast<std::size_t>(i)].setting);
    Recolour_Preview();
}

void Colours_Page::Style_Preview_Labels() {
    for (Label *label :
         {&Preview_Prev_Lbl, &Preview_Month_Lbl, &Preview_Today_Lbl, &Preview_Caption_Today_Lbl,
          &Preview_Style0_Lbl, &Preview_Caption0_Lbl, &Preview_Style1_Lbl, &Preview_Caption1_Lbl})
        label->Set_Painted();
    Preview_Back_Pic.Set_Back_Colour(desktop_colour);
    Preview_Prev_Lbl.Set_Glyph(platform::Glyph::Arrow_Left);
    const Date today = Today();
    Preview_Month_Lbl.Set_Caption(platform::Month_Name(today.month));
    Preview_Today_Lbl.Set_Caption(" " + std::to_string(today.day));
}

void Colours_Page::Recolour_Preview() {
    const Colour num = Col_Num_Pic.Back_Colour();
    const Colour normal = Col_Normal_Pic.Back_Colour();
    const Colour today = Col_Today_Pic.Back_Colour();
    Style_Today(Preview_Today_Lbl, today);
    Preview_Style0_Lbl.Set_Back_Colour(normal);
    Preview_Style1_Lbl.Set_Back_Colour(normal);
    for (Label *box : {&Preview_Today_Lbl, &Preview_Style0_Lbl, &Preview_Style1_Lbl})
        box->Set_Fore_Colour(num);
    // Give each text the colour of its box: the text is a window of its own and cannot be transparent.
    Preview_Caption_Today_Lbl.Set_Back_Colour(today);
    Preview_Caption0_Lbl.Set_Back_Colour(normal);
    Preview_Caption1_Lbl.Set_Back_Colour(normal);
    for (Label *caption : {&Preview_Caption_Today_Lbl, &Preview_Caption0_Lbl, &Preview_Caption1_Lbl})
        caption->Set_Fore_Colour(Col_Text_Pic.Back_Colour());
    const bool own = Col_Other_Opt.Checked();
    for (Label *heading : {&Preview_Prev_Lbl, &Preview_Month_Lbl}) {
        heading->Set_Back_Colour(own ? Col_Back_Pic.Back_Colour() : dark_grey);
        heading->Set_Fore_Colour(own ? Col_Fore_Pic.Back_Colour() : calendar_.Icon_TextColour);
    }
}

void Colours_Page::Paint_Swatch(int index, platform::Canvas &canvas) {
    const Picture_Box &picture = *swatches_[static_cast<std::size_t>(index)].picture;
    const Rect all{0, 0, picture.Width(), picture.Height()};
    // Cover half of the swatch if its colour is not in use.
    if (!picture.Enabled())
        platform::Fill_Polygon(canvas, {{all.width, 0}, {all.width, all.height}, {0, all.height}},
                               face_colour);
    const bool selected = index == selector_;
    platform::Frame_Rect(canvas, all, selected ? text_colour : shadow_colour,
                         selected ? 2 * layout::one_pixel : layout::one_pixel);
}

void Colours_Page::Paint_Palette(platform::Canvas &canvas) {
    platform::Draw_Picture(canvas, palette_, {0, 0, Pal.Width(), Pal.Height()});
    // The cross-hair is a dark frame around a light one. The picked pixel stays visible inside.
    int reach = 4;
    for (const Colour colour : {Rgb(0, 0, 0), Rgb(255, 255, 255)}) {
        const Rect frame{cross_.x - reach, cross_.y - reach, 2 * reach + 1, 2 * reach + 1};
        platform::Frame_Rect(canvas, Pixels_To_Twips(frame), colour, layout::one_pixel);
        --reach;
    }
}

void Colours_Page::Paint_Gradient(platform::Canvas &canvas) {
    // White is at the top, as in the palette.
    const int last = std::max(Twips_To_Pixels(Gradient_Pic.Height()) - 1, 1);
    const int width = Twips_To_Pixels(Gradient_Pic.Width());
    for (int y = 0; y <= last; ++y)
        platform::Fill_Rect(canvas, Pixels_To_Twips(Rect{0, y, width, 1}),
                            Gradient_Colour(gradient_, last - y, last));
}

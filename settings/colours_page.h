// The page "Colours" of the settings dialog: the calendar's six colours, a palette to pick them from, and a
// preview. What it holds goes into the settings elsewhere (saving.cpp).
#pragma once

#include "platform/pictures.h"
#include "settings/page.h"
#include "toolkit/control_array.h"

#include <array>
#include <cstdint>
#include <memory>

struct Settings;

class Colours_Page {
public:
    static constexpr int colour_count = 6;

    Colours_Page(Form &dialog, Frame &frame, Main_Frm &calendar);

    /// Shows the colours of the settings.
    void Load_Settings();
    /// Puts what is chosen into `settings`.
    void Put_Choices(Settings &settings) const;
    /// Places the controls, also after a change of the dots per inch.
    void Lay_Out();

    /// Takes the mark from all six labels.
    void Reset_Labels();
    /// Shows a colour as numbers and in the list of names. Of a system colour the colour that it is now is
    /// shown; the swatch that holds it keeps holding the system colour.
    void ShowColors(Colour colour);
    /// Shows the strip from black over the colour to white beside the palette. The colour counts as shown,
    /// so that the one under the mouse is the one that its release picks.
    void ShowGradient(Colour colour);
    void Pal_MouseMove(platform::Mouse_Button held, Point at);
    /// Gives the colour shown last to the selected swatch.
    void Pal_Click();
    void Col_Sys_Opt_Click();
    void Col_Other_Opt_Click();
    void Default_Cols_Btn_Click();

    Frame Boxes_Fra;
    Picture_Box Col_Today_Pic;
    Label Col_Today_Lbl;
    Picture_Box Col_Normal_Pic;
    Label Col_Normal_Lbl;
    Picture_Box Col_Num_Pic;
    Label Col_Num_Lbl;
    Picture_Box Col_Text_Pic;
    Label Col_Text_Lbl;
    Frame Menu_Fra;
    Option_Button Col_Sys_Opt;
    Option_Button Col_Other_Opt;
    Picture_Box Col_Back_Pic;
    Label Col_Back_Lbl;
    Picture_Box Col_Fore_Pic;
    Label Col_Fore_Lbl;
    Button Default_Cols_Btn;
    Frame Palette_Fra;
    Picture_Box Pal;
    Picture_Box Gradient_Pic; ///< seen while a mouse button is held over the palette
    Control_Array<Label, 3> txCol_Lbl;
    Control_Array<Text_Box, 3> txCol;
    Label Names_Lbl;
    Combo_Box Names_Cbo; ///< the colours that have a name
    Frame Preview_Fra;
    Picture_Box Preview_Back_Pic; ///< the desktop behind the calendar
    Label Preview_Prev_Lbl;
    Label Preview_Month_Lbl;
    Label Preview_Today_Lbl;
    Label Preview_Caption_Today_Lbl;
    Label Preview_Style0_Lbl;
    Label Preview_Caption0_Lbl;
    Label Preview_Style1_Lbl;
    Label Preview_Caption1_Lbl;

private:
    /// One colour: its controls, its setting and the value of a first run.
    struct Swatch {
        Label *label;
        Picture_Box *picture;
        Colour Settings::*setting;
    };

    void Wire_Swatch(int index);
    void Paint_Swatch(int index, platform::Canvas &canvas);
    void Paint_Palette(platform::Canvas &canvas);
    void Paint_Gradient(platform::Canvas &canvas);
    void Wire_Palette();
    void Dress_Preview();
    void Select(int index);
    void Set_Swatch(int index, Colour colour);
    void Describe_Swatches();
    void Recolour_Preview();
    void Key_Over_Palette(const platform::Input_Event &event);
    void Move_Cross(Point pixel);
    Colour Cross_Colour() const;
    Point Pixel_At(Point at) const;
    void Enable_Menu_Swatches(bool enabled);
    void Names_Cbo_Click();
    void Lay_Out_Swatches(int first, int last, int top);
    void Lay_Out_Left();
    void Lay_Out_Palette();
    void Lay_Out_Preview();

    Main_Frm &calendar_;
    std::array<Swatch, colour_count> swatches_; ///< in the order of the selector
    std::int16_t selector_ = 0;                 ///< index of the swatch that takes what is picked
    Picture palette_;
    Point cross_; ///< pixels on the palette: what the keyboard picks
    Colour gradient_ = 0;
    /// Messages are being processed within a move of the mouse. Not a plain member: the page may be gone when
    /// they are.
    std::shared_ptr<bool> pending_ = std::make_shared<bool>(false);
};

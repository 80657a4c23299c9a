// The "Colours" page of the settings dialog: the calendar's six colours, a palette to pick them from, and a
// preview. saving.cpp stores the choices.
#pragma once

#include "platform/pictures.h"
#include "settings/page.h"
#include "toolkit/control_array.h"

#include <array>
#include <cstdint>
#include <memory>

class Colours_Page final : public Page {
public:
    static constexpr int colour_count = 6;

    Colours_Page(Frame &frame, Main_Frm &calendar);
    void Show(const Settings &settings) override;
    void Write_To(Settings &settings) const override;
    void Lay_Out() override;

    /// Shows all six labels in regular weight.
    void Reset_Labels();
    /// Shows a colour as numbers and by its name, and hides the strip of ShowGradient. Shows a system colour
    /// by its current value; the swatch keeps the system colour.
    void ShowColors(Colour colour);
    /// Shows a strip beside the palette, from black through the colour to white. Also shows the colour as
    /// ShowColors does.
    void ShowGradient(Colour colour);
    void Pal_MouseMove(platform::Mouse_Button held, Point at);
    /// Gives the selected swatch the colour that ShowColors showed last.
    void Pal_Click();
    void Col_Sys_Opt_Click();
    void Col_Other_Opt_Click();
    void Default_Cols_Btn_Click();

    Frame Boxes_Fra{frame_, "Boxes_Fra", "Boxes"};
    Picture_Box Col_Today_Pic{Boxes_Fra, "Col_Today_Pic"};
    Label Col_Today_Lbl{Boxes_Fra, "Col_Today_Lbl", "Today's box"};
    Picture_Box Col_Normal_Pic{Boxes_Fra, "Col_Normal_Pic"};
    Label Col_Normal_Lbl{Boxes_Fra, "Col_Normal_Lbl", "Normal boxes"};
    Picture_Box Col_Num_Pic{Boxes_Fra, "Col_Num_Pic"};
    Label Col_Num_Lbl{Boxes_Fra, "Col_Num_Lbl", "Day numbers"};
    Picture_Box Col_Text_Pic{Boxes_Fra, "Col_Text_Pic"};
    Label Col_Text_Lbl{Boxes_Fra, "Col_Text_Lbl", "Event texts"};
    Frame Menu_Fra{frame_, "Menu_Fra", "Top Menu"};
    Option_Button Col_Sys_Opt{Menu_Fra, "Col_Sys_Opt", "Use System Colours"};
    Option_Button Col_Other_Opt{Menu_Fra, "Col_Other_Opt", "Use &Other Colours"};
    Picture_Box Col_Back_Pic{Menu_Fra, "Col_Back_Pic"};
    Label Col_Back_Lbl{Menu_Fra, "Col_Back_Lbl", "Background"};
    Picture_Box Col_Fore_Pic{Menu_Fra, "Col_Fore_Pic"};
    Label Col_Fore_Lbl{Menu_Fra, "Col_Fore_Lbl", "Text"};
    Button Default_Cols_Btn{frame_, "Default_Cols_Btn", "&Default Colours"};
    Frame Palette_Fra{frame_, "Palette_Fra", "Palette"};
    Picture_Box Pal{Palette_Fra, "Pal"};
    Picture_Box Gradient_Pic{Palette_Fra,
                             "Gradient_Pic"}; ///< visible while a mouse button is held over the palette
    Control_Array<Label, 3> txCol_Lbl;
    Control_Array<Text_Box, 3> txCol{Palette_Fra, "txCol", txCol_Lbl, "txCol_Lbl"};
    Label Names_Lbl{Palette_Fra, "Names_Lbl", "&Name:"};
    Combo_Box Names_Cbo{Palette_Fra, "Names_Cbo"}; ///< the colours that have names
    Frame Preview_Fra{frame_, "Preview_Fra", "Preview"};
    Picture_Box Preview_Back_Pic{Preview_Fra, "Preview_Back_Pic"}; ///< the desktop behind the calendar
    Label Preview_Prev_Lbl{Preview_Fra, "Preview_Prev_Lbl"};
    Label Preview_Month_Lbl{Preview_Fra, "Preview_Month_Lbl"};
    Label Preview_Today_Lbl{Preview_Fra, "Preview_Today_Lbl"};
    Label Preview_Caption_Today_Lbl{Preview_Fra, "Preview_Caption_Today_Lbl", "Event"};
    Label Preview_Style0_Lbl{Preview_Fra, "Preview_Style0_Lbl", " 12"};
    Label Preview_Caption0_Lbl{Preview_Fra, "Preview_Caption0_Lbl", "Event"};
    Label Preview_Style1_Lbl{Preview_Fra, "Preview_Style1_Lbl", " 26"};
    Label Preview_Caption1_Lbl{Preview_Fra, "Preview_Caption1_Lbl", "Event"};

private:
    /// One of the calendar's colours: the label that names it, the picture that shows it, and its setting.
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
    void Style_Preview_Labels();
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
    /// Indexed by selector_.
    std::array<Swatch, colour_count> swatches_;
    std::int16_t selector_ = 0; ///< index of the swatch that gets the picked colour
    Picture palette_;
    Point cross_; ///< the pixel of the palette under the cross-hair
    Colour gradient_ = 0;
    /// True while a mouse move processes messages. Shared, because a message may destroy the page.
    std::shared_ptr<bool> processing_ = std::make_shared<bool>(false);
};

// The "Style & Position" page of the settings dialog: examples of the box styles, and a miniature of the
// screen for the calendar's position. saving.cpp stores the choices.
#pragma once

#include "platform/pictures.h"
#include "settings/page.h"
#include "settings/theme_names.h"

#include <cstdint>
#include <optional>

/// The parts of the calendar's look that this month's theme decides instead of the page.
struct Theme_Look {
    bool decides_style = false; ///< true even if the pack has no style for the month
    bool decides_position = false;
    std::optional<std::int16_t> style;
    std::optional<std::int16_t> position;
    Picture picture; ///< the wallpaper; empty: the desktop's own colour
};

class Style_Page final : public Page {
public:
    static constexpr const char *theme_hint = "The theme sets this. See the Wallpaper page.";

    Style_Page(Frame &frame, Main_Frm &calendar);
    /// Shows an invalid position code as the first position.
    void Show(const Settings &settings) override;
    void Write_To(Settings &settings) const override;
    void Lay_Out() override;

    /// Shows the look of a theme pack, and disables the choices that the pack decides.
    void Set_Theme(const Theme_Look &look);
    /// Returns the code of the chosen place.
    std::int16_t Get_Set_Position() const { return set_position_; }

    // These functions update the previews after a choice.
    void Style_Preview();
    void Preview_Position();
    /// Shows the name of the position. Preview_Position marks the place on the miniature.
    void Position_Boxes();

    Frame Style_Fra{frame_, "Style_Fra", "Box Style"};
    Option_Button Style1_Opt{Style_Fra, "Style1_Opt", Box_Style_Name(0)}; ///< 0 in the settings
    Option_Button Style2_Opt{Style_Fra, "Style2_Opt", Box_Style_Name(1)}; ///< 1 in the settings
    // The desktop behind the examples. A click on any part of an example chooses its option.
    Picture_Box Backdrop1_Pic{Style_Fra, "Backdrop1_Pic"};
    Picture_Box Backdrop2_Pic{Style_Fra, "Backdrop2_Pic"};
    Label Example1_Lbl{Style_Fra, "Example1_Lbl", " 12"};   ///< a numbered box in style 0
    Label Example2_Lbl{Style_Fra, "Example2_Lbl", "Event"}; ///< the event in that box
    Label Example3_Lbl{Style_Fra, "Example3_Lbl", " 12"};   ///< a numbered box in style 1
    Label Example4_Lbl{Style_Fra, "Example4_Lbl", "Event"};
    Label Style_Theme_Lbl{Style_Fra, "Style_Theme_Lbl", theme_hint}; ///< explains why the styles are disabled
    Frame Position_Fra{frame_, "Position_Fra", "Position"};
    Option_Button Pos_Set_Opt{Position_Fra, "Pos_Set_Opt", "&Set position"};
    Label Pos_Hint_Lbl{Position_Fra, "Pos_Hint_Lbl"}; ///< explains how to choose a place, or shows theme_hint
    Option_Button Pos_Manual_Opt{Position_Fra, "Pos_Manual_Opt", "&Manual position"};
    Label Manual_Lbl{Position_Fra, "Manual_Lbl"};                 ///< the coordinates of the manual position
    Picture_Box Pos_Preview_Img{Position_Fra, "Pos_Preview_Img"}; ///< the miniature
    Label Position_Lbl{Position_Fra, "Position_Lbl"};             ///< name of the position on the miniature

private:
    void Wire_Examples();
    void Choose_Style(Option_Button &option);
    void Choose_Position(std::int16_t place);
    void Key_Over_Miniature(const platform::Input_Event &event);
    void Paint_Miniature(platform::Canvas &canvas);
    void Show_Position();
    std::int16_t Chosen_Style() const;
    std::int16_t Chosen_Position() const;
    std::int16_t Shown_Style() const;
    std::int16_t Shown_Position() const;

    Main_Frm &calendar_;
    Theme_Look theme_;
    std::int16_t set_position_ = 0;
};

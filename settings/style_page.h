// The page "Style & Position" of the settings dialog: the box style by examples, and the calendar's position
// on a miniature of the screen. What it holds goes into the settings elsewhere (saving.cpp).
#pragma once

#include "platform/pictures.h"
#include "settings/page.h"
#include "settings/theme_names.h"

#include <cstdint>
#include <optional>

/// What a theme pack decides this month in place of the page.
struct Theme_Look {
    bool rules_style = false; ///< also where the pack has no style for the month
    bool rules_position = false;
    std::optional<std::int16_t> style;
    std::optional<std::int16_t> position;
    Picture picture; ///< the wallpaper; none: the desktop's own colour is shown
};

class Style_Page final : public Page {
public:
    static constexpr const char *theme_hint = "The theme chooses these. See the page Wallpaper.";

    Style_Page(Frame &frame, Main_Frm &calendar);
    /// A position that is no code is shown as the first one.
    void Show(const Settings &settings) override;
    void Write_To(Settings &settings) const override;
    void Lay_Out() override;

    /// Shows what a theme pack decides, and locks the choices that it rules.
    void Set_Theme(const Theme_Look &look);
    /// The code of the chosen place.
    std::int16_t Get_Set_Position() const { return set_position_; }

    // These keep the previews true to the choices.
    void Style_Preview();
    void Preview_Position();
    /// Names the chosen place, which Preview_Position marks on the miniature.
    void Position_Boxes();

    Frame Style_Fra{frame_, "Style_Fra", "Box Style"};
    Option_Button Style1_Opt{Style_Fra, "Style1_Opt", Box_Style_Name(0)}; ///< 0 in the settings
    Option_Button Style2_Opt{Style_Fra, "Style2_Opt", Box_Style_Name(1)}; ///< 1 in the settings
    // The desktop behind the examples; a click on any part of one counts as one on its option.
    Picture_Box Backdrop1_Pic{Style_Fra, "Backdrop1_Pic"};
    Picture_Box Backdrop2_Pic{Style_Fra, "Backdrop2_Pic"};
    Label Example1_Lbl{Style_Fra, "Example1_Lbl", " 12"};   ///< a box with its number in style 1
    Label Example2_Lbl{Style_Fra, "Example2_Lbl", "Event"}; ///< the text in it
    Label Example3_Lbl{Style_Fra, "Example3_Lbl", " 12"};   ///< the same in style 2
    Label Example4_Lbl{Style_Fra, "Example4_Lbl", "Event"};
    Label Style_Theme_Lbl{Style_Fra, "Style_Theme_Lbl", theme_hint}; ///< says why the styles are locked
    Frame Position_Fra{frame_, "Position_Fra", "Position"};
    Option_Button Pos_Set_Opt{Position_Fra, "Pos_Set_Opt", "&Set position"};
    Label Pos_Hint_Lbl{Position_Fra, "Pos_Hint_Lbl"}; ///< says how a place is chosen, or why none can be
    Option_Button Pos_Manual_Opt{Position_Fra, "Pos_Manual_Opt", "&Manual position"};
    Label Manual_Lbl{Position_Fra, "Manual_Lbl"};                 ///< the coordinates of the manual position
    Picture_Box Pos_Preview_Img{Position_Fra, "Pos_Preview_Img"}; ///< the miniature
    Label Position_Lbl{Position_Fra, "Position_Lbl"};             ///< name of the position that it shows

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

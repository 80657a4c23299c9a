// The page "Style & Position" of the settings dialog: the box style by examples, and the calendar's position
// on a miniature of the screen. What it holds goes into the settings elsewhere (saving.cpp).
#pragma once

#include "platform/pictures.h"
#include "settings/page.h"

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

class Style_Page {
public:
    using Theme_Look = ::Theme_Look;

    [[gnu::noinline]] Style_Page(Form &dialog, Frame &frame, Main_Frm &calendar);

    /// Shows style and position of the settings. A position that is no code is shown as the first one.
    void Load_Settings();
    /// Shows what a theme pack decides, and locks the choices that it rules.
    void Set_Theme(const Theme_Look &look);
    /// Places the controls, also after a change of the dots per inch.
    void Lay_Out();

    /// The code of the chosen place.
    std::int16_t Get_Set_Position() const { return set_position_; }

    // As the settings hold the choices.
    std::int16_t Chosen_Style() const;
    std::int16_t Chosen_Position() const;

    // These keep the previews true to the choices.
    void Style_Preview();
    void Preview_Position();
    /// Names the chosen place, which Preview_Position marks on the miniature.
    void Position_Boxes();

    Frame Style_Fra;
    Option_Button Style1_Opt;  ///< "Thin Box", 0 in the settings
    Option_Button Style2_Opt;  ///< "Square Box", 1 in the settings
    Picture_Box Backdrop1_Pic; ///< the desktop behind the example; a click on it counts as one on that
    Picture_Box Backdrop2_Pic;
    Label Example1_Lbl; ///< a box with its number in style 1
    Label Example2_Lbl; ///< the text in it
    Label Example3_Lbl; ///< the same in style 2
    Label Example4_Lbl;
    Label Style_Theme_Lbl; ///< says why the styles are locked
    Frame Position_Fra;
    Option_Button Pos_Set_Opt;
    Label Pos_Hint_Lbl; ///< says how a place is chosen, or why none can be
    Option_Button Pos_Manual_Opt;
    Label Manual_Lbl;            ///< the coordinates of the manual position
    Picture_Box Pos_Preview_Img; ///< the miniature
    Label Position_Lbl;          ///< name of the position that it shows

private:
    void Wire_Examples();
    void Choose_Style(Option_Button &option);
    void Choose_Position(std::int16_t place);
    void Key_Over_Miniature(const platform::Input_Event &event);
    void Paint_Miniature(platform::Canvas &canvas);
    void Show_Position();
    std::int16_t Shown_Style() const;
    std::int16_t Shown_Position() const;

    Main_Frm &calendar_;
    Theme_Look theme_;
    std::int16_t set_position_ = 0;
};

// The month as it is seen: the day boxes under a row of weekday headers and a title, their sizes, texts and
// colours. Events, the user's steps and the window's place are main_frm.h. Text fitting is in box_styles.cpp,
// the rest in month_grid.cpp and colours.cpp.
#pragma once

#include "core/date.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"

#include <cstdint>
#include <string>
#include <string_view>

class Month_Grid : public Form {
public:
    static constexpr int box_count = 37; ///< 6 places for the worst first weekday and 31 days
    static constexpr int days_a_week = 7;

    Month_Grid();

    // The shown month.
    std::int16_t Cur_Month = 0;
    std::int16_t Cur_Year = 0;
    bool Compacted = false; ///< only the title is left

    // Colours of the desktop's icon labels; a background of -1 is none.
    Colour Icon_BackColour = 0;
    Colour Icon_TextColour = 0;

    /// Index of the box that holds day 1 of a month, 0 to 6.
    static std::int16_t Start_Box(std::int16_t month, std::int16_t year);
    /// The day that box `index` of the shown month stands for.
    Date Date_Of_Box(int index) const;
    void Set_Day_Headers();
    void Reset_Boxes();
    void Hide_Misc_Boxes();
    /// Gives today's box its colour, if its month is shown.
    void Mark_Today();
    void Clear_Tooltips();
    void Update_Title();
    /// Clips the window to its visible controls.
    void TransparentForm();

    /// Gives all boxes, headers and the title their sizes and places: 0 is "Thin Box", every other number
    /// "Square Box".
    void Which_Style(std::int16_t style);
    /// Gives the event texts their place in the boxes of a style, and measures the room before a "...".
    void DDD_Style(std::int16_t style);
    /// Puts as much of `text` into the label as fits, broken at words; "..." stands for the rest.
    void DotDotDot(Label &label, std::string_view text);
    /// Drops characters from the end of DotDotDot_Lbl's caption until it is narrower than `label`.
    void Get_Line(const Label &label);

    void Set_Colours();
    void Colour_Boxes();
    void Colour_Nums();
    void Colour_Texts();
    void Colour_Menus();
    /// Gives today's box, which is the one with this index, its colours.
    void Colour_Today(int index);

    Label Prev_Month_Lbl{*this, "Prev_Month_Lbl"};
    Label Which_Month_Lbl{*this, "Which_Month_Lbl"};
    Label Next_Month_Lbl{*this, "Next_Month_Lbl"};
    Control_Array<Label, days_a_week> Day_Lbl{*this, "Day_Lbl"};
    Control_Array<Label, box_count> Box_Lbl{*this, "Box_Lbl"};
    Control_Array<Label, box_count> Box_Caption_Lbl{*this, "Box_Caption_Lbl"};
    Label DotDotDot_Lbl{*this, "DotDotDot_Lbl"}; ///< never seen: texts are measured in it

protected:
    /// Shows the text of a day in its box, its tooltip and to assistive technology; an empty one: no event.
    void Fill_Box(int index, std::string_view text);
    /// Gives the boxes of a month their numbers, from its first day on, and their names for assistive
    /// technology.
    void Number_Boxes(Date date);
    void Describe_Heading();
    void Apply_Contrast();

    bool layout_outdated_ =
        false; ///< what was laid out is not what the month shows now: it changed in compact mode
    std::int16_t style_ = 0; ///< of the last Which_Style

private:
    bool high_contrast_ = false; ///< the shown colours are those of high contrast
};

/// A day as the user reads it: Tuesday 5th March 2002.
std::string Full_Date(const Date &date);

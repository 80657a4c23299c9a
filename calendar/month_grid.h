// The month as the user sees it: day boxes under a row of weekday headers and a title, with sizes, texts and
// colours. main_frm.h has the events, the user's actions and the window's place. box_styles.cpp fits the
// texts, colours.cpp has the colours, month_grid.cpp the rest.
#pragma once

#include "core/date.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"

#include <cstdint>
#include <string>
#include <string_view>

class Month_Grid : public Form {
public:
    static constexpr int box_count = 37; ///< at most 6 unused boxes before day 1, and 31 days
    static constexpr int days_a_week = 7;

    Month_Grid();

    // The shown month.
    std::int16_t Cur_Month = 0;
    std::int16_t Cur_Year = 0;
    bool Compacted = false; ///< only the title is shown

    // Colours of the desktop's icon labels. A background of -1 means none.
    Colour Icon_BackColour = 0;
    Colour Icon_TextColour = 0;

    /// Returns the index of the box of day 1 of a month, 0 to 6.
    static std::int16_t Start_Box(std::int16_t month, std::int16_t year);
    /// Returns the day of box `index` in the shown month. For a box outside the month, the day is below 1 or
    /// beyond the month's end.
    Date Date_Of_Box(int index) const;
    void Set_Day_Headers();
    void Reset_Boxes();
    void Hide_Misc_Boxes();
    /// Gives today's box its colours if the shown month is today's.
    void Mark_Today();
    void Clear_Tooltips();
    void Update_Title();
    /// Clips the window to its visible controls.
    void TransparentForm();

    /// Places and sizes all boxes, headers and the title. Style 0 is "Thin Box", every other number "Square
    /// Box".
    void Which_Style(std::int16_t style);
    /// Places the event texts in the boxes of a style, and measures the room before a "...".
    void DDD_Style(std::int16_t style);
    /// Puts as much of `text` into the label as fits, wrapped between words, and replaces the rest with
    /// "...".
    void DotDotDot(Label &label, std::string_view text);
    /// Drops characters from the end of DotDotDot_Lbl's caption until it is narrower than `label`.
    void Get_Line(const Label &label);

    void Set_Colours();
    void Colour_Boxes();
    void Colour_Nums();
    void Colour_Texts();
    void Colour_Menus();
    /// Gives box `index` the colours of today's box.
    void Colour_Today(int index);

    Label Prev_Month_Lbl{*this, "Prev_Month_Lbl"};
    Label Which_Month_Lbl{*this, "Which_Month_Lbl"};
    Label Next_Month_Lbl{*this, "Next_Month_Lbl"};
    Control_Array<Label, days_a_week> Day_Lbl{*this, "Day_Lbl"};
    Control_Array<Label, box_count> Box_Lbl{*this, "Box_Lbl"};
    Control_Array<Label, box_count> Box_Caption_Lbl{*this, "Box_Caption_Lbl"};
    Label DotDotDot_Lbl{*this, "DotDotDot_Lbl"}; ///< never visible: measures texts

protected:
    /// Shows the text of a day in its box, in its tooltip if standard tooltips are on, and to assistive
    /// technology. An empty text means no event.
    void Fill_Box(int index, std::string_view text);
    /// Numbers the boxes of a month from the day `date` on, and names them for assistive technology.
    void Number_Boxes(Date date);
    void Describe_Heading();
    void Apply_Contrast();

    bool layout_outdated_ = false; ///< compact mode: the hidden boxes are out of date
    std::int16_t style_ = 0;       ///< from the last Which_Style

private:
    bool high_contrast_ = false; ///< the window shows the high contrast colours
};

/// Returns a date in words, such as "Tuesday 5th March 2002", with the user's names of days and months.
/// `month` is the name of its month.
std::string Full_Date(const Date &date, std::string_view month);

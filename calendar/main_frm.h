// The calendar window: the month in its boxes under a row of weekday headers and a title. Its procedures are
// in files by topic: start-up and the date watch (main_frm.cpp), the month (month_grid.cpp), geometry and
// text fitting (box_styles.cpp), steps and keys (navigation.cpp), colours.cpp and placement.cpp.
#pragma once

#include "core/date.h"
#include "core/event_store.h"
#include "platform/message_loop.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/guard.h"
#include "toolkit/timer.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

class Main_Frm : public Form {
public:
    static constexpr int box_count = 37; ///< 6 places for the worst first weekday and 31 days
    static constexpr int days_a_week = 7;

    Main_Frm();
    ~Main_Frm() override;

    /// Starts the program up; false when it has to end at once, which the user has been told then.
    bool Form_Load();

    // The shown month, and what the program remembers of today.
    std::int16_t Cur_Month = 0;
    std::int16_t Cur_Year = 0;
    bool Alert_Done = false; ///< no further alert today
    bool Compacted = false;
    Event_Store Events;

    // Colours of the desktop's icon labels; a background of -1 is none.
    platform::Colour Icon_BackColour = 0;
    platform::Colour Icon_TextColour = 0;

    /// Opens the editor for a day box; whoever owns both windows fills it.
    std::function<void(int index)> Open_Editor;

    // The month in the boxes.

    /// Index of the box that holds day 1 of a month, 0 to 6.
    static std::int16_t Start_Box(std::int16_t month, std::int16_t year);
    /// The day that box `index` of the shown month stands for.
    Date Date_Of_Box(int index) const;
    void Set_Day_Headers();
    void Reset_Boxes();
    /// Lays the month out: numbers, hidden boxes, the window's place and shape.
    void Setup_Boxes(std::int16_t month, std::int16_t year);
    void Hide_Misc_Boxes();
    /// Gives today's box its colour, if its month is shown.
    void Mark_Today();
    void Clear_Tooltips();
    /// Puts the events of the shown month into their boxes and alerts the user of today's.
    void Load_Dates();
    /// Takes one record in: into its box, if it belongs to the shown month, and as an alert, if it is
    /// today's. Throws Conversion_Error or std::out_of_range for a malformed one.
    void Enter_Date(std::string_view record, const Date &today);
    void Update_Title();
    /// All of the display, after the shown month changed.
    void Redraw();

    // Box styles.

    /// Gives all boxes, headers and the title their sizes and places: 0 is "Thin Box", every other number
    /// "Square Box".
    void Which_Style(std::int16_t style);
    /// Gives the event texts their place in the boxes of a style, and measures the room before a "...".
    void DDD_Style(std::int16_t style);
    /// Puts as much of `text` into the label as fits, broken at words; "..." stands for the rest.
    void DotDotDot(Label &label, std::string_view text);
    /// Drops characters from the end of DotDotDot_Lbl's caption until it is narrower than `label`.
    void Get_Line(const Label &label);
    /// The style in use.
    std::int16_t Effective_Style() const;

    // Place and shape.
    /// Moves the window to a position code (desktop/position.h); a number that is none leaves it.
    void Position_Form(std::int16_t code);
    /// Remembers the work area's height. Throws Conversion_Error when it leaves 16 bits, as RePosition does.
    void Set_Repos();
    /// Places the window anew when the work area's height is another one.
    void RePosition();
    /// Clips the window to its visible controls.
    void TransparentForm();
    std::int16_t Effective_Position() const;
    void No_ShowDesktop_and_IconColours();

    // Colours.
    void Set_Colours();
    void Colour_Boxes();
    void Colour_Nums();
    void Colour_Texts();
    void Colour_Menus();

    // Themes.
    void Get_Wallpaper_Stuff();

    // What the user and the time do.
    void Next_Month();
    void Previous_Month();
    void Edit_Box(int index);
    void Show_Today_Event();
    void Form_KeyUp(const platform::Input_Event &event);
    void Dectect_Date_Timer_Timer();

    Label Prev_Month_Lbl;
    Label Which_Month_Lbl;
    Label Next_Month_Lbl;
    Control_Array<Label, days_a_week> Day_Lbl;
    Control_Array<Label, box_count> Box_Lbl;
    Control_Array<Label, box_count> Box_Caption_Lbl;
    Label DotDotDot_Lbl; ///< never seen: texts are measured in it
    Timer Dectect_Date_Timer;

private:
    /// What the names of the boxes were made for.
    struct Described_Month {
        std::int16_t year = 0;
        std::int16_t month = 0;
        int start = 0;
        int today = 0; ///< day of the month, 0: today is in another month
        friend bool operator==(const Described_Month &, const Described_Month &) = default;
    };

    bool Check_For_Multiple();
    void Wire_Events();
    void Wire_Box(Label &label, int index);
    void Hear(platform::Broadcast broadcast);
    static std::string Regional_Look();
    void Take_Regional_Settings();
    void Renew_Layout();

    void Unmark(int index);
    void Describe_Boxes();
    void Describe_Arrows();
    void Set_Event_Value(int index, std::string_view text);
    void Alert(const Date &today, std::string_view text);

    void Remember_Height(int twips);

    std::size_t Line_End(const Label &label, std::string_view rest);
    std::string_view Measurable(const Label &label, std::string_view text);
    bool Fits(const Label &label, std::string_view text);

    std::string date_stamp_;
    std::string regional_look_;
    std::optional<Described_Month> described_;
    std::optional<Date> alert_open_; ///< the day whose alert is being shown
    std::int16_t Desktop_Height = 0; ///< of the work area at the last placement, twips
    Repeated_Guard placement_guard_;
};

/// A day as the user reads it: Tuesday 5th March 2002.
std::string Full_Date(const Date &date);

/// A colour that stands out from `colour` and is of its hue.
platform::Colour Strong_Shade(platform::Colour colour);

/// The text that tells of today's event.
std::string Today_Text(const Date &today, std::string_view text);

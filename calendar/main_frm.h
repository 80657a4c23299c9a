// The calendar window: the month in its boxes under a row of weekday headers and a title. Its procedures are
// in files by topic: start-up and the date watch (main_frm.cpp), the month (month_grid.cpp), text fitting
// (box_styles.cpp), steps from month to month (navigation.cpp), the keys (focus.cpp), menus.cpp,
// tooltips.cpp, compact.cpp, colours.cpp, themes.cpp, placement.cpp, dragging.cpp,
// what follows changed settings (follow.cpp). What has a state of its
// own is a part: the keyboard's mark, the drag, the balloon; and in desktop/ place and attachment.
#pragma once

#include "base/callback.h"
#include "calendar/day_mark.h"
#include "calendar/form_drag.h"
#include "calendar/held_balloon.h"
#include "core/date.h"
#include "core/event_store.h"
#include "core/settings.h"
#include "desktop/attachment.h"
#include "desktop/form_place.h"
#include "platform/message_loop.h"
#include "platform/shell.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/timer.h"
#include "ui/splash_frm.h"

#include <array>
#include <cstdint>
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
    bool Timer_Compacted = false;  ///< by the timer once: the mouse over the title expands it, and ends this
    std::int16_t Tooltip_Box = -1; ///< the day box of the last balloon
    Event_Store Events;

    // Colours of the desktop's icon labels; a background of -1 is none.
    Colour Icon_BackColour = 0;
    Colour Icon_TextColour = 0;

    // The event editor, of which the calendar knows no more than this. Whoever owns both windows fills it;
    // empty, there is no editor.
    Callback<void(int index)> Open_Editor; ///< for a day box
    Callback<bool()> Ask_Unsaved;          ///< offers unsaved text for saving; false: the user wants to stay
    Callback<bool()> Editor_Visible;
    Callback<void(Form *modal)> Block_Editor; ///< as Set_Blocked_By does with the calendar

    // The settings dialog, likewise.
    Callback<void()> Open_Settings;
    Callback<void()> Close_Settings; ///< at the end, whatever is in it
    Callback<bool()> Settings_Visible;
    Callback<void()> Event_Saved; ///< the data file is another one now

    /// Whether the program may end now; asks for unsaved text first.
    bool May_End() const;

    /// Of which the window has its style, its position and what it takes of a theme: Cur_Settings, but for
    /// the length of a preview. Must not be null.
    const Settings *Shown_Settings = &Cur_Settings;

    /// Makes the window show all that the settings say, after they were `before`, or after a pack told
    /// others: style, title, shape, position, texts and colours. With `where_dropped` a window that was
    /// dragged away from its position, or is only its title, stays where it is.
    void Follow(const Settings &before, bool where_dropped = false);

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
    /// today's. Throws Conversion_Error or another std::exception for a malformed one.
    void Enter_Date(std::string_view record, const Date &today);
    /// Shows the text that was saved for a day in its box, if that is one of the shown month. Where the same
    /// month of another year is shown, a yearly event comes or goes with it.
    void Show_Saved(const Date &date, std::string_view text);
    void Update_Title();
    /// Makes today's month the shown one, without drawing it. Gives today.
    Date Take_Today();
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
    /// Remembers the work area's height.
    void Set_Repos() { place_.Take_Height(); }
    /// Places the window anew when the work area's height is another one; puts it back when something else
    /// has moved it.
    void RePosition();
    /// Clips the window to its visible controls.
    void TransparentForm();
    /// The position code in use.
    std::int16_t Effective_Position() const;
    /// Puts the window into the shell's desktop and takes the colours of its icon labels over; also shows the
    /// splash window. What of the shell is missing is left out in silence.
    void No_ShowDesktop_and_IconColours();
    void Set_Icon_Colours(platform::Shell_Window list, Colour background, Colour text);

    // Colours.
    void Set_Colours();
    void Colour_Boxes();
    void Colour_Nums();
    void Colour_Texts();
    void Colour_Menus();
    /// Gives today's box, which is the one with this index, its colours.
    void Colour_Today(int index);

    // Themes. The two steps throw what goes wrong with the month's picture (themes/theme_pack.h), and
    // Conversion_Error for a number in the pack that is none.

    /// Where themes are in use: hangs today's picture of the pack up, and takes its box style and position
    /// over as far as the settings want them.
    void Get_Wallpaper_Stuff(const std::string &pack);
    /// The same for any month, whether themes are in use or not.
    void Preview_Wallpaper_Stuff(const std::string &pack, std::int16_t month);
    /// The value text of a month, or Theme_Error, which the user has been told then; a missing pack ends the
    /// use of themes and takes the wallpaper down.
    static std::string Get_Paper_Details(std::int16_t month, const std::string &pack);
    /// What the pack told last; nothing before that.
    std::optional<std::int16_t> Theme_BoxStyle;
    std::optional<std::int16_t> Theme_Pos;

    // What the user and the time do.
    void Next_Month();
    void Previous_Month();
    void Step_Year(int years);
    void Edit_Box(int index);
    void Show_Today_Event();
    void Form_KeyDown(const platform::Input_Event &event);
    void Form_KeyUp(const platform::Input_Event &event);
    void Dectect_Date_Timer_Timer();
    /// Steps to another box style; where a theme's style rules, the user is asked to turn that off first.
    void Change_Style(int step);
    /// Ends the program, unless unsaved text keeps the user.
    void End_Program();

    // Popup menus. With `at`, in twips on the form, they open there instead of at the mouse.
    void Popup_Menu(int index, const Point *at = nullptr);
    void Popup_Months(const Point *at = nullptr);
    /// The years around the shown one that the calendar can show; in compact mode only "Expand".
    void Popup_Years(const Point *at = nullptr);
    /// Deletes the event of a day box.
    void Clear_Box(int index);
    /// Takes the newest change of the events back.
    void Undo();

    // Compact mode.
    /// Goes into compact mode, or out of it.
    void Which_Month_Lbl_DblClick();
    void Compact_Timer_Timer();
    /// Begins the countdown to compact mode anew: the user does something with the calendar.
    void Restart_Countdown();

    // The balloon.
    bool Balloon_Showing() const { return Balloon.Showing(); }
    void TimeOut(float seconds);
    void Balloon_Tooltip(int index, std::string_view message);
    void Hide_Balloon() { Balloon.Hide(); }
    /// Lets compact mode come again after a dialog is closed.
    void Resume_Auto_Compact();

    Label Prev_Month_Lbl;
    Label Which_Month_Lbl;
    Label Next_Month_Lbl;
    Control_Array<Label, days_a_week> Day_Lbl;
    Control_Array<Label, box_count> Box_Lbl;
    Control_Array<Label, box_count> Box_Caption_Lbl;
    Label DotDotDot_Lbl; ///< never seen: texts are measured in it
    Timer Dectect_Date_Timer;
    Timer Compact_Timer{60000};
    Desktop_Attachment Attachment{*this};
    Splash_Frm Splash;
    Held_Balloon Balloon;

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
    void Hear_Broadcasts();
    bool Hear(platform::Broadcast broadcast);
    void Follow_Contrast();
    void Take_Regional_Settings();
    void Renew_Layout();

    void Popup_Title_Menu(Point mouse);

    void Compact();
    void Expand();
    void Caption_Moved();

    void Box_Mouse_Down(platform::Mouse_Button button, int index, Point at);
    void Box_Held(int index);

    void Function_Key(int key);
    bool Day_Key(int key);
    void Popup_Below_Title(bool months);
    void Act_On_Marked(int key);
    void Move_Mark(int days);
    bool Show_Mark();
    void Update_Mark();
    int Marked_Box() const { return Start_Box(Cur_Month, Cur_Year) + mark_.Day() - 1; }
    void Take_Focus(bool has_focus);

    void Describe_Boxes();
    void Describe_Heading();
    void Describe_First_Steps();
    void Set_Event_Value(int index, std::string_view text);
    void Fill_Box(int index, std::string_view text);
    void Show_Entered();
    void Alert(const Date &today, std::string_view text);

    void Keep_Place(const std::optional<Point> &from);

    std::string date_stamp_;
    std::string regional_look_;
    std::optional<Described_Month> described_;
    /// Texts that are read and not in their boxes yet.
    std::array<std::optional<std::string>, box_count> entered_;
    bool contrast_ = false; ///< the shown colours are those of high contrast
    bool stale_ = false;    ///< what was laid out is not what the month shows now: it changed in compact mode
    std::int16_t style_ = 0;  ///< of the last Which_Style
    unsigned fills_ = 0;      ///< counts the fillings: one that begins inside another puts an end to that
    bool broken_off_ = false; ///< the last filling: events of the month may not be in their boxes
    Form_Place place_{*this};
    Form_Drag drag_{*this, [this](const std::optional<Point> &from) { Keep_Place(from); }};
    Day_Mark mark_{*this};
    int pending_key_ = 0;    ///< went down here and acts when it comes up
    bool stray_key_ = false; ///< a key that comes up now went down in another window
};

/// A day as the user reads it: Tuesday 5th March 2002.
std::string Full_Date(const Date &date);

/// The text that tells of today's event.
std::string Today_Text(const Date &today, std::string_view text);

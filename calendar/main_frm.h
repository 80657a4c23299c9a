// The calendar window: what the user, the time and the system do to the month (month_grid.h). Its procedures
// are in files by topic: start-up and the date watch are in main_frm.cpp, the keys in focus.cpp, the others
// as they are called. What has a state of its own is a part: the keyboard's mark, the drag, the balloon; and
// in desktop/ place and attachment.
#pragma once

#include "base/callback.h"
#include "calendar/day_mark.h"
#include "calendar/form_drag.h"
#include "calendar/held_balloon.h"
#include "calendar/month_grid.h"
#include "core/event_store.h"
#include "core/settings.h"
#include "desktop/attachment.h"
#include "desktop/form_place.h"
#include "platform/message_loop.h"
#include "platform/shell.h"
#include "toolkit/timer.h"
#include "ui/splash_frm.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class Main_Frm : public Month_Grid {
public:
    Main_Frm();
    ~Main_Frm() override;

    /// Starts the program up; false when it has to end at once, which the user has been told then.
    bool Form_Load();

    bool Alert_Done = false;       ///< no further alert today
    bool Timer_Compacted = false;  ///< by the timer once: the mouse over the title expands it, and ends this
    std::int16_t Tooltip_Box = -1; ///< the day box of the last balloon
    Event_Store Events;

    // The event editor, of which the calendar knows no more than this. Whoever owns both windows fills it;
    // empty, there is no editor.
    Callback<void(int index)> Open_Editor; ///< for a day box
    Callback<bool()> Offer_To_Save;        ///< offers unsaved text for saving; false: the user wants to stay
    Callback<void()> Save_Without_Asking;  ///< saves unsaved text, as far as it can be saved
    Callback<bool()> Editor_Visible;
    Callback<void(Form *modal)> Block_Editor; ///< as Set_Blocked_By does with the calendar

    // The settings dialog, likewise.
    Callback<void()> Open_Settings;
    Callback<void()> Close_Settings; ///< at the end, whatever is in it
    Callback<bool()> Settings_Visible;
    Callback<void()> On_Event_Saved; ///< the data file is another one now

    /// Whether the program may end now; asks for unsaved text first.
    bool Confirm_End() const;
    /// Whether the window went down with the shell's, before anybody wanted the program to end.
    bool Lost_With_Shell() const { return end_reason_ == End_Reason::Lost; }

    /// Of which the window has its style, its position and what it takes of a theme: Cur_Settings, but for
    /// the length of a preview. Must not be null.
    const Settings *Shown_Settings = &Cur_Settings;

    /// Makes the window show all that the settings say, after they were `before`, or after a pack told
    /// others: style, title, shape, position, texts and colours. With `where_dropped` a window that was
    /// dragged away from its position, or is only its title, stays where it is.
    void Follow(const Settings &before, bool where_dropped = false);

    /// Lays the month out: numbers, hidden boxes, the window's place and shape.
    void Setup_Boxes(std::int16_t month, std::int16_t year);
    /// Puts the events of the shown month into their boxes and alerts the user of today's.
    void Load_Dates();
    /// Takes one record in: into its box, if it belongs to the shown month, and as an alert, if it is
    /// today's. Throws Conversion_Error or another std::exception for a malformed one.
    void Enter_Date(std::string_view record, const Date &today);
    /// Shows the text that was saved for a day in its box, if that is one of the shown month. Where the same
    /// month of another year is shown, a yearly event comes or goes with it.
    void Show_Saved_Event(const Date &date, std::string_view text);
    /// Makes today's month the shown one, without drawing it. Gives today.
    Date Select_Current_Month();
    /// All of the display, after the shown month changed.
    void Redraw();

    /// Moves the window to a position code (desktop/position.h); a number that is none leaves it.
    void Position_Form(std::int16_t code);
    /// Remembers the work area's height.
    void Set_Repos() { place_.Update_Work_Area_Height(); }
    /// Follows the shell's icons to where they are now. Places the window anew when the work area's height is
    /// another one; puts it back when something else has moved it.
    void RePosition();
    /// Puts the window into the shell's desktop and takes the colours of its icon labels over; also shows the
    /// splash window. What of the shell is missing is left out in silence.
    void No_ShowDesktop_and_IconColours();
    void Set_Icon_Colours(platform::Shell_Window list, Colour background, Colour text);

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
    // Those in use.
    std::int16_t Effective_Style() const;
    std::int16_t Effective_Position() const;

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

    Timer Dectect_Date_Timer{1000};
    Timer Compact_Timer{60000};
    Desktop_Attachment Attachment{*this};
    Splash_Frm Splash;
    Held_Balloon Balloon;

private:
    bool Check_For_Multiple();
    void Wire_Events();
    void Wire_Box(Label &label, int index);
    void Subscribe_To_Broadcasts();
    bool Handle_Broadcast(platform::Broadcast broadcast);
    void Handle_Desktop_Lost();
    void Apply_Regional_Settings();
    void Renew_Layout();
    void Popup_Title_Menu(Point mouse);
    void Compact();
    void Expand();
    void Handle_Title_Mouse_Move();

    void Box_Mouse_Down(platform::Mouse_Button button, int index, Point at);
    void Show_Box_Balloon(int index);

    void Handle_Function_Key(int key);
    bool Handle_Day_Key(int key);
    void Popup_Below_Title(bool months);
    void Act_On_Marked_Day(int key);
    void Move_Mark(int days);
    bool Show_Mark();
    void Update_Mark();
    int Marked_Box() const { return Start_Box(Cur_Month, Cur_Year) + mark_.Day() - 1; }
    void Update_Focus(bool has_focus);
    void Describe_First_Steps();
    void Show_Pending_Texts();
    void Show_Alert(const Date &today, std::string_view text);
    void Save_Manual_Place(const std::optional<Point> &from);

    enum class End_Reason { None, Wanted, Lost };
    End_Reason end_reason_ = End_Reason::None;
    std::string date_stamp_;
    std::string regional_look_;
    /// Texts that are read and not in their boxes yet.
    std::array<std::optional<std::string>, box_count> pending_texts_;
    unsigned load_generation_ =
        0; ///< counts the fillings: one that begins inside another puts an end to that
    bool load_incomplete_ = false; ///< the last filling: events of the month may not be in their boxes
    Form_Place place_{*this};
    Form_Drag drag_{*this, [this](const std::optional<Point> &from) { Save_Manual_Place(from); }};
    Day_Mark mark_{*this};
    int pending_key_ = 0;    ///< went down here and acts when it comes up
    bool stray_key_ = false; ///< a key that comes up now went down in another window
};

/// The text that tells of today's event.
std::string Today_Text(const Date &today, std::string_view text);

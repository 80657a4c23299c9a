// The calendar window. It shows the month (month_grid.h) and reacts to the user, the time and the system.
// main_frm.cpp has the start, the date timer and the broadcasts, keyboard.cpp the keyboard; the other files
// are named for their topics. The mark, the drag, the balloon, the place and the attachment to the desktop
// are objects of their own.
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

    /// Starts the calendar. If it cannot start, tells the user why and returns false. If a restarted program
    /// finds another copy running, returns false silently.
    bool Form_Load();

    bool Alert_Done = false; ///< no further alert follows today
    /// The timer, not the user, entered compact mode. The next mouse move over the title leaves the mode and
    /// clears this flag.
    bool Timer_Compacted = false;
    std::int16_t Tooltip_Box = -1; ///< index of the day box of the last balloon; -1: none yet
    Event_Store Events;

    // The calendar reaches the event editor only through these. The owner of both windows sets them. If they
    // are empty, there is no editor.
    Callback<void(int index)> Open_Editor; ///< opens the editor for a day box
    Callback<bool()> Offer_To_Save;        ///< offers to save unsaved text; false: the program must not end
    Callback<void()> Save_Without_Asking;  ///< saves unsaved text if possible
    Callback<bool()> Editor_Visible;
    Callback<void(Form *modal)> Block_Editor; ///< calls the editor's Set_Blocked_By

    // The calendar reaches the settings dialog only through these.
    Callback<void()> Open_Settings;
    Callback<void()> Close_Settings; ///< closes the dialog when the program ends
    Callback<bool()> Settings_Visible;
    Callback<void()> On_Event_Saved; ///< the data file has changed

    /// Returns whether the program may end now. Asks about unsaved text first.
    bool Confirm_End() const;
    /// Returns whether the shell destroyed the window before anything asked the program to end.
    bool Lost_With_Shell() const { return end_reason_ == End_Reason::Lost; }

    /// The settings that give the window its style, its position and its theme: Cur_Settings, except during a
    /// preview. Must not be null.
    const Settings *Shown_Settings = &Cur_Settings;

    /// Updates style, title, shape, position, texts and colours after the settings have changed from
    /// `before`, or after a pack has given other values. If `where_dropped` is set, does not move a window
    /// that is compact or that the user has dragged from its position.
    void Follow(const Settings &before, bool where_dropped = false);

    /// Lays out the month: the numbers, the hidden boxes, and the window's place and shape.
    void Setup_Boxes(std::int16_t month, std::int16_t year);
    /// Puts the events of the shown month into their boxes and alerts the user of today's event.
    void Load_Dates();
    /// Takes over one record. Keeps the text for the day's box if the record belongs to the shown month.
    /// Alerts the user if the record is today's. Throws Conversion_Error or another std::exception if the
    /// record is malformed.
    void Enter_Date(std::string_view record, const Date &today);
    /// Updates the shown month after `text` was saved as the event of a day. If the same month of another
    /// year is shown, updates the day's box there, because the event may be, or may have been, a yearly one.
    void Show_Saved_Event(const Date &date, std::string_view text);
    /// Makes today's month the shown month, without drawing it. Returns today.
    Date Select_Current_Month();
    /// Draws everything again after the shown month has changed; in compact mode, only the title.
    void Redraw();

    /// Moves the window to the place of a position code (desktop/position.h). An invalid code leaves the
    /// window where it is.
    void Position_Form(std::int16_t code);
    /// Remembers the work area's height.
    void Set_Repos() { place_.Update_Work_Area_Height(); }
    /// Follows the shell's icon view. Moves the window to its position again if the work area's height has
    /// changed. Otherwise puts the window back if another program has moved it.
    void RePosition();
    /// Puts the window into the shell's desktop, takes over the colours of the icon labels and shows the
    /// splash window. Silently skips each step whose window the shell lacks.
    void No_ShowDesktop_and_IconColours();
    void Set_Icon_Colours(platform::Shell_Window list, Colour background, Colour text);

    // Themes. The first two throw Error if the month's picture cannot be shown, and Conversion_Error if the
    // pack has a bad number.

    /// If themes are in use, sets the pack's wallpaper for today's month, and takes over the pack's box style
    /// and position if the settings say so.
    void Get_Wallpaper_Stuff(const std::string &pack);
    /// Does the same as Get_Wallpaper_Stuff, for any month and even if themes are not in use.
    void Preview_Wallpaper_Stuff(const std::string &pack, std::int16_t month);
    /// Returns the value text of a month, or Theme_Error after a message to the user. If the pack is missing,
    /// turns themes off and removes the wallpaper.
    static std::string Get_Paper_Details(std::int16_t month, const std::string &pack);
    /// The values of the last pack; empty if it gives none or they are not in use.
    std::optional<std::int16_t> Theme_BoxStyle;
    std::optional<std::int16_t> Theme_Pos;
    // The style and position in use.
    std::int16_t Effective_Style() const;
    std::int16_t Effective_Position() const;

    // Actions of the user and the timer.
    void Next_Month();
    void Previous_Month();
    void Step_Year(int years);
    void Edit_Box(int index);
    void Show_Today_Event();
    void Form_KeyDown(const platform::Input_Event &event);
    void Form_KeyUp(const platform::Input_Event &event);
    void Dectect_Date_Timer_Timer();
    /// Steps to another box style. If a theme sets the style, first asks the user whether to turn that off.
    void Change_Style(int step);
    /// Ends the program, unless the user cancels because of unsaved text.
    void End_Program();

    // Popup menus. They open at `at` (twips on the form), or at the mouse if `at` is null.
    void Popup_Menu(int index, const Point *at = nullptr);
    void Popup_Months(const Point *at = nullptr);
    /// Offers the years around the shown one, within first_year to last_year, and the current month. In
    /// compact mode offers only "Expand".
    void Popup_Years(const Point *at = nullptr);
    /// Deletes the event of a day box.
    void Clear_Box(int index);
    /// Undoes the newest change of the events.
    void Undo();

    // Compact mode.
    /// Enters or leaves compact mode.
    void Which_Month_Lbl_DblClick();
    void Compact_Timer_Timer();
    /// Restarts the countdown to compact mode, because the user is active.
    void Restart_Countdown();

    // The balloon.
    bool Balloon_Showing() const { return Balloon.Showing(); }
    void TimeOut(float seconds);
    void Balloon_Tooltip(int index, std::string_view message);
    void Hide_Balloon() { Balloon.Hide(); }
    /// Starts the countdown to compact mode again after a dialog has closed.
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
    /// Texts from the data file that are not in their boxes yet.
    std::array<std::optional<std::string>, box_count> pending_texts_;
    unsigned load_generation_ = 0; ///< counts the calls of Load_Dates: a nested call supersedes the outer one
    bool load_incomplete_ = false; ///< the last Load_Dates failed: boxes may lack events of the month
    Form_Place place_{*this};
    Form_Drag drag_{*this, [this](const std::optional<Point> &from) { Save_Manual_Place(from); }};
    Day_Mark mark_{*this};
    int pending_key_ = 0;    ///< the key pressed in this window that acts on its release; 0: none
    bool stray_key_ = false; ///< the next key released here may have been pressed in another window
};

/// Returns the text that announces today's event.
std::string Today_Text(const Date &today, std::string_view text);

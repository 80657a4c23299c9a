// The calendar window's start, its date timer and the system's broadcasts.
#include "calendar/main_frm.h"

#include "base/joined.h"
#include "core/settings.h"
#include "platform/drawing.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "platform/process.h"
#include "platform/screen.h"
#include "platform/wallpaper.h"

using platform::Broadcast;
using platform::Mouse_Button;

namespace {

/// Returns a text that changes with the regional settings that the month shows, and with the size of its
/// font.
std::string Regional_Look() {
    std::string look = std::to_string(platform::First_Weekday());
    for (int month = 1; month <= 12; ++month)
        look += "\n" + platform::Month_Name(month);
    for (int day = 0; day < Main_Frm::days_a_week; ++day)
        look += Joined({"\n", platform::Weekday_Name(day), "\n", platform::Short_Weekday_Name(day)});
    const platform::Font font;
    return Joined({look, "\n", std::to_string(platform::Line_Height(font)), "\n",
                   std::to_string(platform::Text_Width("The quick brown fox 0123456789", font))});
}

} // namespace

Main_Frm::Main_Frm() {
    Wire_Events();
}

Main_Frm::~Main_Frm() {
    platform::Listen_To_Broadcasts(nullptr);
}

void Main_Frm::Wire_Events() {
    Prev_Month_Lbl.On_Mouse_Up = [this](Mouse_Button button, Point) {
        if (button == Mouse_Button::Left)
            Previous_Month();
    };
    Prev_Month_Lbl.On_Default_Action = [this] { Previous_Month(); };
    Next_Month_Lbl.On_Mouse_Up = [this](Mouse_Button button, Point) {
        if (button == Mouse_Button::Left)
            Next_Month();
    };
    Next_Month_Lbl.On_Default_Action = [this] { Next_Month(); };
    for (int i = 0; i < box_count; ++i) {
        Wire_Box(Box_Lbl[i], i);
        Wire_Box(Box_Caption_Lbl[i], i);
    }
    On_Key_Up = [this](const platform::Input_Event &event) { Form_KeyUp(event); };
    On_Key_Down = [this](const platform::Input_Event &event) { Form_KeyDown(event); };
    On_Focus_Changed = [this](bool has_focus) { Update_Focus(has_focus); };
    On_Capture_Lost = [this] {
        Hide_Balloon();
        drag_.End();
    };
    On_Close = [this] { End_Program(); };
    On_Dots_Changed = [this] { Renew_Layout(); };
    Attachment.On_Colours = [this](platform::Shell_Window list, const platform::Label_Colours &colours) {
        Set_Icon_Colours(list, colours.background, colours.text);
    };
    Attachment.On_Late_Entry = [this] {
        Set_Colours();
        Mark_Today();
    };
    Which_Month_Lbl.On_Default_Action = [this] { Which_Month_Lbl_DblClick(); };
    // The handler must not show a message box: the shell may be ending, and waits until this window is gone.
    On_Window_Lost = [this] {
        // No mouse release will come. End the drag, because the calendar does not follow the shell during a
        // drag.
        Hide_Balloon();
        drag_.End();
        Update_Focus(false);
        if (!Attachment.Handle_Window_Lost())
            Handle_Desktop_Lost();
    };
    Attachment.On_Desktop_Lost = [this] { Handle_Desktop_Lost(); };
    Which_Month_Lbl.On_Mouse_Down = [this](Mouse_Button button, Point at) {
        drag_.Begin(button, at);
        if (button == Mouse_Button::Right)
            Popup_Title_Menu(at);
    };
    Which_Month_Lbl.On_Mouse_Move = [this](Mouse_Button held, Point at) {
        drag_.Continue(held, at);
        Handle_Title_Mouse_Move();
    };
    Which_Month_Lbl.On_Double_Click = [this] { Which_Month_Lbl_DblClick(); };
    for (Control *label : std::initializer_list<Control *>{&Prev_Month_Lbl, &Next_Month_Lbl})
        label->On_Mouse_Move = [this](Mouse_Button, Point) { Restart_Countdown(); };
    for (Label &header : Day_Lbl)
        header.On_Mouse_Move = [this](Mouse_Button, Point) { Restart_Countdown(); };
    Compact_Timer.On_Timer = [this] { Compact_Timer_Timer(); };
    Which_Month_Lbl.On_Mouse_Up = [this](Mouse_Button button, Point) { drag_.Drop(button); };
    Dectect_Date_Timer.On_Timer = [this] { Dectect_Date_Timer_Timer(); };
}

void Main_Frm::Wire_Box(Label &label, int index) {
    label.On_Mouse_Down = [this, &label, index](Mouse_Button button, Point at) {
        Box_Mouse_Down(button, index, {label.Left() + at.x, label.Top() + at.y});
    };
    label.On_Mouse_Move = [this](Mouse_Button, Point) { Restart_Countdown(); };
    label.On_Mouse_Up = [this](Mouse_Button, Point) { Hide_Balloon(); };
    label.On_Double_Click = [this, index] { Edit_Box(index); };
    label.On_Default_Action = [this, index] { Edit_Box(index); };
}

bool Main_Frm::Check_For_Multiple() {
    if (platform::Claim_Single_Instance("Vellatro"))
        return true;
    // A successor that the program itself has started ends silently, because the user may have started
    // another copy first.
    if (platform::Restart_Count() == 0)
        platform::Message_Box("The program is already running!", platform::Box_Icon::Information);
    return false;
}

bool Main_Frm::Form_Load() {
    if (!Check_For_Multiple())
        return false;
    try {
        Load_Settings();
    } catch (const Setting_Error &error) {
        platform::Message_Box(error.what(), platform::Box_Icon::Stop);
        return false;
    }
    // Run_Guarded reports a damaged pack, such as one with an unreadable picture. The calendar appears
    // anyway.
    Run_Guarded([this] { Get_Wallpaper_Stuff(Cur_Settings.Pack_Name); });
    Which_Style(Effective_Style());
    const Date today = Select_Current_Month();
    Setup_Boxes(Cur_Month, Cur_Year);
    Set_Repos();
    // The date stamp and the broadcasts come before Load_Dates, because its alert may stay open for hours.
    date_stamp_ = Date_Stamp(today);
    Subscribe_To_Broadcasts();
    Load_Dates();
    Update_Title();
    Set_Day_Headers();
    // The window stays hidden until it has its place and colours.
    Create();
    No_ShowDesktop_and_IconColours();
    Set_Colours();
    Mark_Today();
    Show();
    Dectect_Date_Timer.Set_Enabled(true);
    Compact_Timer.Set_Enabled(Cur_Settings.Auto_Compact == 1);
    return true;
}

Date Main_Frm::Select_Current_Month() {
    const Date today = Today();
    Cur_Month = today.month;
    Cur_Year = today.year;
    return today;
}

void Main_Frm::Dectect_Date_Timer_Timer() {
    RePosition();
    // A preview has its own title and wallpaper.
    if (Shown_Settings != &Cur_Settings)
        return;
    Update_Title();
    const Date today = Today();
    const std::string stamp = Date_Stamp(today);
    if (stamp == date_stamp_)
        return;
    Alert_Done = false;
    Select_Current_Month();
    Update_Title();
    Set_Day_Headers();
    // Set the stamp before any message box: this timer ticks while a message box is open, and must act only
    // once a day.
    date_stamp_ = stamp;
    Run_Guarded([this] { Get_Wallpaper_Stuff(Cur_Settings.Pack_Name); });
    Which_Style(Effective_Style());
    if (Compacted) {
        layout_outdated_ = true;
        return TransparentForm();
    }
    Setup_Boxes(Cur_Month, Cur_Year);
    Set_Colours();
    Mark_Today();
    Load_Dates();
}

void Main_Frm::Subscribe_To_Broadcasts() {
    regional_look_ = Regional_Look();
    platform::Listen_To_Broadcasts([this](Broadcast broadcast) {
        bool agreed = false;
        Run_Guarded([&] { agreed = Handle_Broadcast(broadcast); });
        return agreed;
    });
}

bool Main_Frm::Handle_Broadcast(Broadcast broadcast) {
    switch (broadcast) {
    case Broadcast::Settings_Changed:
        Apply_Contrast();
        Apply_Regional_Settings();
        break;
    case Broadcast::Time_Changed:
        Dectect_Date_Timer_Timer();
        break;
    case Broadcast::Display_Changed:
    case Broadcast::Front_Changed:
        RePosition();
        break;
    case Broadcast::Colours_Changed:
        // Painting resolves the system colours. Only Mark_Today computes a colour beforehand: the frame of
        // today's box.
        Apply_Contrast();
        Mark_Today();
        Repaint();
        break;
    case Broadcast::Shell_Started:
        if (end_reason_ == End_Reason::None)
            Attachment.Await_Shell();
        break;
    case Broadcast::Session_Ends:
        return Confirm_End();
    case Broadcast::Session_Forced:
        if (Save_Without_Asking)
            Save_Without_Asking();
        break;
    case Broadcast::Session_Over:
        end_reason_ = End_Reason::Wanted;
        Balloon.End();
        // The process may end at any moment. Close the dialog now, because closing stores its tab.
        if (Close_Settings)
            Close_Settings();
        platform::Wait_For_Wallpaper();
        platform::End_Message_Loop();
        break;
    case Broadcast::Close_Request:
        End_Program();
        break;
    }
    return true;
}

bool Main_Frm::Confirm_End() const {
    return !Offer_To_Save || Offer_To_Save();
}

void Main_Frm::End_Program() {
    Hide_Balloon();
    if (!Confirm_End())
        return;
    end_reason_ = End_Reason::Wanted;
    Balloon.End();
    platform::End_Message_Loop();
}

void Main_Frm::Handle_Desktop_Lost() {
    Balloon.End();
    if (end_reason_ == End_Reason::None)
        end_reason_ = End_Reason::Lost;
    platform::End_Message_Loop();
}

void Main_Frm::Resume_Auto_Compact() {
    if (Cur_Settings.Auto_Compact == 1 && !Compacted)
        Compact_Timer.Set_Enabled(true);
}

void Main_Frm::Apply_Regional_Settings() {
    if (Regional_Look() != regional_look_)
        Renew_Layout();
}

void Main_Frm::Renew_Layout() {
    regional_look_ = Regional_Look();
    Which_Style(Effective_Style());
    Redraw();
    if (Compacted)
        TransparentForm(); // the title's size may have changed
}

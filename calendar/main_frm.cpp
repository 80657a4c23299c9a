// The calendar window's start-up, its timer and the system's broadcasts.
#include "calendar/main_frm.h"

#include "core/settings.h"
#include "platform/drawing.h"
#include "platform/locale.h"
#include "platform/message_box.h"

using platform::Broadcast;
using platform::Mouse_Button;

Main_Frm::Main_Frm()
    : Form(platform::Form_Kind::Painted, "Calendar"), Prev_Month_Lbl(*this, "Prev_Month_Lbl"),
      Which_Month_Lbl(*this, "Which_Month_Lbl"), Next_Month_Lbl(*this, "Next_Month_Lbl"),
      Day_Lbl(*this, "Day_Lbl"), Box_Lbl(*this, "Box_Lbl"), Box_Caption_Lbl(*this, "Box_Caption_Lbl"),
      DotDotDot_Lbl(*this, "DotDotDot_Lbl"), Dectect_Date_Timer(1000) {
    Set_Title("Vellatro");
    DotDotDot_Lbl.Set_Visible(false);
    Describe_Arrows();
    Wire_Events();
}

Main_Frm::~Main_Frm() {
    platform::Listen_To_Broadcasts(nullptr);
}

void Main_Frm::Wire_Events() {
    Prev_Month_Lbl.On_Mouse_Up = [this](Mouse_Button button, platform::Point) {
        if (button == Mouse_Button::Left)
            Previous_Month();
    };
    Prev_Month_Lbl.On_Default_Action = [this] { Previous_Month(); };
    Next_Month_Lbl.On_Mouse_Up = [this](Mouse_Button button, platform::Point) {
        if (button == Mouse_Button::Left)
            Next_Month();
    };
    Next_Month_Lbl.On_Default_Action = [this] { Next_Month(); };
    for (int i = 0; i < box_count; ++i) {
        Wire_Box(Box_Lbl[i], i);
        Wire_Box(Box_Caption_Lbl[i], i);
    }
    On_Key_Up = [this](const platform::Input_Event &event) { Form_KeyUp(event); };
    On_Close = [] { platform::End_Message_Loop(); };
    On_Dots_Changed = [this] { Renew_Layout(); };
    Dectect_Date_Timer.On_Timer = [this] { Dectect_Date_Timer_Timer(); };
}

void Main_Frm::Wire_Box(Label &label, int index) {
    label.On_Double_Click = [this, index] { Edit_Box(index); };
    label.On_Default_Action = [this, index] { Edit_Box(index); };
}

bool Main_Frm::Check_For_Multiple() {
    if (platform::Claim_Single_Instance("Vellatro"))
        return true;
    platform::Message_Box("The program is already running!", "Vellatro", platform::Box_Icon::Information);
    return false;
}

bool Main_Frm::Form_Load() {
    if (!Check_For_Multiple())
        return false;
    try {
        Load_Settings();
    } catch (const Setting_Error &error) {
        platform::Message_Box(error.what(), "Vellatro", platform::Box_Icon::Stop);
        return false;
    }
    Get_Wallpaper_Stuff();
    Which_Style(Effective_Style());
    const Date today = Today();
    Cur_Month = today.month;
    Cur_Year = today.year;
    Setup_Boxes(Cur_Month, Cur_Year);
    // A work area too high for the remembered height is told, but is no reason to show no calendar.
    placement_guard_.Run([this] { Set_Repos(); });
    Load_Dates();
    Update_Title();
    Set_Day_Headers();
    date_stamp_ = Date_Stamp(today);
    No_ShowDesktop_and_IconColours();
    Set_Colours();
    Mark_Today();
    regional_look_ = Regional_Look();
    platform::Listen_To_Broadcasts(
        [this](Broadcast broadcast) { Run_Guarded([this, broadcast] { Hear(broadcast); }); });
    Dectect_Date_Timer.Set_Enabled(true);
    return true;
}

void Main_Frm::Get_Wallpaper_Stuff() {
    // There are no theme packs yet, so there is no picture to apply.
}

std::int16_t Main_Frm::Effective_Style() const {
    // A theme pack's own style would go first; there are none yet.
    return Cur_Settings.Style;
}

void Main_Frm::Dectect_Date_Timer_Timer() {
    placement_guard_.Run([this] { RePosition(); });
    Update_Title();
    const Date today = Today();
    const std::string stamp = Date_Stamp(today);
    if (stamp == date_stamp_)
        return;
    Alert_Done = false;
    Cur_Month = today.month;
    Cur_Year = today.year;
    Update_Title();
    Set_Day_Headers();
    Get_Wallpaper_Stuff();
    Which_Style(Effective_Style());
    date_stamp_ = stamp;
    if (Compacted)
        return;
    Setup_Boxes(Cur_Month, Cur_Year);
    Set_Colours();
    Mark_Today();
    Load_Dates();
}

void Main_Frm::Hear(Broadcast broadcast) {
    switch (broadcast) {
    case Broadcast::Settings_Changed:
        return Take_Regional_Settings();
    case Broadcast::Time_Changed:
        return Dectect_Date_Timer_Timer();
    case Broadcast::Display_Changed:
        Position_Form(Effective_Position());
        return placement_guard_.Run([this] { Set_Repos(); });
    case Broadcast::Colours_Changed:
        // System colours are looked up while painting; only the frame of today's box is worked out before.
        Mark_Today();
        return Repaint();
    case Broadcast::Session_Ends:
        // All that the user entered is in the files already.
        return;
    }
}

/// All that the month shows of the regional settings, and the measures of its fonts.
std::string Main_Frm::Regional_Look() {
    std::string look = std::to_string(platform::First_Weekday());
    for (int month = 1; month <= 12; ++month)
        look += "\n" + platform::Month_Name(month);
    for (int day = 0; day < days_a_week; ++day)
        look += "\n" + platform::Weekday_Name(day) + "\n" + platform::Short_Weekday_Name(day);
    const platform::Font font;
    return look + "\n" + std::to_string(platform::Line_Height(font)) + "\n" +
           std::to_string(platform::Text_Width("The quick brown fox 0123456789", font));
}

void Main_Frm::Take_Regional_Settings() {
    std::string look = Regional_Look();
    if (look == regional_look_)
        return;
    regional_look_ = std::move(look);
    Renew_Layout();
}

void Main_Frm::Renew_Layout() {
    described_.reset();
    Which_Style(Effective_Style());
    if (!Compacted)
        Redraw();
}

// Compact mode, which shows only the title. The user enters and leaves it with a double click on the title.
// With the setting "Auto Compact", the calendar also enters it after a minute without activity, and then
// leaves it when the mouse moves over the title.
#include "calendar/main_frm.h"
#include "core/settings.h"

void Main_Frm::Which_Month_Lbl_DblClick() {
    if (Compacted)
        Expand();
    else
        Compact();
    Describe_Heading();
    Update_Mark();
}

void Main_Frm::Compact() {
    Hide_Balloon();
    // Compact mode needs no countdown.
    Compact_Timer.Set_Enabled(false);
    for (int i = 0; i < box_count; ++i) {
        Box_Lbl[i].Set_Visible(false);
        Box_Caption_Lbl[i].Set_Visible(false);
    }
    for (Label &header : Day_Lbl)
        header.Set_Visible(false);
    Prev_Month_Lbl.Set_Visible(false);
    Next_Month_Lbl.Set_Visible(false);
    TransparentForm();
    Compacted = true;
}

void Main_Frm::Expand() {
    layout_outdated_ = false;
    Box_Lbl[0].Set_Visible(true);
    Box_Caption_Lbl[0].Set_Visible(true);
    Hide_Misc_Boxes();
    for (Label &header : Day_Lbl)
        header.Set_Visible(true);
    Prev_Month_Lbl.Set_Visible(true);
    Next_Month_Lbl.Set_Visible(true);
    TransparentForm();
    Set_Day_Headers();
    Setup_Boxes(Cur_Month, Cur_Year);
    Load_Dates();
    Set_Colours();
    Mark_Today();
    Compacted = false;
    // Load_Dates may have shown an alert. If the month, the regional settings or the fonts changed during the
    // alert, the window does not show the change yet.
    if (layout_outdated_)
        Redraw();
    // Compact() stopped the countdown, and after a double click the mouse may not move.
    Restart_Countdown();
}

void Main_Frm::Compact_Timer_Timer() {
    Compact_Timer.Set_Enabled(false);
    const bool busy =
        (Editor_Visible && Editor_Visible()) || (Settings_Visible && Settings_Visible()) || Balloon_Showing();
    // A failed import may have turned Auto_Compact off without stopping the timer.
    if (busy || Compacted || Cur_Settings.Auto_Compact != 1)
        return;
    Timer_Compacted = true;
    Which_Month_Lbl_DblClick();
}

void Main_Frm::Restart_Countdown() {
    if (Compacted || Cur_Settings.Auto_Compact != 1)
        return;
    Compact_Timer.Set_Enabled(false);
    Compact_Timer.Set_Enabled(true);
}

void Main_Frm::Handle_Title_Mouse_Move() {
    Restart_Countdown();
    if (!Compacted || Cur_Settings.Auto_Compact != 1 || !Timer_Compacted)
        return;
    Which_Month_Lbl_DblClick();
    Restart_Countdown();
    Timer_Compacted = false;
}

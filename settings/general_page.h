// The page "Settings" of the settings dialog: what the calendar's title shows, and the general settings. Its
// choices are saved in saving.cpp.
#pragma once

#include "settings/page.h"
#include "toolkit/timer.h"

class General_Page {
public:
    [[gnu::noinline]] General_Page(Form &dialog, Frame &frame, Main_Frm &calendar);
    /// Places the controls, also after a change of the dots per inch.
    void Lay_Out();

    /// Ticks the start-up box where the system has a start-up entry, also an empty one: unticking leaves such
    /// a one behind, so that the box is ticked again at the next opening.
    void Get_Startup_Value();
    /// Shows the title as it would be now.
    void Show_Preview();
    /// Whether the page can be seen: only then the preview goes with the time.
    void Set_Watched(bool watched);

    Frame Title_Bar_Fra;
    Check_Box Bar_Time_Chk;
    Label Bar_Time_Lbl; ///< never seen: names the combo box for who cannot see
    Combo_Box Bar_Time_Cbo;
    Label Bar_Date_Lbl;
    Combo_Box Bar_Date_Cbo;
    Label Bar_Preview_Lbl;
    Frame General_Fra;
    Check_Box Auto_Compact_Chk;
    Check_Box Allow_Dragging_Chk;
    Check_Box Alert_Chk;
    Check_Box Startup_Chk;
    Label Startup_Lbl; ///< seen where the system does not let this user change the start-up entry

private:
    Main_Frm &calendar_;
    Timer preview_timer_{1000};
};

// The "Settings" page of the settings dialog: the contents of the calendar's title, and general settings.
#pragma once

#include "settings/page.h"
#include "toolkit/timer.h"

class General_Page final : public Page {
public:
    General_Page(Frame &frame, Main_Frm &calendar);
    void Show(const Settings &settings) override;
    void Lay_Out() override;

    /// Ticks the start-up box if the system has a start-up entry, even an empty one. Saving an unticked box
    /// leaves an empty entry, so the dialog ticks the box again when it next opens.
    void Get_Startup_Value();
    /// Shows the calendar's title as it would look now with the choices on the page.
    void Show_Preview();
    /// Updates the preview, and makes it follow the time from now on if the page is `visible`.
    void Set_Page_Visible(bool visible);

    Frame Title_Bar_Fra{frame_, "Title_Bar_Fra", "Title Bar"};
    Check_Box Bar_Time_Chk{Title_Bar_Fra, "Bar_Time_Chk", "&Time:"};
    Label Bar_Time_Lbl{Title_Bar_Fra, "Bar_Time_Lbl", "Time:"}; ///< never visible: names the combo box
    Combo_Box Bar_Time_Cbo{Title_Bar_Fra, "Bar_Time_Cbo"};
    Label Bar_Date_Lbl{Title_Bar_Fra, "Bar_Date_Lbl", "&Date:"};
    Combo_Box Bar_Date_Cbo{Title_Bar_Fra, "Bar_Date_Cbo"};
    Label Bar_Preview_Lbl{Title_Bar_Fra, "Bar_Preview_Lbl", "13:56:21 - 11th May - 2002"};
    Frame General_Fra{frame_, "General_Fra", "General Settings"};
    Check_Box Auto_Compact_Chk{General_Fra, "Auto_Compact_Chk", "Switch into &Compact Mode when not in use"};
    Check_Box Allow_Dragging_Chk{General_Fra, "Allow_Dragging_Chk",
                                 "Allow d&ragging when Manual Position is not selected"};
    Check_Box Alert_Chk{General_Fra, "Alert_Chk", "A&lert me when a date Comes up"};
    Check_Box Startup_Chk{General_Fra, "Startup_Chk", "Run at &Startup"};
    Label Startup_Lbl{General_Fra, "Startup_Lbl"}; ///< says which rights the box needs

private:
    Main_Frm &calendar_;
    Timer preview_timer_{1000};
};

#include "settings/general_page.h"

#include "core/title.h"
#include "platform/clock.h"
#include "platform/registry.h"

using namespace layout;

General_Page::General_Page(Frame &frame, Main_Frm &calendar) : Page(frame), calendar_(calendar) {
    choices_ = {{&Bar_Time_Chk, &Settings::Bar_Time},
                {&Bar_Time_Cbo, &Settings::Bar_Time_Format},
                {&Bar_Date_Cbo, &Settings::Bar_Date_Format},
                {&Auto_Compact_Chk, &Settings::Auto_Compact},
                {&Allow_Dragging_Chk, &Settings::Allow_Dragging},
                {&Alert_Chk, &Settings::Show_Alerts}};
    Bar_Time_Lbl.Set_Visible(false);
    Bar_Time_Cbo.Set_Editable();
    Bar_Time_Cbo.Set_Items({"H:mm", "HH:mm", "H:mm:ss", "HH:mm:ss", "h:mm AM/PM", "h:mm:ss AM/PM"});
    Bar_Date_Cbo.Set_Editable();
    Bar_Date_Cbo.Set_Items(Bar_Date_Formats());
    Bar_Preview_Lbl.Set_Painted();
    Bar_Preview_Lbl.Set_Font(calendar.Which_Month_Lbl.Font());
    Bar_Preview_Lbl.Set_Align(platform::Text_Align::Centre, true);
    const auto show = [this] { Show_Preview(); };
    Bar_Time_Chk.On_Click = show;
    for (Combo_Box *combo : {&Bar_Time_Cbo, &Bar_Date_Cbo}) {
        combo->On_Click = show;
        combo->On_Change = show;
    }
    preview_timer_.On_Timer = show;
    Lay_Out();
}

void General_Page::Show(const Settings &settings) {
    Page::Show(settings);
    Get_Startup_Value();
    Show_Preview();
}

void General_Page::Get_Startup_Value() {
    constexpr const char *absent = "BLANK";
    const platform::Registry_Value entry = platform::Registry_Read(
        "HKLM", "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Vellatro", 'S', std::string(absent));
    Startup_Chk.Set_Checked(entry != platform::Registry_Value(std::string(absent)));
    Startup_Lbl.Set_Caption(
        platform::Registry_Writable("HKLM", "Software\\Microsoft\\Windows\\CurrentVersion\\Run")
            ? "For all users; needs administrator rights."
            : "For all users; needs administrator rights, which you lack.");
}

void General_Page::Show_Preview() {
    // The preview has the colours of the calendar's title.
    Bar_Preview_Lbl.Set_Back_Colour(calendar_.Back_Colour());
    Bar_Preview_Lbl.Set_Fore_Colour(calendar_.Which_Month_Lbl.Fore_Colour());
    Bar_Preview_Lbl.Set_Caption(
        Title_Of_Today(Bar_Time_Chk.Checked(), Bar_Time_Cbo.Text(), Bar_Date_Cbo.Text(), platform::Now()));
}

void General_Page::Set_Page_Visible(bool visible) {
    preview_timer_.Set_Enabled(visible);
    Show_Preview();
}

void General_Page::Lay_Out() {
    constexpr int label_width = 60 * 15;
    constexpr int preview_height = 26 * 15;
    Rows title = Group_Rows();
    title.Add_Pair(Bar_Time_Chk, label_width, Bar_Time_Cbo);
    title.Add_Pair(Bar_Date_Lbl, label_width, Bar_Date_Cbo, margin);
    title.Add(Bar_Preview_Lbl, margin, preview_height);
    Rows general = Group_Rows();
    general.Add_All(General_Fra);
    Rows page = Page_Rows();
    page.Add(Title_Bar_Fra, gap, title.Top());
    page.Add(General_Fra, gap, general.Bottom() + margin);
}

// The page "Settings": its preview of the title, and where its controls are.
#include "settings/general_page.h"

#include "core/title.h"
#include "platform/clock.h"
#include "platform/registry.h"

using namespace layout;

General_Page::General_Page(Form &dialog, Frame &frame, Main_Frm &calendar)
    : Title_Bar_Fra(dialog, "Title_Bar_Fra", "Title Bar"), Bar_Time_Chk(dialog, "Bar_Time_Chk", "&Time:"),
      Bar_Time_Lbl(dialog, "Bar_Time_Lbl", "Time:"), Bar_Time_Cbo(dialog, "Bar_Time_Cbo"),
      Bar_Date_Lbl(dialog, "Bar_Date_Lbl", "&Date:"), Bar_Date_Cbo(dialog, "Bar_Date_Cbo"),
      Bar_Preview_Lbl(dialog, "Bar_Preview_Lbl", "13:56:21 - 11th May - 2002"),
      General_Fra(dialog, "General_Fra", "General Settings"),
      Auto_Compact_Chk(dialog, "Auto_Compact_Chk", "Switch into &Compact Mode when not in use"),
      Allow_Dragging_Chk(dialog, "Allow_Dragging_Chk",
                         "Allow d&ragging when Manual Position is not selected"),
      Alert_Chk(dialog, "Alert_Chk", "A&lert me when a date Comes up"),
      Startup_Chk(dialog, "Startup_Chk", "Run at &Startup"),
      Startup_Lbl(dialog, "Startup_Lbl", "For all users; needs an administrator's rights."),
      calendar_(calendar) {
    frame.Hold(Title_Bar_Fra, Startup_Lbl);
    Title_Bar_Fra.Hold(Bar_Time_Chk, Bar_Preview_Lbl);
    General_Fra.Hold(Auto_Compact_Chk, Startup_Lbl);
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

void General_Page::Get_Startup_Value() {
    constexpr const char *absent = "BLANK";
    const platform::Registry_Value entry = platform::Registry_Read(
        "HKLM", "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Vellatro", 'S', std::string(absent));
    Startup_Chk.Set_Checked(entry != platform::Registry_Value(std::string(absent)));
    Startup_Lbl.Set_Visible(
        !platform::Registry_Writable("HKLM", "Software\\Microsoft\\Windows\\CurrentVersion\\Run"));
}

void General_Page::Show_Preview() {
    // As the calendar draws its title.
    Bar_Preview_Lbl.Set_Back_Colour(calendar_.Back_Colour());
    Bar_Preview_Lbl.Set_Fore_Colour(calendar_.Which_Month_Lbl.Fore_Colour());
    Bar_Preview_Lbl.Set_Caption(
        Title_Of_Today(Bar_Time_Chk.Checked(), Bar_Time_Cbo.Text(), Bar_Date_Cbo.Text(), platform::Now()));
}

void General_Page::Set_Watched(bool watched) {
    preview_timer_.Set_Enabled(watched);
    Show_Preview();
}

void General_Page::Lay_Out() {
    constexpr int label_width = 60 * 15;
    constexpr int combo_left = margin + label_width + gap;
    constexpr int combo_width = page_width - combo_left - margin;
    constexpr int preview_height = 26 * 15;
    int top = group_top;
    Bar_Time_Chk.Move({margin, top + (row_height - check_height) / 2, label_width, check_height});
    Bar_Time_Cbo.Move({combo_left, top, combo_width, row_height});
    top += row_height + gap;
    const int line = platform::Line_Height(Bar_Date_Lbl.Font());
    Bar_Date_Lbl.Move({margin, top + (row_height - line) / 2, label_width, line});
    Bar_Date_Cbo.Move({combo_left, top, combo_width, row_height});
    top += row_height + margin;
    Bar_Preview_Lbl.Move({margin, top, inner_width, preview_height});
    Title_Bar_Fra.Move({0, 0, page_width, top + preview_height + margin});

    top = group_top;
    for (Check_Box *box : {&Auto_Compact_Chk, &Allow_Dragging_Chk, &Alert_Chk, &Startup_Chk}) {
        box->Move({margin, top, inner_width, check_height});
        top += check_height + small_gap;
    }
    Startup_Lbl.Move({margin, top, inner_width, line});
    General_Fra.Move({0, Title_Bar_Fra.Bounds().Bottom() + gap, page_width, top + line + margin});
}

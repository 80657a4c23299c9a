// What the settings dialog saves: its pages' choices go into the settings, the store and the calendar. A
// choice that is what the setting holds already is not written, but for those that are always.
#include "core/settings.h"
#include "desktop/position.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "settings/settings_frm.h"
#include "toolkit/guard.h"

#include <utility>

namespace {

constexpr auto manual = static_cast<std::int16_t>(Position_Code::Manual);

/// Takes a choice over, if it is another one. Returns whether it was.
template <typename T>
bool Save_Changed(T &variable, T value, std::string_view key) {
    if (variable == value)
        return false;
    variable = std::move(value);
    Store_Setting(key);
    return true;
}

bool Save_Changed(std::int16_t &variable, const Check_Box &box, std::string_view key) {
    return Save_Changed<std::int16_t>(variable, box.Checked() ? 1 : 0, key);
}

} // namespace

void Settings_Frm::Save_Colours() {
    struct Row {
        const Picture_Box &swatch;
        platform::Colour &variable;
        const char *key;
        void (Main_Frm::*redraw)();
    };
    const Row rows[] = {
        {Colours.Col_Normal_Pic, Cur_Settings.Col_Normal, "Normal", &Main_Frm::Colour_Boxes},
        {Colours.Col_Today_Pic, Cur_Settings.Col_Today, "Today", &Main_Frm::Mark_Today},
        {Colours.Col_Num_Pic, Cur_Settings.Col_Num, "Num", &Main_Frm::Colour_Nums},
        {Colours.Col_Text_Pic, Cur_Settings.Col_Text, "Text", &Main_Frm::Colour_Texts},
        {Colours.Col_Back_Pic, Cur_Settings.Col_Back, "Back", &Main_Frm::Colour_Menus},
        {Colours.Col_Fore_Pic, Cur_Settings.Col_Fore, "Fore", &Main_Frm::Colour_Menus},
    };
    for (const Row &row : rows) {
        if (!Save_Changed(row.variable, row.swatch.Back_Colour(), row.key))
            continue;
        (calendar_.*row.redraw)();
        // Colouring the boxes takes today's mark away, and in high contrast so do the texts.
        calendar_.Mark_Today();
    }
    const std::int16_t source = Colours.Col_Sys_Opt.Checked() ? 0 : 1;
    if (!Save_Changed(Cur_Settings.Menu_Col_Sorce, source, "Menu Colour Source"))
        return;
    if (source == 1)
        for (const Row &row : {rows[4], rows[5]}) {
            row.variable = row.swatch.Back_Colour();
            Store_Setting(row.key);
        }
    calendar_.Colour_Menus();
}

void Settings_Frm::Save_General_Settings() {
    Save_Changed(Cur_Settings.Show_Alerts, General.Alert_Chk, "Show Alerts");
    Save_Changed(Cur_Settings.Allow_Dragging, General.Allow_Dragging_Chk, "Allow Dragging");
    if (Save_Changed(Cur_Settings.Auto_Compact, General.Auto_Compact_Chk, "Auto Compact"))
        calendar_.Compact_Timer.Set_Enabled(General.Auto_Compact_Chk.Checked());
    const bool other_tooltips = Save_Changed(Cur_Settings.Tooltips, Tooltips.Selected(), "Tooltips");
    // Emptied and not deleted where the box is not ticked.
    const std::string program = platform::Program_Folder() + "\\" + platform::Program_Name() + ".exe";
    platform::Registry_Write("HKLM", "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Vellatro", 'S',
                             General.Startup_Chk.Checked() ? program : std::string());
    // The boxes have the standard tooltips or have them not. Last, because it may tell of an event.
    if (other_tooltips)
        calendar_.Load_Dates();
}

void Settings_Frm::Save_Other_DM() {
    Cur_Settings.Use_Other_Display_Mode = Wallpaper.Other_Display_Chk.Checked();
    Store_Setting("Use Other Display Mode");
    // A number that the list does not have shows as none and stays, as long as no other is chosen.
    if (Wallpaper.Display_Cbo.Selected() != -1)
        Cur_Settings.Other_Display_Mode = static_cast<std::int16_t>(Wallpaper.Display_Cbo.Selected());
    Store_Setting("Other Display Mode");
}

void Settings_Frm::Save_Theme() {
    const std::int16_t style_before = calendar_.Effective_Style();
    Save_Changed(Cur_Settings.Use_Themes, Wallpaper.Theme_Use_Chk, "Use Themes");
    Save_Changed(Cur_Settings.Use_Theme_Pos, Wallpaper.Theme_Pos_Chk, "Use Theme Pos");
    Save_Changed(Cur_Settings.Use_Theme_Style, Wallpaper.Theme_Style_Chk, "Use Theme Style");
    // None is selected where the pack of the settings is missing: it may come back.
    if (!Wallpaper.Packs_Cbo.Text().empty())
        Save_Changed(Cur_Settings.Pack_Name, Wallpaper.Packs_Cbo.Text(), "Pack Name");
    Cur_Settings.Style = Style.Style1_Opt.Checked() ? 0 : 1;
    Store_Setting("Style");
    // A pack that cannot be read is told, and keeps nothing else from being saved. Whoever gives themes up
    // keeps the last wallpaper: there is no telling which one was there before.
    if (Cur_Settings.Use_Themes == 1)
        Run_Guarded([this] { calendar_.Get_Wallpaper_Stuff(Cur_Settings.Pack_Name); });
    // A missing pack has ended the use of themes.
    if (Cur_Settings.Use_Themes == 0 && Wallpaper.Theme_Use_Chk.Checked())
        Wallpaper.Get_Themes();
    calendar_.Which_Style(calendar_.Effective_Style());
    calendar_.TransparentForm();
    if (Cur_Settings.Use_Themes != 1 || Cur_Settings.Use_Theme_Pos != 1) {
        Cur_Settings.Alignment = Style.Pos_Manual_Opt.Checked() ? manual : Style.Get_Set_Position();
        Store_Setting("Alignment");
    }
    calendar_.Position_Form(calendar_.Effective_Position());
    // The boxes have room for other texts.
    if (calendar_.Effective_Style() != style_before)
        calendar_.Load_Dates();
}

void Settings_Frm::Save_Bar_Settings() {
    Cur_Settings.Bar_Time = General.Bar_Time_Chk.Checked();
    Store_Setting("Bar Time");
    Cur_Settings.Bar_Time_Format = General.Bar_Time_Cbo.Text();
    Store_Setting("Bar Time Format");
    Cur_Settings.Bar_Date_Format = General.Bar_Date_Cbo.Text();
    Store_Setting("Bar Date Format");
}

Settings Settings_Frm::Shown_Configuration() const {
    // What no page shows, and choices that are none, stay as they are.
    Settings shown = Cur_Settings;
    const auto number = [](const Check_Box &box) -> std::int16_t { return box.Checked() ? 1 : 0; };
    shown.Style = Style.Style1_Opt.Checked() ? 0 : 1;
    shown.Alignment = Style.Pos_Manual_Opt.Checked() ? manual : Style.Get_Set_Position();
    shown.Col_Today = Colours.Col_Today_Pic.Back_Colour();
    shown.Col_Normal = Colours.Col_Normal_Pic.Back_Colour();
    shown.Col_Fore = Colours.Col_Fore_Pic.Back_Colour();
    shown.Col_Num = Colours.Col_Num_Pic.Back_Colour();
    shown.Col_Text = Colours.Col_Text_Pic.Back_Colour();
    shown.Col_Back = Colours.Col_Back_Pic.Back_Colour();
    shown.Menu_Col_Sorce = Colours.Col_Sys_Opt.Checked() ? 0 : 1;
    shown.Show_Alerts = number(General.Alert_Chk);
    shown.Use_Themes = number(Wallpaper.Theme_Use_Chk);
    shown.Use_Theme_Pos = number(Wallpaper.Theme_Pos_Chk);
    shown.Use_Theme_Style = number(Wallpaper.Theme_Style_Chk);
    shown.Allow_Dragging = number(General.Allow_Dragging_Chk);
    shown.Bar_Time = General.Bar_Time_Chk.Checked();
    shown.Bar_Time_Format = General.Bar_Time_Cbo.Text();
    shown.Bar_Date_Format = General.Bar_Date_Cbo.Text();
    shown.Use_Other_Display_Mode = Wallpaper.Other_Display_Chk.Checked();
    if (Wallpaper.Display_Cbo.Selected() != -1)
        shown.Other_Display_Mode = static_cast<std::int16_t>(Wallpaper.Display_Cbo.Selected());
    shown.Auto_Compact = number(General.Auto_Compact_Chk);
    if (!Wallpaper.Packs_Cbo.Text().empty())
        shown.Pack_Name = Wallpaper.Packs_Cbo.Text();
    shown.Tooltips = Tooltips.Selected();
    return shown;
}

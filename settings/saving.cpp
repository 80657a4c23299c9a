// What the settings dialog saves: its pages' choices go into the settings, the store and the calendar. A
// choice that is what the setting holds already is not written, but for those that are always.
#include "core/settings.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "settings/settings_frm.h"
#include "toolkit/guard.h"

namespace {

/// Takes a choice over, or with `if_changed` only another one. Returns whether it did.
bool Save(const Settings_Frm &dialog, const char *key, bool if_changed = false) {
    const Setting_Row &row = Setting_Row_Of(key);
    const std::string shown = Setting_Text(dialog.Shown_Configuration(), row);
    if (if_changed && Setting_Text(Cur_Settings, row) == shown)
        return false;
    Set_From_Text(Cur_Settings, row, shown);
    Store_Setting(key);
    return true;
}

bool Save_Changed(const Settings_Frm &dialog, const char *key) {
    return Save(dialog, key, true);
}

} // namespace

void Settings_Frm::Save_Colours() {
    const struct {
        const char *key;
        void (Main_Frm::*redraw)();
    } rows[] = {
        {"Normal", &Main_Frm::Colour_Boxes}, {"Today", &Main_Frm::Mark_Today},
        {"Num", &Main_Frm::Colour_Nums},     {"Text", &Main_Frm::Colour_Texts},
        {"Back", &Main_Frm::Colour_Menus},   {"Fore", &Main_Frm::Colour_Menus},
    };
    for (const auto &row : rows) {
        if (!Save_Changed(*this, row.key))
            continue;
        (calendar_.*row.redraw)();
        // Colouring the boxes takes today's mark away, and in high contrast so do the texts.
        calendar_.Mark_Today();
    }
    if (!Save_Changed(*this, "Menu Colour Source"))
        return;
    if (Cur_Settings.Menu_Col_Sorce == 1)
        for (const char *const key : {"Back", "Fore"})
            Store_Setting(key);
    calendar_.Colour_Menus();
}

void Settings_Frm::Save_General_Settings() {
    Save_Changed(*this, "Show Alerts");
    Save_Changed(*this, "Allow Dragging");
    if (Save_Changed(*this, "Auto Compact"))
        calendar_.Compact_Timer.Set_Enabled(Cur_Settings.Auto_Compact == 1);
    const bool other_tooltips = Save_Changed(*this, "Tooltips");
    // Emptied and not deleted where the box is not ticked.
    const std::string program = platform::Program_Folder() + "\\" + platform::Program_Name() + ".exe";
    platform::Registry_Write("HKLM", "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Vellatro", 'S',
                             General.Startup_Chk.Checked() ? program : std::string());
    // The boxes have the standard tooltips or have them not. Last, because it may tell of an event.
    if (other_tooltips)
        calendar_.Load_Dates();
}

void Settings_Frm::Save_Other_DM() {
    Save(*this, "Use Other Display Mode");
    Save(*this, "Other Display Mode");
}

void Settings_Frm::Save_Theme() {
    const std::int16_t style_before = calendar_.Effective_Style();
    for (const char *const key : {"Use Themes", "Use Theme Pos", "Use Theme Style", "Pack Name"})
        Save_Changed(*this, key);
    Save(*this, "Style");
    // A pack that cannot be read is told, and keeps nothing else from being saved. Whoever gives themes up
    // keeps the last wallpaper: there is no telling which one was there before.
    if (Cur_Settings.Use_Themes == 1)
        Run_Guarded([this] { calendar_.Get_Wallpaper_Stuff(Cur_Settings.Pack_Name); });
    // A missing pack has ended the use of themes.
    if (Cur_Settings.Use_Themes == 0 && Wallpaper.Theme_Use_Chk.Checked())
        Wallpaper.Get_Themes();
    calendar_.Which_Style(calendar_.Effective_Style());
    calendar_.TransparentForm();
    if (Cur_Settings.Use_Themes != 1 || Cur_Settings.Use_Theme_Pos != 1)
        Save(*this, "Alignment");
    calendar_.Position_Form(calendar_.Effective_Position());
    // The boxes have room for other texts.
    if (calendar_.Effective_Style() != style_before)
        calendar_.Load_Dates();
}

void Settings_Frm::Save_Bar_Settings() {
    for (const char *const key : {"Bar Time", "Bar Time Format", "Bar Date Format"})
        Save(*this, key);
}

Settings Settings_Frm::Shown_Configuration() const {
    // What no page shows, and choices that are none, stay as they are.
    Settings shown = Wallpaper.Choices();
    Colours.Put_Choices(shown);
    shown.Show_Alerts = General.Alert_Chk.Checked();
    shown.Allow_Dragging = General.Allow_Dragging_Chk.Checked();
    shown.Auto_Compact = General.Auto_Compact_Chk.Checked();
    shown.Bar_Time = General.Bar_Time_Chk.Checked();
    shown.Bar_Time_Format = General.Bar_Time_Cbo.Text();
    shown.Bar_Date_Format = General.Bar_Date_Cbo.Text();
    shown.Tooltips = Tooltips.Selected();
    return shown;
}

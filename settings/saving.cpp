// What the settings dialog saves: its pages' choices go into the settings, the store and the calendar. A
// choice that is what the setting holds already is not written, but for those that are always.
#include "core/settings.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "settings/settings_frm.h"

#include <utility>

namespace {

/// Takes a choice over, if it is another one. Returns whether it was.
template <typename T>
bool Save_Changed(T &variable, T value, std::string_view key) {
    if (variable == value)
        return false;
    variable = std::move(value);
    Store_Setting(key);
    return true;
}

/// Any number but 0 is a checked box, and stays what it is while the box does.
bool Save_Changed(std::int16_t &variable, const Check_Box &box, std::string_view key) {
    return box.Checked() != (variable != 0) &&
           Save_Changed<std::int16_t>(variable, box.Checked() ? 1 : 0, key);
}

} // namespace

void Settings_Frm::Save_Colours() {
}

void Settings_Frm::Save_General_Settings() {
    Save_Changed(Cur_Settings.Show_Alerts, General.Alert_Chk, "Show Alerts");
    Save_Changed(Cur_Settings.Allow_Dragging, General.Allow_Dragging_Chk, "Allow Dragging");
    if (Save_Changed(Cur_Settings.Auto_Compact, General.Auto_Compact_Chk, "Auto Compact"))
        calendar_.Compact_Timer.Set_Enabled(General.Auto_Compact_Chk.Checked());
    // The boxes have the standard tooltips or have them not.
    if (Save_Changed(Cur_Settings.Tooltips, Tooltips.Selected(), "Tooltips"))
        calendar_.Load_Dates();
    // Emptied and not deleted where the box is not ticked.
    const std::string program = platform::Program_Folder() + "\\" + platform::Program_Name() + ".exe";
    platform::Registry_Write("HKLM", "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Vellatro", 'S',
                             General.Startup_Chk.Checked() ? program : std::string());
}

void Settings_Frm::Save_Other_DM() {
}

void Settings_Frm::Save_Theme() {
}

void Settings_Frm::Save_Bar_Settings() {
    Cur_Settings.Bar_Time = General.Bar_Time_Chk.Checked();
    Store_Setting("Bar Time");
    Cur_Settings.Bar_Time_Format = General.Bar_Time_Cbo.Text();
    Store_Setting("Bar Time Format");
    Cur_Settings.Bar_Date_Format = General.Bar_Date_Cbo.Text();
    Store_Setting("Bar Date Format");
}

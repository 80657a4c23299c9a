// Saves the choices on the pages in Cur_Settings and the store, and updates the calendar. Writes only
// choices that have changed, except for a few that it always writes.
#include "core/settings.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "settings/settings_frm.h"
#include "toolkit/guard.h"

namespace {

enum class When { Always, Changed };

/// Copies a shown setting into Cur_Settings and stores it, unless the setting is unchanged and `when` is
/// Changed. Returns whether it stored the setting.
bool Save(const Settings &shown, Setting_Member member, When when = When::Changed) {
    if (when == When::Changed && !Differ(shown, Cur_Settings, member))
        return false;
    Copy_Setting(shown, Cur_Settings, member);
    Store_Setting(member);
    return true;
}

} // namespace

void Settings_Frm::Save_Colours(const Settings &shown) {
    constexpr struct {
        Colour Settings::*member;
        void (Main_Frm::*redraw)();
    } rows[] = {
        {&Settings::Col_Normal, &Main_Frm::Colour_Boxes}, {&Settings::Col_Today, &Main_Frm::Mark_Today},
        {&Settings::Col_Num, &Main_Frm::Colour_Nums},     {&Settings::Col_Text, &Main_Frm::Colour_Texts},
        {&Settings::Col_Back, &Main_Frm::Colour_Menus},   {&Settings::Col_Fore, &Main_Frm::Colour_Menus},
    };
    for (const auto &row : rows) {
        if (!Save(shown, row.member))
            continue;
        (calendar_.*row.redraw)();
        // Colour_Boxes removes today's look. In high contrast, Colour_Nums and Colour_Texts remove today's
        // colours.
        calendar_.Mark_Today();
    }
    if (!Save(shown, &Settings::Menu_Col_Sorce))
        return;
    if (shown.Menu_Col_Sorce == 1)
        for (const auto member : {&Settings::Col_Back, &Settings::Col_Fore})
            Store_Setting(member);
    calendar_.Colour_Menus();
}

void Settings_Frm::Save_General_Settings(const Settings &shown) {
    Save(shown, &Settings::Show_Alerts);
    Save(shown, &Settings::Allow_Dragging);
    if (Save(shown, &Settings::Auto_Compact))
        calendar_.Compact_Timer.Set_Enabled(Cur_Settings.Auto_Compact == 1);
    const Settings before = Cur_Settings;
    const bool other_tooltips = Save(shown, &Settings::Tooltips);
    // If the box is not ticked, empty the value instead of deleting it.
    const std::string program = platform::Program_Folder() + "\\" + platform::Program_Name() + ".exe";
    platform::Registry_Write("HKLM", "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Vellatro", 'S',
                             General.Startup_Chk.Checked() ? program : std::string());
    // Call Follow last, because it may alert the user to an event.
    if (other_tooltips)
        calendar_.Follow(before, true);
}

void Settings_Frm::Save_Other_DM(const Settings &shown) {
    Save(shown, &Settings::Use_Other_Display_Mode, When::Always);
    Save(shown, &Settings::Other_Display_Mode, When::Always);
}

void Settings_Frm::Save_Theme(const Settings &shown) {
    const Settings before = Cur_Settings;
    for (const auto member : {&Settings::Use_Themes, &Settings::Use_Theme_Pos, &Settings::Use_Theme_Style})
        Save(shown, member);
    Save(shown, &Settings::Pack_Name);
    Save(shown, &Settings::Style, When::Always);
    // Run_Guarded reports an error in the pack and lets the code below save the rest. Turning themes off
    // keeps the last wallpaper, because the program does not know the one from before the themes.
    if (Cur_Settings.Use_Themes == 1)
        Run_Guarded([this] { calendar_.Get_Wallpaper_Stuff(Cur_Settings.Pack_Name); });
    // If the pack is missing, Get_Wallpaper_Stuff has turned themes off.
    if (Cur_Settings.Use_Themes == 0 && Wallpaper.Theme_Use_Chk.Checked())
        Wallpaper.Get_Themes();
    if (Cur_Settings.Use_Themes != 1 || Cur_Settings.Use_Theme_Pos != 1)
        Save(shown, &Settings::Alignment, When::Always);
    calendar_.Follow(before);
}

void Settings_Frm::Save_Bar_Settings(const Settings &shown) {
    Save(shown, &Settings::Bar_Time, When::Always);
    Save(shown, &Settings::Bar_Time_Format, When::Always);
    Save(shown, &Settings::Bar_Date_Format, When::Always);
}

Settings Settings_Frm::Shown_Configuration() const {
    Settings shown = Cur_Settings;
    for (const Page *page : pages_)
        page->Write_To(shown);
    return shown;
}

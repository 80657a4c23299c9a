#include "settings/settings_frm.h"

#include "base/scoped_value.h"
#include "core/settings.h"
#include "platform/screen.h"
#include "toolkit/guard.h"
#include "toolkit/units.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace {

constexpr int dialog_width = 5730;
constexpr Rect tabs{105, 75, 5520, 6195};
constexpr int below_tabs = 420; ///< room for the buttons
constexpr int page_left = 225;
constexpr int page_top = 765;
constexpr int window_frame = 8 * 15; ///< estimated width of the frame on each side

} // namespace

Settings_Frm::Settings_Frm(Main_Frm &calendar)
    : Form(platform::Form_Kind::Dialog, "Settings_Frm"), calendar_(calendar) {
    Set_Title("Settings");
    TabStrip1.Set_Items({"Events", "Colours", "Settings", "Style && Position", "Tooltips", "Wallpaper",
                         "Import\\Export", "About"});
    TabStrip1.Set_Access({platform::Access_Role::None, false, "Settings pages", {}, {}});
    TabStrip1.Move(tabs);
    Ok_Btn.Set_Default(true);
    Cancel_Btn.Set_Cancel(true);
    Place_Buttons({&Ok_Btn, &Cancel_Btn, &Apply_Btn}, tabs.Right(),
                  tabs.Bottom() + (below_tabs - layout::button_height) / 2);
    TabStrip1.On_Click = [this] { TabStrip1_Click(); };
    Ok_Btn.On_Click = [this] { Ok_Btn_Click(); };
    Cancel_Btn.On_Click = [this] { Cancel_Btn_Click(); };
    Cancel_Btn.On_Escape = [this] {
        // The wallpaper page promises that Esc ends its preview.
        if (!Wallpaper.End_Preview())
            Cancel_Btn_Click();
    };
    Apply_Btn.On_Click = [this] { Apply_Btn_Click(); };
    Transfer.Shown_Configuration = [this] { return Shown_Configuration(); };
    Transfer.Import.Show_Staged_Events = [this](std::vector<Event> staged) {
        Events.Show_Imported(std::move(staged));
    };
    Transfer.Import.On_Data_File_Replaced = [this] { Events.Reload(); };
    Transfer.Import.On_Configuration_Changed = [this] { Form_Unload(); };
    Transfer.Import.On_Configuration_Partly_Changed = [this] { Load_Pages(); };
    On_Close = [this] { Form_Unload(); };
    On_Window_Lost = [this] { Form_Unload(); };
    // A different DPI changes the widths of the pages' texts a little.
    On_Dots_Changed = [this] {
        for (Page *page : pages_)
            page->Lay_Out();
    };
    On_Capture_Lost = [this] { Tooltips.Release(); };
}

Settings_Frm::~Settings_Frm() {
    Form_Unload();
}

void Settings_Frm::Input(const platform::Input_Event &event) {
    const Scoped_Value running(events_, events_ + 1);
    Form::Input(event);
}

void Settings_Frm::Form_Load() {
    const Scoped_Value running(events_, events_ + 1);
    Run_Guarded([this] { Open(); });
}

void Settings_Frm::Open() {
    Load_Pages();
    Place_Beside_Calendar();
    Set_Focus(TabStrip1);
    Show();
    open_ = true;
    Block_Others(this);
}

void Settings_Frm::Load_Pages() {
    // Guard each step by itself: Run_Guarded reports a failure, and the other steps still run.
    const std::initializer_list<Handler<>> steps = {
        [this] { Events.Write_Month_Titles(); },
        [this] { Load_Settings(); },
        [this] { Events.Get_Stats(); },
        [this] {
            if (open_)
                return;
            Resize(dialog_width, tabs.Bottom() + below_tabs);
            Position_Frames();
            Select_Stored_Tab();
        },
        [this] { Tooltips.Show(Cur_Settings); },
        [this] { General.Show(Cur_Settings); },
        [this] { Events.Open_Overview(); },
        [this] { Wallpaper.Show(Cur_Settings); },
        [this] { Style.Preview_Position(); },
    };
    for (const auto &step : steps)
        Run_Guarded(step);
}

/// Blocks the calendar and the editor, or unblocks them if `modal` is null. If the user changed an event
/// there, the list and the counts on the pages would be out of date.
void Settings_Frm::Block_Others(Form *modal) {
    calendar_.Set_Blocked_By(modal);
    if (calendar_.Block_Editor)
        calendar_.Block_Editor(modal);
}

void Settings_Frm::Load_Settings() {
    Colours.Show(Cur_Settings);
    Style.Show(Cur_Settings);
}

void Settings_Frm::Position_Frames() {
    for (Frame &frame : Settings_Fra)
        frame.Move({page_left, page_top, layout::page_width, layout::page_height});
}

void Settings_Frm::Select_Stored_Tab() {
    // An invalid number, which only another program can have stored, selects the first tab.
    const int tab = Cur_Settings.Settings_Tab;
    TabStrip1.Select(tab >= 1 && tab <= page_count ? tab - 1 : 0);
    TabStrip1_Click();
}

std::int16_t Settings_Frm::Which_Tab() const {
    return static_cast<std::int16_t>(TabStrip1.Selected() + 1);
}

void Settings_Frm::None_Vis() {
    for (Frame &frame : Settings_Fra)
        frame.Set_Visible(false);
}

void Settings_Frm::TabStrip1_Click() {
    // The preview shows the choices of the wallpaper page, which is about to disappear.
    Wallpaper.End_Preview();
    None_Vis();
    const int page = Which_Tab() - 1;
    Settings_Fra[page].Set_Visible(true);
    // Apply may have changed the calendar's colours, and the day may have changed at midnight.
    Tooltips.Style_Examples();
    General.Set_Page_Visible(page == general_fra);
}

void Settings_Frm::Ok_Btn_Click() {
    Apply_Btn_Click();
    Form_Unload();
}

void Settings_Frm::Cancel_Btn_Click() {
    Form_Unload();
}

void Settings_Frm::Apply_Btn_Click() {
    // A preview that ended later would undo these changes, because it restores the theme's earlier values.
    Wallpaper.End_Preview();
    const Settings shown = Shown_Configuration();
    for (const auto save :
         {&Settings_Frm::Save_Colours, &Settings_Frm::Save_General_Settings, &Settings_Frm::Save_Other_DM,
          &Settings_Frm::Save_Theme, &Settings_Frm::Save_Bar_Settings})
        Run_Guarded([&] { (this->*save)(shown); });
    calendar_.Restart_Countdown();
    // The examples use the calendar's colours.
    Style.Style_Preview();
}

void Settings_Frm::Form_Unload() {
    if (!std::exchange(open_, false))
        return;
    // Store first: the end of a preview waits for the system, which at a session's end may end the program.
    Cur_Settings.Settings_Tab = Which_Tab();
    Store_Setting(&Settings::Settings_Tab);
    Wallpaper.End_Preview();
    Tooltips.Release();
    General.Set_Page_Visible(false);
    Block_Others(nullptr);
    Close();
    calendar_.Resume_Auto_Compact();
}

/// Places the dialog to the right of the calendar, or to its left if there is more room on that side. The
/// platform keeps the window on the screen.
void Settings_Frm::Place_Beside_Calendar() {
    const Rect area = Pixels_To_Twips(platform::Work_Area_Around(
        {Twips_To_Pixels(calendar_.Left() + calendar_.Width() / 2), Twips_To_Pixels(calendar_.Top())}));
    const int width = Width() + 2 * window_frame;
    const int right = calendar_.Left() + calendar_.Width() + layout::gap;
    const int left = calendar_.Left() - layout::gap - width;
    const bool room_right = area.Right() - right >= calendar_.Left() - area.left;
    Move(room_right ? std::min(right, area.Right() - width) : std::max(left, area.left), calendar_.Top());
}

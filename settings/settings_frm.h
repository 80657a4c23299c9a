// The settings dialog: its tabs and buttons, its opening and closing, and the saving of its choices
// (saving.cpp). Each page has files of its own.
#pragma once

#include "calendar/main_frm.h"
#include "settings/about_page.h"
#include "settings/colours_page.h"
#include "settings/events_page.h"
#include "settings/general_page.h"
#include "settings/page.h"
#include "settings/style_page.h"
#include "settings/tooltips_page.h"
#include "settings/transfer_page.h"
#include "settings/wallpaper_page.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/list_controls.h"

#include <array>
#include <cstdint>

/// The dialog blocks the calendar and the editor while it is open. Each opening needs a new object, so that
/// no state survives from an earlier opening. After the dialog has closed, the owner must keep the object
/// until Busy returns false.
class Settings_Frm : public Form {
    Main_Frm &calendar_; // declared first: the pages need it

public:
    static constexpr int page_count = 8;
    enum Page_Index {
        events_fra,
        colours_fra,
        general_fra,
        style_fra,
        tooltips_fra,
        wallpaper_fra,
        transfer_fra,
        about_fra
    };

    /// `calendar` must outlive the dialog.
    explicit Settings_Frm(Main_Frm &calendar);
    ~Settings_Frm() override;

    /// Fills all pages from the settings and opens the dialog.
    void Form_Load();
    /// Stores the selected tab, closes the dialog and unblocks the calendar. Does nothing if the dialog is
    /// closed.
    void Form_Unload();
    /// Returns whether the opening or an event of the dialog is still running.
    bool Busy() const { return events_ > 0; }
    void Input(const platform::Input_Event &event) override;

    /// Returns the number of the selected tab, from 1.
    std::int16_t Which_Tab() const;
    void None_Vis();
    void TabStrip1_Click();
    void Ok_Btn_Click();
    void Cancel_Btn_Click();
    void Apply_Btn_Click();

    // Each of these stores some of the shown choices and updates the calendar. If the store refuses a
    // value, the user gets no message, and the value lasts until the program ends.
    void Save_Colours(const Settings &shown);
    void Save_General_Settings(const Settings &shown);
    void Save_Other_DM(const Settings &shown);
    void Save_Theme(const Settings &shown);
    void Save_Bar_Settings(const Settings &shown);

    /// Returns the settings as the pages show them, including changes that are not applied yet.
    Settings Shown_Configuration() const;

    Tab_Strip TabStrip1{*this, "TabStrip1"};
    Control_Array<Frame, page_count> Settings_Fra{*this, "Settings_Fra"};
    Events_Page Events{Settings_Fra[events_fra], calendar_};
    Colours_Page Colours{Settings_Fra[colours_fra], calendar_};
    General_Page General{Settings_Fra[general_fra], calendar_};
    Style_Page Style{Settings_Fra[style_fra], calendar_};
    Tooltips_Page Tooltips{Settings_Fra[tooltips_fra], calendar_.Balloon};
    Wallpaper_Page Wallpaper{Settings_Fra[wallpaper_fra], calendar_, Style};
    Transfer_Page Transfer{Settings_Fra[transfer_fra], calendar_};
    About_Page About{Settings_Fra[about_fra]};
    Button Ok_Btn{*this, "Ok_Btn", "OK"};
    Button Cancel_Btn{*this, "Cancel_Btn", "Cancel"};
    Button Apply_Btn{*this, "Apply_Btn", "&Apply"};

private:
    void Open();
    void Load_Pages();
    void Load_Settings();
    void Position_Frames();
    void Select_Stored_Tab();
    void Place_Beside_Calendar();
    void Block_Others(Form *modal);

    const std::array<Page *, page_count> pages_{&Events,   &Colours,   &General,  &Style,
                                                &Tooltips, &Wallpaper, &Transfer, &About};
    int events_ = 0; ///< number of events that have not returned yet
    bool open_ = false;
};

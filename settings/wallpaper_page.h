// The "Wallpaper" page of the settings dialog: the choice of a theme pack, its pictures, and what the
// calendar takes from it. The preview on the desktop is in wallpaper_preview.h, the saving in saving.cpp.
#pragma once

#include "calendar/main_frm.h"
#include "settings/style_page.h"
#include "settings/wallpaper_preview.h"
#include "toolkit/form.h"
#include "toolkit/list_controls.h"
#include "toolkit/timer.h"

#include <cstdint>
#include <string>

class Wallpaper_Page {
public:
    /// All must outlive the page.
    [[gnu::noinline]] Wallpaper_Page(Form &dialog, Frame &frame, Main_Frm &calendar, Style_Page &style_page);

    /// Places the controls, also after a change of the dots per inch.
    void Lay_Out();

    // The opening of the dialog, in this order.

    /// Lists the packs that are there now.
    void Get_Papers();
    /// Sets the check boxes from the settings, and enables what belongs to them and to Other_Display_Chk.
    void Get_Themes();
    /// Selects the pack of the settings, none if it is not there, and shows its picture of this month.
    void Get_Wallpaper();

    /// Ends a running preview and puts all back. Returns whether one was running.
    bool End_Preview();
    /// The settings with what this page and that of style and position show.
    Settings Choices() const;
    /// What the selected pack makes of the calendar this month, as far as it is to be used.
    Style_Page::Theme_Look Look() const;

    void Packs_Cbo_Click();
    /// Refuses a selected pack in which a file is missing: the user is told, and the pack of the settings is
    /// selected instead.
    void Check_Vaild();
    void Preview_Sli_Change();
    void Preview_Sli_Scroll();
    /// Has the picture of the slider's month loaded as soon as the page can be seen, and that of today's
    /// month as soon as the miniature screen of the other page needs it. Of one that is to be seen here and
    /// cannot be loaded its frame says so, and why.
    void Get_Theme_Picture();
    void Get_Theme_Display();
    void Get_Theme_Style();
    void Get_Theme_Pos();
    void Theme_Use_Chk_Click();
    void Theme_Style_Chk_Click();
    void Theme_Pos_Chk_Click();
    void Other_Display_Chk_Click();
    void Preview_Btn_Click();

    Check_Box Theme_Use_Chk;
    Label Packs_Lbl;
    Combo_Box Packs_Cbo;
    Picture_Box Theme_Preview_Img;
    Label Theme_Display_Lbl;
    Label Theme_Style_Lbl;
    Label Theme_Pos_Lbl;
    Label Loading_Lbl;
    Label Month_Lbl; ///< names the slider
    Slider Preview_Sli;
    Frame Theme_Fra;
    Check_Box Theme_Style_Chk;
    Check_Box Theme_Pos_Chk;
    Check_Box Other_Display_Chk;
    Label Display_Lbl;
    Combo_Box Display_Cbo;
    Button Preview_Btn;
    Label Preview_Lbl; ///< says how to end a preview

private:
    void Wire_Events();
    void Select_Stored_Pack();
    void Enable_Choices(bool enabled);
    void Show_Month_Name();
    void Clear_Details();
    /// A month's picture of a pack, no larger than needed, which is loaded when somebody can see it.
    struct Month_Picture {
        std::string path; ///< empty: there is none
        bool pending = false;
        Picture picture;
        std::string failure; ///< why there is no picture
    };
    void Forget_Pictures();
    void Show_Picture();
    void Load_Pictures();
    void Load(Month_Picture &wanted) const;
    void Paint_Failure(platform::Canvas &canvas) const;
    void Drop_Pack(const std::string &pack);
    void Preview_Ended(bool pack_failed);
    std::int16_t Month() const { return static_cast<std::int16_t>(Preview_Sli.Value()); }
    void Hand_Over_Look();

    Form &dialog_;
    Style_Page &style_page_;
    std::string details_;        ///< the value text of the selected pack and month
    std::string todays_details_; ///< that of today's month
    Month_Picture shown_;
    Month_Picture todays_;
    Timer Load_Timer{1}; ///< once: after what is on the screen has been painted
    Wallpaper_Preview preview_;
};

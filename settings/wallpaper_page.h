// The "Wallpaper" page of the settings dialog: the choice of a theme pack, the pack's pictures, and the
// parts of the pack that the calendar uses. wallpaper_preview.h shows the pack on the desktop, and
// saving.cpp stores the choices.
#pragma once

#include "calendar/main_frm.h"
#include "settings/style_page.h"
#include "settings/wallpaper_preview.h"
#include "toolkit/form.h"
#include "toolkit/list_controls.h"
#include "toolkit/timer.h"

#include <cstdint>
#include <string>

class Wallpaper_Page final : public Page {
public:
    /// The calendar and the style page must outlive the page.
    Wallpaper_Page(Frame &frame, Main_Frm &calendar, Style_Page &style_page);
    void Show(const Settings &settings) override;
    void Write_To(Settings &settings) const override;
    void Lay_Out() override;

    // Show calls these three, in this order.

    /// Lists the packs that exist now.
    void Get_Papers();
    /// Sets the theme box from the settings, and enables or disables the controls that depend on it.
    void Get_Themes();
    /// Selects the pack of the settings, or none if it is missing, and shows its picture for this month.
    void Get_Wallpaper();

    /// Ends a running preview and restores everything. Returns whether a preview was running.
    bool End_Preview();
    /// Returns the parts of the selected pack's look for this month that the choices use.
    Theme_Look Current_Look() const;

    void Packs_Cbo_Click();
    /// Refuses the selected pack if one of its files is missing: shows a message and selects the pack of the
    /// settings, or none if that pack is missing.
    void Check_Vaild();
    void Preview_Sli_Change();
    void Preview_Sli_Scroll();
    /// Requests two pictures. The one for the slider's month loads when this page is visible, and the one
    /// for today's month when the style page needs it for the miniature screen. If the first one cannot be
    /// loaded, its frame shows the reason.
    void Get_Theme_Picture();
    void Get_Theme_Display();
    void Get_Theme_Style();
    void Get_Theme_Pos();
    void Theme_Use_Chk_Click();
    void Theme_Style_Chk_Click();
    void Theme_Pos_Chk_Click();
    void Other_Display_Chk_Click();
    void Preview_Btn_Click();

    Check_Box Theme_Use_Chk{frame_, "Theme_Use_Chk", "Use &themes"};
    Label Theme_Use_Lbl{frame_, "Theme_Use_Lbl", "Tick this for a new picture every month."};
    Label Packs_Lbl{frame_, "Packs_Lbl", "Theme pac&k:"};
    Combo_Box Packs_Cbo{frame_, "Packs_Cbo"};
    Picture_Box Theme_Preview_Img{frame_, "Theme_Preview_Img"};
    Label Theme_Display_Lbl{frame_, "Theme_Display_Lbl"};
    Label Theme_Style_Lbl{frame_, "Theme_Style_Lbl"};
    Label Theme_Pos_Lbl{frame_, "Theme_Pos_Lbl"};
    Label Loading_Lbl{frame_, "Loading_Lbl", "Loading..."};
    Button Preview_Btn{frame_, "Preview_Btn", "Pre&view all months"};
    Label Month_Lbl{frame_, "Month_Lbl"}; ///< labels the slider
    Slider Preview_Sli{frame_, "Preview_Sli", 1, 12};
    Frame Theme_Fra{frame_, "Theme_Fra", "From the theme"};
    Check_Box Theme_Style_Chk{Theme_Fra, "Theme_Style_Chk", "Use Theme &Style"};
    Check_Box Theme_Pos_Chk{Theme_Fra, "Theme_Pos_Chk", "Use Theme &Position"};
    Check_Box Other_Display_Chk{Theme_Fra, "Other_Display_Chk", "Use an&other display mode"};
    Label Display_Lbl{Theme_Fra, "Display_Lbl", "&Display mode:"};
    Combo_Box Display_Cbo{Theme_Fra, "Display_Cbo"};
    Label Preview_Lbl{frame_, "Preview_Lbl", "Preview running: press Esc to end it."};

private:
    void Wire_Events();
    void Select_Stored_Pack();
    void Enable_Choices(bool enabled);
    void Show_Month_Name();
    void Clear_Details();
    /// A pack's picture for a month, reduced to the frame's size. It loads only when the page needs it.
    struct Month_Picture {
        std::string path; ///< empty: no picture
        bool pending = false;
        Picture picture;
        std::string failure; ///< the reason if the picture could not be loaded
    };
    void Forget_Pictures();
    void Show_Picture();
    void Load_Pictures();
    void Load(Month_Picture &wanted) const;
    void Paint_Failure(platform::Canvas &canvas) const;
    void Drop_Pack(const std::string &pack);
    void Preview_Ended(bool pack_failed);
    std::int16_t Month() const { return static_cast<std::int16_t>(Preview_Sli.Value()); }
    void Update_Style_Page();

    Style_Page &style_page_;
    std::string details_;        ///< the selected pack's value text for the slider's month
    std::string todays_details_; ///< the selected pack's value text for today's month
    Month_Picture shown_;
    Month_Picture todays_;
    Timer Load_Timer{1}; ///< fires once, after the screen has been painted
    Wallpaper_Preview preview_;
};

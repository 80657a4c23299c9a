// What Apply writes and changes, and what it leaves alone.
#include "tests/settings/settings_test.h"

namespace {

class Saving : public Settings_Dialog {
protected:
    /// The keys, of both sections, that something is written under meanwhile.
    std::string Written(const std::function<void()> &action) {
        Fakes().registry.clear();
        action();
        std::string keys;
        for (const auto &[key, text] : Fakes().registry)
            keys += key.substr(key.rfind('\\') + 1) + "=" + text + "|";
        return keys;
    }
};

TEST_F(Saving, the_calendar_follows_at_once_also_without_a_store) {
    Events({"6/3/2002=Dentist"});
    form.Redraw();
    Open(Settings_Frm::general_fra);
    const auto apply = [this] { Push(*dialog, dialog->Apply_Btn); };
    for (const bool on : {true, false}) {
        Push(*dialog, dialog->General.Auto_Compact_Chk, on);
        for (int i = 0; i < 2; ++i, Desktop().Advance(40000)) // each time the minute begins anew
            apply();
        EXPECT_EQ(form.Compact_Timer.Enabled(), on);
    }
    Cur_Settings.Auto_Compact = 2; // ticked, and yet not in use
    Push(*dialog, dialog->General.Auto_Compact_Chk, true);
    EXPECT_EQ(Written(apply),
              "Vellatro=|Alignment=0|Auto Compact=1|Bar Date Format=d Month - yyyy|Bar Time=False|"
              "Bar Time Format=H:mm|Other Display Mode=0|Style=1|Use Other Display Mode=False|");
    Fakes().registry_refuses_writes = true;
    Colours_Page &colours = dialog->Colours;
    Colour colour = 0;
    for (Picture_Box *swatch : {&colours.Col_Normal_Pic, &colours.Col_Today_Pic, &colours.Col_Num_Pic,
                                &colours.Col_Text_Pic, &colours.Col_Back_Pic, &colours.Col_Fore_Pic}) {
        swatch->Set_Back_Colour(++colour);
        dialog->Save_Colours(dialog->Shown_Configuration());
    }
    EXPECT_EQ((std::vector{Box_Of(6).Back_Colour(), Box_Of(5).Back_Colour(), Box_Of(6).Fore_Colour(),
                           form.Box_Caption_Lbl[3].Fore_Colour(), form.Back_Colour(),
                           form.Which_Month_Lbl.Fore_Colour()}),
              (std::vector<Colour>{1, 2, 3, 4, 5, 6}));
    for (Option_Button *option : {&colours.Col_Sys_Opt, &colours.Col_Other_Opt}) {
        option->Set_Checked(true);
        dialog->Save_Colours(dialog->Shown_Configuration());
        EXPECT_EQ(form.Back_Colour() == 5, option == &colours.Col_Other_Opt);
    }
    for (const int kind : {2, 1, 0}) {
        Push(*dialog, Open(Settings_Frm::tooltips_fra).Tooltips.Tips_Opt[kind], true);
        Push(*dialog, dialog->Ok_Btn);
        EXPECT_FALSE(form.Settings_Visible());
        EXPECT_EQ(Box_Of(6).Tooltip(), kind == 1 ? "Dentist" : "");
    }
}

TEST_F(Saving, a_pack_rules_style_and_position_as_far_as_it_may) {
    for (int month = 1; month <= 12; ++month)
        Fakes().files["C:\\Vellatro\\P\\" + std::to_string(month) + ".jpg"] = "a picture";
    Fakes().files["C:\\Vellatro\\P\\settings.ini"] = "3=0-6-1\r\n";
    Fakes().pictures["C:\\Vellatro\\P\\3.jpg"] = {1, 1, std::make_shared<std::vector<std::uint8_t>>(3)};
    Cur_Settings.Use_Theme_Pos = 0;
    Open(Settings_Frm::wallpaper_fra);
    const int height = form.Height();
    Wallpaper_Page &page = dialog->Wallpaper;
    const auto save = [this] { dialog->Save_Theme(dialog->Shown_Configuration()); };
    EXPECT_EQ(Written(save), "Alignment=0|Style=1|"); // the pack of the settings is not there
    Push(*dialog, page.Theme_Use_Chk, true);
    Push(*dialog, page.Packs_Cbo, true);
    EXPECT_EQ(Written(save),
              "TileWallpaper=1|WallpaperStyle=0|Alignment=0|Pack Name=P|Style=1|Use Themes=1|");
    EXPECT_NE(form.Height(), height);
    Push(*dialog, page.Theme_Pos_Chk, true);
    Written(save);
    EXPECT_TRUE(Stored("Alignment").empty() && form.Left() == 0 && form.Top() == 0);
    EXPECT_EQ(Desktop().mirrors[&form.Model()].clip, Seen());
    // A picture that is damaged is told and keeps nothing else from being saved.
    Fakes().files.erase("C:\\Vellatro\\P\\3.bmp");
    Fakes().pictures.clear();
    Fakes().any_box = true;
    Push(*dialog, page.Theme_Style_Chk, false);
    EXPECT_TRUE(
        Written([this] { Push(*dialog, dialog->Apply_Btn); }).starts_with("Vellatro=|Bar Date Format="));
    EXPECT_TRUE(Fakes().boxes.size() == 1 && form.Height() == height);
}

} // namespace

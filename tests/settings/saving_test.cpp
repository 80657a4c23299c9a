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

TEST_F(Saving, writes_what_differs_and_what_is_always_written) {
    const std::string rest = "Style=1|Use Other Display Mode=False|";
    Cur_Settings = Settings{};
    General_Page &page = Open(Settings_Frm::general_fra).General;
    const auto apply = [this] { Push(*dialog, dialog->Apply_Btn); };
    Push(*dialog, page.Alert_Chk, false);
    Push(*dialog, page.Allow_Dragging_Chk, false);
    Push(*dialog, page.Auto_Compact_Chk, true);
    EXPECT_EQ(Written(apply),
              "Alignment=0|Allow Dragging=0|Auto Compact=1|Bar Date Format=d Month - yyyy|Bar Time=False|"
              "Bar Time Format=H:mm|Other Display Mode=0|Show Alerts=0|" +
                  rest);
    EXPECT_TRUE(form.Compact_Timer.Enabled());
    Push(*dialog, page.Auto_Compact_Chk, false);
    Enter_Text(*dialog, page.Bar_Date_Cbo, "typed");
    Push(*dialog, page.Bar_Time_Chk, true);
    EXPECT_EQ(Written(apply), "Alignment=0|Auto Compact=0|Bar Date Format=typed|Bar Time=True|"
                              "Bar Time Format=H:mm|Other Display Mode=0|" +
                                  rest);
    EXPECT_TRUE(form.Settings_Visible() && !form.Compact_Timer.Enabled());
    Cur_Settings.Auto_Compact = 2; // ticked, and yet not in use
    Push(*dialog, page.Auto_Compact_Chk, true);
    EXPECT_EQ(Written(apply).substr(12, 14), "Auto Compact=1");
    Push(*dialog, page.Alert_Chk, true);
    EXPECT_EQ(Written([this] { Push(*dialog, dialog->Cancel_Btn); }), "Settings Tab=3|");
    // A store that refuses is not told, and the settings hold.
    Push(*dialog, Open(Settings_Frm::general_fra).General.Allow_Dragging_Chk, true);
    Fakes().registry_refuses_writes = true;
    Push(*dialog, dialog->Ok_Btn);
    EXPECT_TRUE(Cur_Settings.Allow_Dragging == 1 && Cur_Settings.Show_Alerts == 0);
    EXPECT_FALSE(form.Settings_Visible());
}

TEST_F(Saving, colours_are_kept_under_their_own_keys_and_seen_at_once) {
    const struct {
        Picture_Box Colours_Page::*swatch;
        const char *key;
        std::function<platform::Colour()> seen;
    } rows[] = {
        {&Colours_Page::Col_Normal_Pic, "Normal", [this] { return Box_Of(6).Back_Colour(); }},
        {&Colours_Page::Col_Today_Pic, "Today", [this] { return Box_Of(5).Back_Colour(); }},
        {&Colours_Page::Col_Num_Pic, "Num", [this] { return Box_Of(6).Fore_Colour(); }},
        {&Colours_Page::Col_Text_Pic, "Text", [this] { return form.Box_Caption_Lbl[3].Fore_Colour(); }},
        {&Colours_Page::Col_Back_Pic, "Back", [this] { return form.Back_Colour(); }},
        {&Colours_Page::Col_Fore_Pic, "Fore", [this] { return form.Which_Month_Lbl.Fore_Colour(); }},
    };
    Open(Settings_Frm::colours_fra);
    const auto apply = [this] { dialog->Save_Colours(); };
    platform::Colour colour = 0;
    for (const auto &row : rows) {
        (dialog->Colours.*row.swatch).Set_Back_Colour(++colour);
        EXPECT_EQ(Written(apply), row.key + ("=" + std::to_string(colour)) + "|");
        EXPECT_EQ(row.seen(), colour);
        EXPECT_EQ(Box_Of(5).Back_Colour(), Cur_Settings.Col_Today);
        EXPECT_EQ(Written(apply), "");
    }
    Push(*dialog, dialog->Colours.Col_Sys_Opt, true);
    EXPECT_EQ(Written(apply), "Menu Colour Source=0|");
    EXPECT_NE(form.Back_Colour(), Cur_Settings.Col_Back);
    Push(*dialog, dialog->Colours.Col_Other_Opt, true);
    EXPECT_EQ(Written(apply), "Back=5|Fore=6|Menu Colour Source=1|");
    EXPECT_EQ(form.Back_Colour(), 5);
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
    const auto save = [this] { dialog->Save_Theme(); };
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
    EXPECT_EQ(Written([this] { Push(*dialog, dialog->Apply_Btn); }).substr(0, 16), "Bar Date Format=");
    EXPECT_TRUE(Fakes().boxes.size() == 1 && form.Height() == height);
}

TEST_F(Saving, the_boxes_get_the_chosen_kind_of_tooltip) {
    Events({"6/3/2002=Dentist"});
    form.Redraw();
    for (const int kind : {2, 1, 0}) {
        Push(*dialog, Open(Settings_Frm::tooltips_fra).Tooltips.Tips_Opt[kind], true);
        Push(*dialog, dialog->Ok_Btn);
        EXPECT_EQ(Stored("Tooltips"), std::to_string(kind));
        EXPECT_EQ(Box_Of(6).Tooltip(), kind == 1 ? "Dentist" : "");
    }
}

} // namespace

// Saving: what Apply writes and changes, and how every control shows its setting.
#include "tests/settings/settings_test.h"

#include <array>

namespace {

class Saving : public Settings_Dialog {
protected:
    /// Returns the keys and texts that the action writes, of all sections.
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
        for (int i = 0; i < 2; ++i, Desktop().Advance(40000)) // each Apply restarts the minute
            apply();
        EXPECT_EQ(form.Compact_Timer.Enabled(), on);
    }
    Cur_Settings.Auto_Compact = 2; // the page shows 2 as a tick, but only 1 turns it on
    Push(*dialog, dialog->General.Auto_Compact_Chk, true);
    EXPECT_EQ(Written(apply),
              "Vellatro=|Alignment=0|Auto Compact=1|Bar Date Format=d Month - yyyy|Bar Time=False|"
              "Bar Time Format=H:mm|Other Display Mode=0|Style=1|Use Other Display Mode=False|");
    Fakes().registry_refuses_writes = true;
    Colours_Page &colours = dialog->Colours;
    colours.Col_Back_Pic.Set_Back_Colour(5);
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
    Make_Pack("P", "3=0-6-1\r\n");
    Cur_Settings.Use_Theme_Pos = 0;
    Open(Settings_Frm::wallpaper_fra);
    const int height = form.Height();
    Wallpaper_Page &page = dialog->Wallpaper;
    const auto save = [this] { dialog->Save_Theme(dialog->Shown_Configuration()); };
    EXPECT_EQ(Written(save), "Alignment=0|Style=1|"); // the pack in the settings is missing
    Push(*dialog, page.Theme_Use_Chk, true);
    Push(*dialog, page.Packs_Cbo, true);
    EXPECT_EQ(Written(save),
              "TileWallpaper=1|WallpaperStyle=0|Alignment=0|Pack Name=P|Style=1|Use Themes=1|");
    EXPECT_NE(form.Height(), height);
    Push(*dialog, page.Theme_Pos_Chk, true);
    Written(save);
    EXPECT_TRUE(Stored("Alignment").empty() && form.Left() == 0 && form.Top() == 0);
    EXPECT_EQ(Desktop().mirrors[&form.Model()].clip, Seen());
    // A damaged picture is reported, and everything else is still saved.
    Fakes().files.erase("C:\\Vellatro\\P\\3.bmp");
    Fakes().pictures.clear();
    Fakes().any_box = true;
    Push(*dialog, page.Theme_Style_Chk, false);
    EXPECT_TRUE(
        Written([this] { Push(*dialog, dialog->Apply_Btn); }).starts_with("Vellatro=|Bar Date Format="));
    EXPECT_TRUE(Fakes().boxes.size() == 1 && form.Height() == height);
}

TEST_F(Saving, every_control_shows_its_setting) {
    // Each setting takes two different values, so that one of them differs from an empty control's. Colours
    // are numbered; all others alternate between 0 and 1.
    constexpr std::array<const char *, 3> others[] = {{"Alignment", "4", "7"},
                                                      {"Menu Colour Source", "1", "0"},
                                                      {"Pack Name", "P", "Q"},
                                                      {"Bar Time Format", "h.mm", "HH"},
                                                      {"Bar Date Format", "mm/yyyy", "Month - yyyy"},
                                                      {"Other Display Mode", "2", "1"},
                                                      {"Tooltips", "2", "0"},
                                                      {"Settings Tab", "4", "4"}};
    for (const char *pack : {"Default", "P", "Q"})
        Make_Pack(pack);
    std::string &run = Fakes().registry["HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run\\Vellatro"];
    const auto all = [] {
        std::string texts;
        for (const Setting_Row &row : Setting_Rows())
            texts += std::string(row.key) + "=" + Setting_Text(Cur_Settings, row) + "|";
        return texts;
    };
    for (const bool second : {false, true}) {
        form.Close_Settings();
        for (const Setting_Row &row : Setting_Rows()) {
            const auto number = &row - &Setting_Rows().front();
            std::string text = second == (number % 2 != 0) ? "1" : "0";
            if (row.section == std::string_view("Colours"))
                text = std::to_string(2 * number + (second ? 1 : 0));
            for (const auto &[key, first, last] : others)
                if (row.key == std::string_view(key))
                    text = second ? last : first;
            Set_From_Text(Cur_Settings, row, text);
        }
        run = "C:\\Vellatro\\vellatro.exe";
        Open(Settings_Frm::style_fra);
        const std::string before = all(), started = run;
        Push(*dialog, dialog->Ok_Btn);
        EXPECT_EQ(all(), before);
        EXPECT_EQ(run, started);
    }
}

TEST_F(Saving, colours_and_texts_go_with_whatever_happens) {
    Events({"7/3/2002=fourteen chars", "6/4/2002=fourteen chars"});
    Make_Pack("Default", "3=0-6-1\r\n4=0-6-1\r\n");
    using Colours = std::vector<Colour>;
    Colours own{1, 2, 3, 4, 5, 6};
    Colour Settings::*const members[] = {&Settings::Col_Normal, &Settings::Col_Today, &Settings::Col_Num,
                                         &Settings::Col_Text,   &Settings::Col_Back,  &Settings::Col_Fore};
    for (std::size_t i = 0; i < 6; ++i)
        Cur_Settings.*members[i] = own[i];
    form.Redraw();
    const auto import = [this](const std::string &lines) {
        Fakes().files["C:\\in.ini"] = lines;
        Open(Settings_Frm::transfer_fra);
        Fakes().Expect_Dialog("Import Configuration File", "C:\\in.ini");
        Fakes().Expect_Box("Loaded configuration file successfully.");
        Push(*dialog, dialog->Transfer.Import_Btn[1]);
    };
    Cur_Settings.Use_Theme_Style = 0;
    const struct {
        const char *name;
        std::function<void()> act;
        bool thin; ///< the thin style, with one line of text
    } steps[] = {
        {"F8", [this] { Press_Key(form, 119); }, true},
        {"F9", [this] { Press_Key(form, 120); }, false},
        {"out of compact mode", [this] { Press_Key(form, 123), Press_Key(form, 123); }, false},
        {"Apply",
         [&] {
             Colours_Page &page = Open(Settings_Frm::colours_fra).Colours;
             Picture_Box *swatches[] = {&page.Col_Normal_Pic, &page.Col_Today_Pic, &page.Col_Num_Pic,
                                        &page.Col_Text_Pic,   &page.Col_Back_Pic,  &page.Col_Fore_Pic};
             dialog->Style.Style1_Opt.Set_Checked(true);
             Fakes().registry_refuses_writes = true;
             for (std::size_t i = 6; i-- > 0;) { // the colour of all boxes last: today's must stay
                 swatches[i]->Set_Back_Colour(own[i] += 16);
                 Push(*dialog, dialog->Apply_Btn);
             }
             Fakes().registry_refuses_writes = false;
             EXPECT_EQ(dialog->Style.Example1_Lbl.State().back_colour, own[0]);
             Choose(*dialog, dialog->TabStrip1, Settings_Frm::tooltips_fra);
             EXPECT_EQ(dialog->Tooltips.TipBoxExample_Lbl.State().back_colour, own[1]);
         },
         true},
        {"midnight",
         [] {
             Fakes().now = {2002, 4, 1, 0, 0, 0, 0};
             Desktop().Advance(1000);
         },
         true},
        {"an import",
         [&] {
             own = {35, 36, 37, 38, 39, 40};
             import("Col_Normal=35,Col_Today=36,Col_Num=37,Col_Text=38,Col_Back=39,Col_Fore=40,Style=1");
         },
         false},
        {"an import of a pack", [&] { import("Use_Theme_Style=1,Use_Themes=1"); }, true}};
    for (const auto &[name, act, thin] : steps) {
        SCOPED_TRACE(name);
        act();
        const int today = Fakes().now.day, other = form.Cur_Month == 3 ? 7 : 6;
        const Control *titles[] = {&form.Which_Month_Lbl, &form.Day_Lbl[0], &form.Next_Month_Lbl};
        const auto drawn = [this](const Control &control, std::size_t operation) {
            return Painted(form, control.Bounds()).operations.at(operation).colour;
        };
        // Painting starts with the form's colour. A box then has its fill, edge, number and text.
        EXPECT_EQ((Colours{drawn(Box_Of(other), 1), drawn(Box_Of(today), 1), drawn(Box_Of(other), 3),
                           drawn(Box_Of(other), 4), drawn(*titles[0], 0), drawn(*titles[0], 1)}),
                  own);
        int todays = 0;
        for (const Label &box : form.Box_Lbl)
            todays += box.Back_Colour() == own[1] ? 1 : 0;
        EXPECT_EQ(todays, 1);
        for (const Control *title : titles)
            EXPECT_EQ(drawn(*title, 1), own[5]) << title->Name();
        EXPECT_EQ(Text_Of(other), thin ? "fourteen..." : "fourteen\nchars");
    }
    EXPECT_EQ(Fakes().wallpapers, std::vector<std::string>{In_Pack("Default", "4.bmp")});
}

} // namespace

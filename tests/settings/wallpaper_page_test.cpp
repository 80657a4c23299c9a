// The wallpaper page with packs on the faked disk, and the preview of all months.
#include "settings/thumbnail.h"
#include "settings/wallpaper_page.h"
#include "tests/calendar/calendar_test.h"

namespace {

class Themes_Page : public Calendar_Test {
protected:
    struct Dialog : Form {
        explicit Dialog(Main_Frm &calendar)
            : Form(platform::Form_Kind::Dialog, "Dialog"), Page_Fra(*this, "Page_Fra"),
              Style(Page_Fra, calendar), Page(Page_Fra, calendar, Style) {}
        Frame Page_Fra;
        Style_Page Style;
        Wallpaper_Page Page;
    };

    Themes_Page() {
        Cur_Settings.Show_Alerts = 0;
        Start();
    }

    void Open(bool on_another_page = false) {
        dialog.emplace(form);
        dialog->Page_Fra.Set_Visible(!on_another_page);
        Page().Show(Cur_Settings);
        dialog->Show();
        Desktop().Advance(50);
    }
    Wallpaper_Page &Page() { return dialog->Page; }
    void Use_Themes(bool on) {
        Push(*dialog, Page().Theme_Use_Chk, on);
        Desktop().Advance(50);
    }
    void Slide(int month) {
        Choose(*dialog, Page().Preview_Sli, month);
        Desktop().Advance(50);
    }
    std::string Details() {
        return Page().Packs_Cbo.Text() + "|" + Page().Theme_Display_Lbl.Caption() + "|" +
               Page().Theme_Style_Lbl.Caption() + "|" + Page().Theme_Pos_Lbl.Caption();
    }
    bool Choices_Enabled() {
        EXPECT_EQ(Page().Packs_Cbo.Enabled(), Page().Preview_Sli.Enabled());
        return Page().Preview_Btn.Enabled();
    }
    std::optional<Dialog> dialog;
};

TEST_F(Themes_Page, shows_what_the_selected_pack_says) {
    Fakes().folders.insert("C:\\Vellatro\\no pack");
    Make_Pack("Winter");
    Cur_Settings.Pack_Name = "default"; // folder names ignore letter case
    for (const std::string march : {"1-4-2", "2-99-3", "x--99999"}) {
        Make_Pack("Default", "3=" + march);
        Open();
        EXPECT_FALSE(Choices_Enabled() || Page().Display_Cbo.Enabled());
        EXPECT_EQ(Page().Packs_Cbo.Items(), (std::vector<std::string>{"Default", "Winter"}));
        EXPECT_EQ(Details(), march == "1-4-2"
                                 ? "Default|Display: Stretch|Box Style: Square Box|Position: Top Right"
                                 : "Default|Display: |Box Style: |Position: ");
        for (const bool use : {false, true}) {
            Use_Themes(use);
            const bool usable = use && march[0] != 'x'; // the calendar can use its details
            EXPECT_EQ(Choices_Enabled(), use);
            EXPECT_EQ(Page().Current_Look().style.has_value(), usable) << march;
            EXPECT_EQ(Page().Current_Look().position.has_value(), usable && march[0] == '1') << march;
        }
    }
    Slide(1);
    EXPECT_EQ(Details(), "Default|Display: Tile|Box Style: Thin Box|Position: Bottom Center");
    Use_Themes(false);
    for (const bool on : {false, true}) // without themes, the check boxes change nothing
        for (Check_Box *box : {&Page().Theme_Style_Chk, &Page().Theme_Pos_Chk})
            Push(*dialog, *box, on);
    EXPECT_TRUE(dialog->Style.Style1_Opt.Enabled() && dialog->Style.Pos_Set_Opt.Enabled());
    Use_Themes(true);
    for (const bool on : {true, false}) { // with themes, the theme's choices replace the user's
        for (Check_Box *box : {&Page().Theme_Style_Chk, &Page().Theme_Pos_Chk, &Page().Other_Display_Chk})
            Push(*dialog, *box, on);
        EXPECT_TRUE(dialog->Style.Example4_Lbl.Enabled() != on && dialog->Style.Style1_Opt.Enabled() != on);
        EXPECT_TRUE(dialog->Style.Pos_Set_Opt.Enabled() != on && Page().Display_Cbo.Enabled() == on);
        EXPECT_EQ(dialog->Style.Style_Theme_Lbl.Visible(), on);
        EXPECT_EQ(dialog->Style.Pos_Hint_Lbl.Caption() == dialog->Style.Style_Theme_Lbl.Caption(), on);
    }
}

TEST_F(Themes_Page, refuses_packs_that_are_not_whole_and_themes_without_packs) {
    Make_Pack("Default");
    Make_Pack("Winter");
    Open();
    Use_Themes(true);
    Slide(11);
    Fakes().files.erase(In_Pack("Winter", "12.jpg"));  // while the dialog is open
    for (const std::string stored : {"", "Default"}) { // the stored pack takes its place if there is one
        Cur_Settings.Pack_Name = stored;
        Fakes().Expect_Box("Error Loading Theme.");
        Choose(*dialog, Page().Packs_Cbo, 1);
        Desktop().Advance(50);
        EXPECT_EQ(Page().Packs_Cbo.Text(), stored);
    }
    EXPECT_TRUE(Page().Preview_Sli.Value() == 3 && Page().Current_Look().picture.width == 3);
    Fakes().files.clear();
    Open();
    Fakes().Expect_Box("No Themes Available!");
    Use_Themes(true);
    EXPECT_FALSE(Page().Theme_Use_Chk.Checked() || Choices_Enabled());

    Make_Pack("Default");
    Cur_Settings.Use_Themes = 1;
    Open();
    Fakes().files.clear();
    Fakes().Expect_Box("Missing Theme Default. Themes will now be disabled."); // once for three details
    Slide(5);
    EXPECT_FALSE(Page().Theme_Use_Chk.Checked() || Choices_Enabled());
    EXPECT_EQ(Details(), "|Display:|Box Style:|Position:");
}

TEST_F(Themes_Page, loads_only_the_picture_that_is_seen_and_tells_of_a_bad_one_in_its_frame) {
    Make_Pack("Default");
    Fakes().pictures.erase(In_Pack("Default", "5.jpg"));
    Open(true);
    EXPECT_EQ(Fakes().loads, 0);
    dialog->Page_Fra.Set_Visible(true);
    platform::Canvas canvas;
    Page().Theme_Preview_Img.State().paint(canvas, Page().Theme_Preview_Img.Bounds());
    Use_Themes(true);
    Choose(*dialog, Page().Preview_Sli, 6, platform::Input_Kind::Scrolled);
    Desktop().Advance(50);
    EXPECT_TRUE(Page().Preview_Sli.Caption() == "June" && Fakes().loads == 1)
        << "the thumb has not come to rest";
    const auto in_the_frame = [&] {
        canvas.operations.clear();
        Page().Theme_Preview_Img.State().paint(canvas, Page().Theme_Preview_Img.Bounds());
        std::string text;
        for (const Canvas_Operation &operation : canvas.operations) {
            text += (text.empty() ? "" : " ") + operation.text;
            EXPECT_LE(operation.rect.Right(), Page().Theme_Preview_Img.Width());
        }
        return text;
    };
    for (const bool use : {true, false, true}) {
        Use_Themes(use);
        Slide(5);
    }
    EXPECT_EQ(in_the_frame(), "The wallpaper of May cannot be shown. Default\\5.jpg cannot be loaded");
    EXPECT_EQ(Page().Current_Look().picture.width, 3) << "the other page shows this month, here and below";
    EXPECT_EQ(Page().Current_Look().position, 3);
    Choose(*dialog, Page().Preview_Sli, 6);
    EXPECT_TRUE(Page().Loading_Lbl.Visible());
    Desktop().Advance(50);
    EXPECT_TRUE(!Page().Loading_Lbl.Visible() && in_the_frame().empty());
    EXPECT_EQ(Page().Current_Look().picture.width, 3);
    EXPECT_EQ(Fakes().loads, 4) << "March, June, May, which fails, and June";
    for (int again = 0; again < 2; ++again, Desktop().Advance(50))
        Choose(*dialog, Page().Packs_Cbo, 0);
    EXPECT_EQ(Fakes().loads, 6) << "the user may have replaced the pictures";
    Choose(*dialog, Page().Preview_Sli, 0, platform::Input_Kind::Scrolled);
    EXPECT_EQ(Page().Preview_Sli.Caption(), "January") << "the least month";
}

TEST_F(Themes_Page, a_preview_leaves_all_as_it_was) {
    enum End { by_itself, stopped, unchecked, dialog_gone, killed, bad_number, pack_gone };
    const auto desktop = [](const char *name) -> std::string & {
        return Fakes().registry[std::string("Control Panel\\Desktop\\") + name];
    };
    const auto state = [&] {
        std::string all = Fakes().registry["Software\\Vellatro\\Preview\\Pack"] + desktop("WallpaperStyle") +
                          desktop("TileWallpaper") + Fakes().wallpapers.back() +
                          form.Which_Month_Lbl.Caption() + std::to_string(form.Left()) + "," + Text_Of(7);
        for (const Setting_Row &row : Setting_Rows())
            all += "\n" + Setting_Text(Cur_Settings, row);
        for (const auto &[path, bytes] : Fakes().files)
            all += path.ends_with(".bmp") ? "\n" + path : "";
        return all;
    };
    for (const End end : {by_itself, stopped, unchecked, dialog_gone, killed, bad_number, pack_gone}) {
        const bool themes = end == by_itself || end == unchecked || end == bad_number;
        SCOPED_TRACE(end);
        Fakes().files.clear();
        Make_Pack("Default");
        Make_Pack("Winter", end == bad_number ? "2=1-x-0" : "");
        Cur_Settings = Settings{};
        Cur_Settings.Alignment = 4;
        Cur_Settings.Use_Themes = themes ? 1 : 0;
        desktop("WallpaperStyle") = "10";
        desktop("TileWallpaper") = "0";
        // Without themes, the wallpaper is left over from a pack, in another letter case.
        desktop("Wallpaper") = themes ? In_Pack("Default", "3.bmp") : In_Pack("WINTER", "3.BMP");
        if (end == stopped) // a file that the system overwrites
            desktop("Wallpaper") = "C:\\Themes\\TranscodedWallpaper";
        else
            Fakes().files[In_Pack(themes ? "Default" : "Winter", "3.bmp")] = "";
        Fakes().monitors = end == dialog_gone || end == killed ? " and a slide show" : "";
        Fakes().wallpapers = {desktop("Wallpaper") + (end == stopped ? ", copied" : "") + Fakes().monitors};
        Events({"7/3/2002=Wedding anniversary of the whole family in Winchester"});
        form.Get_Wallpaper_Stuff("Default");
        form.Which_Style(form.Effective_Style());
        form.Redraw();
        const std::string before = state(), text = Text_Of(7);
        Open();
        Use_Themes(true);
        Choose(*dialog, Page().Packs_Cbo, 1);

        Push(*dialog, Page().Preview_Btn);
        EXPECT_FALSE(Choices_Enabled());
        EXPECT_EQ(dialog->Model().focused, Page().Theme_Style_Chk.State().index); // Esc reaches the dialog
        EXPECT_TRUE(Page().Preview_Lbl.Top() >= Page().Theme_Fra.Bounds().Bottom());
        EXPECT_TRUE(form.Dectect_Date_Timer.Enabled()) << "the calendar follows the shell's icons";
        EXPECT_EQ(form.Which_Month_Lbl.Caption(), "Preview Mode - January");
        EXPECT_EQ(Cur_Settings.Use_Themes, themes) << "the calendar shows a copy";
        EXPECT_EQ(Text_Of(7) == text, themes) << "fitted for another style";
        EXPECT_EQ(Fakes().wallpapers.back(), In_Pack("Winter", "1.bmp"));
        if (end == bad_number)
            Fakes().Expect_Box("In C:\\Vellatro\\Winter\\settings.ini the position of month 2 is \"x\", "
                               "but must be a whole number from -32768 to 32767. Your own is used.");
        if (end == pack_gone) {
            Fakes().Expect_Box("Missing Theme Winter. Themes will now be disabled.", platform::Box_Answer::Ok,
                               [] { Desktop().Advance(9000); });
            std::erase_if(Fakes().files, [](const auto &file) { return file.first[12] == 'W'; });
        }
        Desktop().Advance(end == by_itself ? 35'900 : 5'000);
        EXPECT_EQ(form.Which_Month_Lbl.Caption().ends_with(end == by_itself ? "December" : "February"),
                  end < bad_number);
        Desktop().Advance(end == by_itself ? 200 : 0);
        EXPECT_EQ(end == stopped && Page().End_Preview(), end == stopped);
        if (end == unchecked)
            Use_Themes(false);
        const auto left = Fakes().registry;
        if (end == dialog_gone || end == killed)
            dialog.reset();
        if (end == killed) {
            Fakes().registry = left;
            Fakes().wallpapers.push_back("the preview's");
        }
        for (int start = 0; start < 2; ++start, Fakes().monitors = "must not be asked for")
            Wallpaper_Preview::Recover(); // as the next start does; only a killed preview leaves anything to
                                          // restore
        if (end == pack_gone)             // themes were turned off, as the box said
            EXPECT_EQ(Cur_Settings.Use_Themes, 0);
        else
            EXPECT_EQ(state(), before);
        EXPECT_TRUE(!dialog || Choices_Enabled() == (end != unchecked && end != pack_gone));
    }
}

TEST(Thumbnails, fit_whole_and_in_their_colours) {
    const auto pixels = std::make_shared<std::vector<std::uint8_t>>(3 * 400 * 100);
    pixels->front() = 255;
    const Picture wide = Thumbnail({400, 100, pixels}, 40, 15), high = Thumbnail({100, 400, pixels}, 40, 15);
    EXPECT_TRUE(wide.width == 40 && wide.height == 10 && high.width == 3 && high.height == 15);
    EXPECT_TRUE(wide.pixels->front() > 0 && wide.pixels->at(2) == 0);
}

} // namespace

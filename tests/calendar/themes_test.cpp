// How the calendar uses a theme pack, and how it treats a faulty one.
#include "tests/calendar/calendar_test.h"
#include "themes/theme_pack.h"

namespace {

class Themes : public Calendar_Test {
protected:
    Themes() {
        Stored("Use Themes") = "1";
        Make_Pack("Default", "3=0-6-1,4=1-7-0");
    }

    static std::string In_Pack(const std::string &name) { return "C:\\Vellatro\\Default\\" + name; }

    static std::string Mode() {
        return Fakes().registry["Control Panel\\Desktop\\TileWallpaper"] +
               Fakes().registry["Control Panel\\Desktop\\WallpaperStyle"];
    }
};

using Paths = std::vector<std::string>;

TEST_F(Themes, A_Pack_Rules_Wallpaper_Style_And_Position) {
    Start();
    EXPECT_EQ(Fakes().wallpapers, Paths{In_Pack("3.bmp")});
    EXPECT_TRUE(Mode() == "10" && form.Effective_Style() == 0 && form.Left() == 0 && form.Top() == 0);
    Cur_Settings.Manual_PosX = 300;
    Cur_Settings.Use_Other_Display_Mode = true;
    Cur_Settings.Other_Display_Mode = 5;
    Fakes().now.month = 4;
    Desktop().Advance(2000);
    EXPECT_EQ(Fakes().wallpapers, (Paths{In_Pack("3.bmp"), In_Pack("4.bmp")}));
    EXPECT_EQ(Mode(), "02");
    EXPECT_TRUE(form.Effective_Style() == 1 && form.Left() == 300 && Box_Of(1).Height() >= 76 * 15);
    // A box style key starts from the style on display.
    Cur_Settings.Style = 0;
    for (const auto answer :
         {platform::Box_Answer::Cancel, platform::Box_Answer::No, platform::Box_Answer::Yes}) {
        EXPECT_EQ(Stored("Style") + Stored("Use Theme Style") + std::to_string(form.Effective_Style()), "1");
        Fakes().Expect_Box("You can't change the box style because Use Theme Style is selected. Do you want "
                           "to turn off Use Theme Style?",
                           answer);
        Press_Key(form, 119);
    }
    EXPECT_EQ(Stored("Style") + Stored("Use Theme Style") + std::to_string(form.Effective_Style()), "000");
    // If the registry refuses, an error is shown and the style does not change.
    Fakes().registry_refuses_writes = true;
    Fakes().Expect_Box("Software\\Vellatro\\Settings cannot be written");
    Press_Key(form, 119);
    EXPECT_TRUE(Cur_Settings.Style == 0 && form.Effective_Style() == 0);
    Fakes().registry_refuses_writes = false;
    // Details that are not in use are not read.
    Fakes().files[In_Pack("settings.ini")] = "4=x-y-1";
    Cur_Settings.Use_Theme_Pos = Cur_Settings.Use_Theme_Style = 0;
    Cur_Settings.Style = 0;
    form.Get_Wallpaper_Stuff("Default");
    EXPECT_TRUE(form.Effective_Style() == 0 && form.Effective_Position() == Cur_Settings.Alignment);
    Cur_Settings.Use_Themes = 0;
    form.Get_Wallpaper_Stuff("Default");
    EXPECT_EQ(Fakes().wallpapers.size(), 3U);
    form.Preview_Wallpaper_Stuff("Default", 3);
    EXPECT_EQ(Fakes().wallpapers.back(), In_Pack("3.bmp"));
}

TEST_F(Themes, A_Faulty_Pack_Is_Told_Once_A_Day_And_The_Calendar_Lives) {
    const std::string number = "\", but must be a whole number from -32768 to 32767. Your own is used.";
    const std::string in = "In " + In_Pack("settings.ini") + " the ";
    const struct {
        const char *bytes;
        std::string text;
        int style, position; ///< the user's own, 1 and 8, if the pack has none
    } cases[] = {{"", in + "box style of month 3 is \"" + number, 1, 8},
                 {"3=0-32768", in + "position of month 3 is \"32768" + number, 0, 8},
                 {"3=x-1", in + "box style of month 3 is \"x" + number, 1, 1},
                 {"3=0-42-1",
                  "The wallpaper of March cannot be shown.\r\n\r\n" + In_Pack("3.jpg") +
                      " cannot be loaded\r\n\r\nThe desktop stays as it is.",
                  0, 8}};
    Stored("Alignment") = "8";
    Fakes().pictures.erase(In_Pack("3.jpg"));
    Fakes().files[In_Pack("3.bmp")] = "made before";
    for (const auto &[bytes, text, style, position] : cases) {
        SCOPED_TRACE(text);
        Fakes().files[In_Pack("settings.ini")] = bytes;
        if (text.find("cannot") != std::string::npos)
            Fakes().files.erase(In_Pack("3.bmp"));
        ++Fakes().now.day;
        Fakes().Expect_Box(text, platform::Box_Answer::Ok, [] { Desktop().Advance(5000); });
        form.Theme_BoxStyle = form.Theme_Pos = 6; // of another pack
        if (Fakes().now.day > 6)
            Desktop().Advance(1000);
        else
            Start();
        EXPECT_TRUE(form.Effective_Style() == style && form.Effective_Position() == position);
        EXPECT_EQ(Mode(), "02") << "stretched";
    }
    EXPECT_EQ(Fakes().wallpapers, Paths(3, In_Pack("3.bmp"))) << "of each month that has a picture";
}

} // namespace

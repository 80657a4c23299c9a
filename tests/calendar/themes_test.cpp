// What the calendar takes from a theme pack, and when.
#include "tests/calendar/calendar_test.h"
#include "themes/theme_pack.h"

namespace {

class Themes : public Calendar_Test {
protected:
    Themes() {
        Fakes().registry["Software\\Vellatro\\Settings\\Use Themes"] = "1";
        Fakes().files[In_Pack("settings.ini")] = "3=0-6-1,4=1-7-0";
        for (const char *name : {"3.jpg", "4.jpg"})
            Fakes().pictures[In_Pack(name)] = {
                1, 1, std::make_shared<const std::vector<std::uint8_t>>(std::size_t{3})};
    }

    static std::string In_Pack(const std::string &name) { return "C:\\Vellatro\\Default\\" + name; }

    static std::string Tiles() { return Fakes().registry["Control Panel\\Desktop\\TileWallpaper"]; }
    static std::string Style() { return Fakes().registry["Control Panel\\Desktop\\WallpaperStyle"]; }
};

using Paths = std::vector<std::string>;

TEST_F(Themes, A_Pack_Rules_Wallpaper_Style_And_Position) {
    Start();
    EXPECT_EQ(Fakes().wallpapers, Paths{In_Pack("3.bmp")});
    EXPECT_EQ(Tiles() + Style(), "10");
    EXPECT_EQ(form.Effective_Style(), 0);
    EXPECT_EQ(form.Left() + form.Top(), 0);
    Cur_Settings.Manual_PosX = 300;
    Cur_Settings.Use_Other_Display_Mode = true;
    Cur_Settings.Other_Display_Mode = 5;
    Fakes().now.month = 4;
    Desktop().Advance(2000);
    EXPECT_EQ(Fakes().wallpapers, (Paths{In_Pack("3.bmp"), In_Pack("4.bmp")}));
    EXPECT_EQ(Tiles() + Style(), "02");
    EXPECT_EQ(form.Effective_Style(), 1);
    EXPECT_EQ(form.Left(), 300);
    Cur_Settings.Use_Themes = 0;
    form.Get_Wallpaper_Stuff("Default");
    EXPECT_EQ(Fakes().wallpapers.size(), 2U);
    EXPECT_EQ(form.Effective_Style(), Cur_Settings.Style);
    form.Preview_Wallpaper_Stuff("Default", 3);
    EXPECT_EQ(Fakes().wallpapers.back(), In_Pack("3.bmp"));
}

TEST_F(Themes, What_Is_Not_Wanted_Is_Not_Even_Read) {
    Fakes().files[In_Pack("settings.ini")] = "3=x-y-1";
    Stored("Use Theme Pos") = Stored("Use Theme Style") = "0";
    Start();
    EXPECT_EQ(Tiles(), "1");
    EXPECT_EQ(form.Effective_Style(), Cur_Settings.Style);
    EXPECT_EQ(form.Effective_Position(), Cur_Settings.Alignment);
}

TEST_F(Themes, A_Faulty_Pack_Is_Told_Once_A_Day_And_The_Calendar_Lives) {
    const std::string number = "\", but must be a whole number from -32768 to 32767.";
    const auto part = [&](const char *what) {
        return "In " + In_Pack("settings.ini") + " the " + what + " of month 3 is \"";
    };
    const std::pair<const char *, std::string> cases[] = {
        {"", part("box style") + number},
        {"3=1-32768-1", part("position") + "32768" + number},
        {"3=1-1", part("display mode") + number},
        {"3=1-1-1", In_Pack("3.jpg") + " cannot be loaded"}};
    Fakes().pictures.erase(In_Pack("3.jpg"));
    Fakes().files[In_Pack("3.bmp")] = "made before";
    const auto longer = [] { Desktop().Advance(5000); };
    bool started = false;
    for (const auto &[bytes, text] : cases) {
        Fakes().files[In_Pack("settings.ini")] = bytes;
        if (text.find("cannot") != std::string::npos)
            Fakes().files.erase(In_Pack("3.bmp"));
        ++Fakes().now.day;
        Fakes().Expect_Box(text, platform::Box_Answer::Ok, longer);
        if (started)
            Desktop().Advance(1000);
        else
            Start();
        started = true;
    }
    EXPECT_TRUE(Fakes().wallpapers.empty());
    Cur_Settings.Pack_Name = "Gone";
    ++Fakes().now.day;
    Fakes().Expect_Box("Missing Theme Gone. Themes will now be disabled.");
    Desktop().Advance(1000);
    EXPECT_EQ(Fakes().wallpapers, Paths{""});
    EXPECT_EQ(Stored("Use Themes"), "0");
}

} // namespace

// Theme packs: names, details in settings.ini, and the bitmap made from a month's picture.
#include "calendar/main_frm.h"
#include "platform/files.h"
#include "tests/fakes/fake_test.h"
#include "themes/theme_pack.h"

namespace {

class Theme_Pack : public Fake_Test {
protected:
    static std::string In_Pack(const std::string &name) { return "C:\\Vellatro\\Hills\\" + name; }

    static bool Has(const std::string &name) { return Fakes().files.contains(In_Pack(name)); }
};

TEST_F(Theme_Pack, Names_Lead_Nowhere_Else) {
    for (const char *name : {"Default", "A b.c", "\u00DCbung", "COM", "COM10", "Console", "xCON"})
        EXPECT_TRUE(Is_Pack_Name(name)) << name;
    for (const char *name :
         {"",    ".",       "..",     " a",   "a ",       ".a",          "a.",    "a\\b", "a/b",
          "C:",  "C:a",     "a*",     "a?",   "a\"",      "a<",          "a|",    "a\nb", "\x7F",
          "con", "NUL.txt", "Aux .x", "lpt0", "COM9.a.b", "COM\xC2\xB2", "conin$"})
        EXPECT_FALSE(Is_Pack_Name(name)) << name;
    for (const char *name : {"B", "a", "c\\more", "none"})
        Fakes().files[std::string("C:\\Vellatro\\") + name + "\\settings.ini"] = "";
    Fakes().files.erase("C:\\Vellatro\\none\\settings.ini");
    Fakes().folders = {"C:\\Vellatro\\none", "C:\\Vellatro\\d", "C:\\Vellatro\\d\\settings.ini"};
    EXPECT_EQ(Find_Packs(), (std::vector<std::string>{"a", "B"}));
}

TEST_F(Theme_Pack, Details_Are_Read_Field_By_Field) {
    const struct {
        const char *bytes, *march;
    } cases[] = {{"3=2-4-1\r\n3=1-0-2\r\n", "1-0-2"},
                 {"1=a,3=b,\"3=c,d\"\n13=e", "c,d"},
                 {"[x]\r\n3=1-1-1\r\n", ""},
                 {"3=1-1-1\r\n\r\n3=2-2-2", "1-1-1"},
                 {"\xEF\xBB\xBF 03 =1=2,three=x", "1=2"},
                 {"33=1-1-1,3x=1", ""},
                 {"", ""}};
    for (const auto &[bytes, march] : cases) {
        Fakes().files[In_Pack("settings.ini")] = bytes;
        EXPECT_EQ(Main_Frm::Get_Paper_Details(3, "Hills"), march) << bytes;
    }
    const std::pair<const char *, const char *> values[] = {{"2-4-1", "2|4|1"},     {"", "||"},
                                                            {"2", "2||"},           {"--", "||"},
                                                            {"1-7-2-3", "1|7|2-3"}, {"1-12", "1|12|"}};
    for (const auto &[value, parts] : values)
        EXPECT_EQ(Get_Paper_BoxStyle(value) + "|" + Get_Paper_Pos(value) + "|" + Get_Paper_DisplayMode(value),
                  parts);
}

TEST_F(Theme_Pack, A_Missing_Pack_Ends_The_Use_Of_Themes_And_An_Unreadable_One_Does_Not) {
    for (const std::string pack : {"..", "", "Hills\\..\\Hills", "Gone"}) {
        if (pack != "Gone") // Windows would find a folder under the first three names
            Fakes().files["C:\\Vellatro\\" + pack + "\\settings.ini"] = "3=1-1-1";
        Cur_Settings.Use_Themes = 1;
        Fakes().Expect_Box("Missing Theme " + pack + ". Themes will now be disabled.");
        EXPECT_EQ(Main_Frm::Get_Paper_Details(3, pack), "ERROR");
        EXPECT_EQ(std::exchange(Fakes().registry["Software\\Vellatro\\Settings\\Use Themes"], ""), "0");
    }
    EXPECT_EQ(Fakes().wallpapers, std::vector<std::string>(4));
    EXPECT_EQ(Get_Paper_Path(3, "Hills\\..\\Hills"), "ERROR");
    Fakes().registry_writes = 0;
    Fakes().folders = {"C:\\Vellatro\\Hills"};
    for (const bool held : {false, true}) {
        Fakes().files[In_Pack("settings.ini")] = held ? "3=1-1-1" : "3=1-1-1,\"4=1-1-1";
        if (held)
            Fakes().unreadable = {In_Pack("settings.ini")};
        Fakes().Expect_Box("Error loading in Settings file...\r\n\r\n" + In_Pack("settings.ini"));
        EXPECT_EQ(Main_Frm::Get_Paper_Details(3, "Hills"), "ERROR");
    }
    EXPECT_TRUE(Fakes().registry_writes == 0 && Fakes().wallpapers.size() == 4);
}

TEST_F(Theme_Pack, One_Bitmap_At_A_Time_Is_Made_Of_A_Picture) {
    const auto pixels = std::make_shared<const std::vector<std::uint8_t>>(
        std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 11, 12, 13, 14, 15, 16});
    for (const char *name : {"3.jpg", "4.jpg"})
        Fakes().pictures[In_Pack(name)] = {*name == '3' ? 2 : 4, *name == '3' ? 2 : 1, pixels};
    for (const char *name : {"2.bmp", "held.bmp", "x.BMP", "bmp", "4.jpg", "deeper\\1.bmp"})
        Fakes().files[In_Pack(name)] = "old";
    Fakes().unwritable = {In_Pack("held.bmp")};
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(Get_Paper_Path(3, "Hills"), In_Pack("3.bmp"));
    EXPECT_EQ(Fakes().loads, 1);
    const std::string &bytes = Fakes().files[In_Pack("3.bmp")];
    ASSERT_EQ(bytes.size(), 70U);
    EXPECT_EQ(bytes.substr(0, 14), std::string("BM\x46\0\0\0\0\0\0\0\x36\0\0\0", 14));
    EXPECT_EQ(bytes.substr(14, 16), std::string("\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0", 16));
    EXPECT_EQ(bytes.substr(54), std::string("\xB\xC\xD\xE\xF\x10\0\0\1\2\3\4\5\6\0\0", 16));
    EXPECT_FALSE(Has("2.bmp"));
    for (const char *name : {"held.bmp", "x.BMP", "bmp", "4.jpg", "deeper\\1.bmp"})
        EXPECT_TRUE(Has(name)) << name;
    Get_Paper_Path(4, "Hills");
    EXPECT_TRUE(Has("4.bmp") && !Has("3.bmp"));
    EXPECT_EQ(Fakes().files[In_Pack("4.bmp")].substr(54), std::string(pixels->begin(), pixels->end()));
    EXPECT_THROW(Get_Paper_Path(5, "Hills"), platform::Picture_Error);
    Fakes().unwritable = {In_Pack("3.bmp")};
    EXPECT_THROW(Get_Paper_Path(3, "Hills"), platform::File_Error);
}

} // namespace

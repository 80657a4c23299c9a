// Settings and data files as the program finds them, sound and damaged.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

namespace {

using Stored = Desktop_Test;

TEST_F(Stored, Malformed_Setting_Ends_The_Program) {
    const struct {
        const char *section, *key, *value;
    } cases[] = {{"Settings", "Style", "abc"},
                 {"Settings", "Manual_PosX", "32768"},
                 {"Settings", "Bar Time", "perhaps"},
                 {"Colours", "Today", "0xC0C0FF"}};
    Write_Data("\"12/5/2027=Kept\"\r\n");
    for (const auto &[section, key, value] : cases) {
        Clear_Store();
        Set_Setting("Settings", "Bar Date Format", "xyz"); // which would be repaired
        Set_Setting(section, key, value);
        const std::string before = Store();
        const Program &program = Start();
        std::string box;
        EXPECT_TRUE(Wait_Until([&] { return (box = program.Box()).starts_with("stop [Vellatro] "); }, 15000))
            << key << ": " << box;
        for (const char *part : {section, key, value})
            EXPECT_NE(box.find(part), std::string::npos) << box;
        program.Answer();
        EXPECT_TRUE(program.Exit_Code().has_value()) << key;
        EXPECT_EQ(Store(), before);
    }
    EXPECT_EQ(Data(), "\"12/5/2027=Kept\"\r\n");
}

TEST_F(Stored, Settings_Are_Taken) {
    Set_Setting("Settings", "Bar Date Format", "xyz");
    Set_Setting("Settings", "Bar Time", "-1");
    Set_Setting("Settings", "Bar Time Format", "h:mm AM/PM");
    Set_Setting("Settings", "Alignment", "6");
    Set_Setting("Settings", "Show Alerts", "0");
    Set_Setting("Colours", "Today", "255");
    Set_Setting("Colours", "Normal", "65280");
    Set_Setting("Colours", "Back", "16711680");
    Set_Setting("Colours", "Fore", "65535");
    Write_Data("\"12/5/2027=Not alerted\"\r\n");
    const Program &program = Start_Calendar();
    EXPECT_EQ(program.Title(), "10:30 AM - Wednesday 12th May - 2027");
    EXPECT_NE(Store().find("Bar Date Format=Weekday - d month - yyyy\n"), std::string::npos) << Store();
    const std::vector<Item> items = program.Items();
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items[0].place.left, 0);
    EXPECT_EQ(items[0].place.top, 0);
    const auto colour = [](const Item &item) {
        return Picture().At(item.place.left + 4, item.place.bottom - 4);
    };
    EXPECT_TRUE(Becomes(0xFF0000U, [&] { return colour(program.Named("Wednesday 12th May 2027, today")); }));
    EXPECT_TRUE(Becomes(0x00FF00U, [&] { return colour(program.Named("Thursday 13th May 2027")); }));
    EXPECT_TRUE(Becomes(0x0000FFU, [&] { return colour(program.Named("Sunday")); }));
    const RECT &arrow = items[0].place;
    EXPECT_EQ(Picture().At((arrow.left + arrow.right) / 2, (arrow.top + arrow.bottom) / 2), 0xFFFF00U);
}

class Damaged : public Stored {
protected:
    /// Starts the program on what is there, sees it tell the failure, and sees it live on.
    void Is_Told_And_Survived(const std::string &what, const std::string &kept) {
        SCOPED_TRACE(what);
        Stop_All();
        const std::string message = "stop [Vellatro] Error loading in data file.";
        const Program &program = Start();
        const auto box = [&] { return program.Box(); };
        ASSERT_TRUE(Becomes(message, box, 20000));
        program.Answer();
        ASSERT_TRUE(Becomes(std::string("12th May - 2027"), [&] { return program.Title(); }));
        EXPECT_EQ(program.Named("Saturday 1st May 2027").value, kept);
        program.Do_Default("Next month");
        ASSERT_TRUE(Becomes(message, box, 20000)) << "in the next month";
        program.Answer();
        EXPECT_TRUE(Becomes(std::string("June - 2027"), [&] { return program.Title(); }));
        EXPECT_EQ(program.Items(ROLE_SYSTEM_CELL).size(), 30U);
    }
};

TEST_F(Damaged, File_Is_Told_And_Left_Alone) {
    using namespace std::string_literals;
    std::string junk(50 * 1024 * 1024, '\0');
    unsigned state = 1;
    for (char &byte : junk)
        byte = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24U);
    const std::pair<const char *, std::string> cases[] = {
        {"no equals sign", "\"2/5/2027 Text\"\r\n"},
        {"day 99", "\"99/5/2027=Text\"\r\n\"99/6/2027=Text\"\r\n"},
        {"unclosed quote", "\"2/5/2027=Text\r\n"},
        {"zeros", "\0\0\0\0"s},
        {"50 MB of junk", std::move(junk)}};
    for (const auto &[what, bytes] : cases) {
        const std::string all = "\"1/5/2027=Before\"\r\n" + bytes;
        Write_Data(all);
        Is_Told_And_Survived(what, "Before");
        EXPECT_TRUE(Data() == all) << what << " was changed";
    }
}

TEST_F(Damaged, Folder_In_The_Place_Of_The_File) {
    ASSERT_TRUE(CreateDirectoryW(Data_Path().c_str(), nullptr));
    Is_Told_And_Survived("folder", "");
    EXPECT_TRUE(RemoveDirectoryW(Data_Path().c_str())) << "it is no empty folder any more";
}

} // namespace

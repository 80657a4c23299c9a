// What platform/registry.h promises: texts come back as they were written.
#include "platform/registry.h"
#include "tests/contract/contract.h"

namespace {

class Registry_Contract : public Contract_Test {};

TEST_F(Registry_Contract, Texts_Come_Back) {
    const std::string texts[] = {
        "",
        "1",
        "C:\\Program Files\\Vellatro\\vellatro.exe",
        "%TEMP% stays as it is",
        " blanks, \"quotes\"\r\nand a line ",
        "Dia\xC3\xA9rio \xD0\xB4\xD0\xB5\xD0\xBD\xD1\x8C \xE6\x97\xA5 \xF0\x9F\x93\x85",
        std::string(40'000, 'x')};
    for (const std::string &text : texts) {
        platform::Write_User_Value(Scratch_Key(), "Value", text);
        EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Value"), text);
    }
}

TEST_F(Registry_Contract, Values_Of_A_Key_Are_Apart) {
    const std::string key = Scratch_Key();
    platform::Write_User_Value(key, "Auto Compact", "1");
    platform::Write_User_Value(key, "Auto", "2");
    platform::Write_User_Value(key + "\\Below", "Auto", "3");
    EXPECT_EQ(platform::Read_User_Value(key, "Auto Compact"), "1");
    EXPECT_EQ(platform::Read_User_Value(key, "auto"), "2");
    EXPECT_EQ(platform::Read_User_Value(key + "\\below", "Auto"), "3");
    platform::Write_User_Value(key, "AUTO", "4");
    EXPECT_EQ(platform::Read_User_Value(key, "Auto"), "4");
}

TEST_F(Registry_Contract, What_Is_Missing_Is_Nothing) {
    EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Value"), std::nullopt);
    platform::Write_User_Value(Scratch_Key(), "Value", "");
    EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Other"), std::nullopt);
    EXPECT_EQ(platform::Read_User_Value(Scratch_Key() + "\\Below", "Value"), std::nullopt);
}

} // namespace

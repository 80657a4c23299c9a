// What platform/registry.h promises: texts come back as they were written.
#include "platform/registry.h"
#include "tests/contract/contract.h"

namespace {

class Registry_Contract : public Contract_Test {};

TEST_F(Registry_Contract, Texts_Come_Back) {
    for (const std::string &text :
         {std::string(), std::string("%TEMP% stays"), std::string(" blanks, \"quotes\"\r\nand a line "),
          std::string("\xC3\xA9 \xD0\xB4 \xE6\x97\xA5 \xF0\x9F\x93\x85"), std::string(40'000, 'x')}) {
        platform::Write_User_Value(Scratch_Key(), "Value", text);
        EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Value"), text);
    }
}

TEST_F(Registry_Contract, Values_Are_Apart_And_What_Is_Missing_Is_Nothing) {
    const std::string key = Scratch_Key();
    EXPECT_EQ(platform::Read_User_Value(key, "Auto"), std::nullopt);
    platform::Write_User_Value(key, "Auto Compact", "1");
    EXPECT_EQ(platform::Read_User_Value(key, "Auto"), std::nullopt);
    EXPECT_EQ(platform::Read_User_Value(key + "\\Below", "Auto Compact"), std::nullopt);
    platform::Write_User_Value(key, "Auto", "2");
    platform::Write_User_Value(key + "\\Below", "Auto", "3");
    platform::Write_User_Value(key, "AUTO", "4");
    EXPECT_EQ(platform::Read_User_Value(key, "Auto Compact"), "1");
    EXPECT_EQ(platform::Read_User_Value(key, "auto"), "4");
    EXPECT_EQ(platform::Read_User_Value(key + "\\below", "Auto"), "3");
}

} // namespace

// The contract of platform/registry.h: values are read as they were written.
#include "platform/registry.h"
#include "tests/contract/contract.h"

namespace {

using Registry_Contract = Contract_Test;

TEST_F(Registry_Contract, Values_Are_Apart_And_What_Is_Missing_Is_Nothing) {
    const std::string key = Scratch_Key();
    for (const std::string &text :
         {std::string(), std::string("%TEMP% stays"), std::string(" blanks, \"quotes\"\r\nand a line "),
          std::string("\xC3\xA9 \xD0\xB4 \xE6\x97\xA5 \xF0\x9F\x93\x85"), std::string(40'000, 'x')}) {
        platform::Write_User_Value(key, "Value", text);
        EXPECT_EQ(platform::Read_User_Value(key, "Value"), text);
    }
    platform::Write_User_Value(key, "Auto Compact", "1");
    EXPECT_EQ(platform::Read_User_Value(key, "Auto"), std::nullopt);
    EXPECT_EQ(platform::Read_User_Value(key + "\\Below", "Auto Compact"), std::nullopt);
    platform::Write_User_Value(key, "Auto", "2");
    platform::Write_User_Value(key + "\\Below", "Auto", "3");
    platform::Write_User_Value(key, "AUTO", "4");
    EXPECT_EQ(*platform::Read_User_Value(key, "Auto Compact") + *platform::Read_User_Value(key, "auto") +
                  *platform::Read_User_Value(key + "\\below", "Auto"),
              "143");
}

#ifdef _WIN32
TEST_F(Registry_Contract, Values_Have_The_Type_Of_Their_Letter) {
    using Value = platform::Registry_Value;
    const std::string key = Scratch_Key();
    const auto read = [&](char letter, const char *root = "HKCU") {
        return platform::Registry_Read(root, key, "Value", letter, Value("none"));
    };
    const std::pair<char, Value> cases[] = {
        {'S', std::string(40'000, 'x')}, {'B', true}, {'D', std::int32_t{-2}}, {'S', "\xD0\xB4"}};
    for (const auto &[letter, value] : cases) {
        platform::Registry_Write("HKCU", key, "Value", letter, value);
        for (const char other : {'S', 's', 'B', 'b', 'D', 'd'})
            EXPECT_EQ(read(other), std::toupper(other) == letter ? value : Value("none")) << letter << other;
    }
    EXPECT_EQ(read('S', "hkcu"), Value("none"));
    // Registry_Write_String creates no key.
    const platform::Registry_Root user = platform::Find_Registry_Root("HKCU");
    platform::Registry_Write_String(user, key + "\\Below", "Value", "x");
    EXPECT_EQ(platform::Read_User_Value(key + "\\Below", "Value"), std::nullopt);
    platform::Registry_Write_String(user, key, "Value", "simple");
    platform::Registry_Write_String(0, key, "Value", "nowhere");
    EXPECT_EQ(read('S'), Value("simple"));
    EXPECT_TRUE(platform::Registry_Writable("HKCU", key));
    EXPECT_FALSE(platform::Registry_Writable("HKCU", key + "\\Below")) << "which is not there";
}
#endif

} // namespace

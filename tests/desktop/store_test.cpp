// Settings and data files as the program finds them, sound and damaged.
#include "tests/desktop/driver.h"

#include <windows.h>

namespace {

using Stored = Desktop_Test;

TEST_F(Stored, Malformed_Setting_Ends_The_Program) {
    Set_Setting("Settings", "Bar Date Format", "xyz"); // which would be repaired
    Set_Setting("Settings", "Manual_PosX", "32768");
    const std::string before = Store();
    const Program &program = Start();
    const std::string told = "stop [Vellatro] The setting \"Manual_PosX\"";
    EXPECT_TRUE(Becomes(
        told, [&] { return program.Box().substr(0, told.size()); }, 15000));
    program.Answer();
    EXPECT_TRUE(program.Exit_Code().has_value());
    EXPECT_EQ(Store(), before);
}

TEST_F(Stored, Damaged_Data_Is_Told_Survived_And_Left_Alone) {
    std::string junk(50 * 1024 * 1024, '\0');
    unsigned state = 1;
    for (char &byte : junk)
        byte = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24U);
    const std::string message = "stop [Vellatro] Error loading in data file.",
                      good = "\"1/5/2027=Before\"\r\n";
    for (const std::string &bytes : {good + "\"2/5/2027=Text\r\n", good + junk, std::string()}) {
        SCOPED_TRACE(bytes.size());
        Stop_All();
        if (!bytes.empty()) {
            Write_Data(bytes);
        } else { // a folder in the place of the file
            ASSERT_TRUE(DeleteFileW(Data_Path().c_str()) && CreateDirectoryW(Data_Path().c_str(), nullptr));
        }
        const Program &program = Start();
        const auto box = [&] { return program.Box(); };
        ASSERT_TRUE(Becomes(message, box, 20000));
        program.Answer();
        ASSERT_TRUE(Becomes(std::string("12th May - 2027"), [&] { return program.Title(); }));
        EXPECT_EQ(program.Named("Saturday 1st May 2027").value, bytes.empty() ? "" : "Before");
        program.Do_Default("Next month");
        ASSERT_TRUE(Becomes(message, box, 20000)) << "in the next month";
        program.Answer();
        EXPECT_TRUE(Becomes(std::string("June - 2027"), [&] { return program.Title(); }));
        EXPECT_TRUE(Data() == bytes) << "it was changed";
    }
    EXPECT_TRUE(RemoveDirectoryW(Data_Path().c_str())) << "it is no empty folder any more";
}

} // namespace

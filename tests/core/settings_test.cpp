// The settings table: names, sections, types, defaults and errors.
#include "core/settings.h"
#include "platform/registry.h"
#include "tests/fakes/fake_test.h"

namespace {

using Settings_Test = Fake_Test;

std::string &Stored(const std::string &place) {
    return Fakes().registry["Software\\Vellatro\\" + place];
}

std::string Load_Error() {
    try {
        Load_Settings();
    } catch (const Setting_Error &error) {
        return error.what();
    }
    return "no error";
}

/// Section, key and default of every setting in the order of the table.
const std::string expected_table =
    "Settings\\Style=1;Settings\\Alignment=0;Colours\\Today=16761024;Colours\\Normal=16777215;"
    "Colours\\Fore=16777215;Colours\\Num=-2147483630;Colours\\Text=-2147483630;Colours\\Back=8390687;"
    "Colours\\Menu Colour Source=1;Settings\\Pack Name=Default;Settings\\Use Themes=0;"
    "Settings\\Use Theme Pos=1;Settings\\Use Theme Style=1;Settings\\Show Alerts=1;"
    "Settings\\Allow Dragging=1;Settings\\Bar Time=False;Settings\\Bar Time Format=H:mm;"
    "Settings\\Bar Date Format=d Month - yyyy;Settings\\Manual_PosX=0;Settings\\Manual_PosY=0;"
    "Settings\\Use Other Display Mode=False;Settings\\Other Display Mode=0;Settings\\Auto Compact=0;"
    "Settings\\Tooltips=1;Settings\\Settings Tab=4;";

TEST_F(Settings_Test, Table_And_First_Run) {
    Cur_Settings.Style = 9;
    Load_Settings();
    std::string table;
    for (const Setting_Row &row : Setting_Rows())
        table += std::string(row.section) + "\\" + row.key + "=" + Setting_Text(Cur_Settings, row) + ";";
    EXPECT_EQ(table, expected_table);
}

TEST_F(Settings_Test, Each_Setting_Is_Its_Own_Variable_And_Survives_The_Store) {
    std::vector<std::string> texts;
    for (const Setting_Row &row : Setting_Rows()) {
        const bool flag = Setting_Text(Cur_Settings, row) == "False";
        texts.push_back(flag ? "True" : std::to_string(100 + texts.size()));
        Set_From_Text(Cur_Settings, row, texts.back());
    }
    for (const Setting_Row &row : Setting_Rows())
        Save_Setting(row.member);
    EXPECT_EQ(Fakes().registry.size(), texts.size());
    Cur_Settings = Settings{};
    Load_Settings();
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(Setting_Text(Cur_Settings, Setting_Rows()[i]), texts[i]) << Setting_Rows()[i].key;
}

TEST_F(Settings_Test, A_Malformed_Value_Is_Named_And_Ends_The_Loading) {
    Stored("Settings\\Style") = " +2 ";
    Stored("Colours\\Num") = "-2147483648";
    Stored("Colours\\Menu Colour Source") = "40000";
    Stored("Settings\\Tooltips") = "2";
    const std::string mended =
        ".\r\n\r\nVellatro ends now. Correct or delete the value in the registry, under "
        "HKEY_CURRENT_USER\\Software\\Vellatro\\";
    EXPECT_EQ(Load_Error(),
              "The setting \"Menu Colour Source\" in the section \"Colours\" is \"40000\", but must be a "
              "whole number from -32768 to 32767" +
                  mended + "Colours, and start it again.");
    EXPECT_TRUE(Cur_Settings.Style == 2 && Cur_Settings.Col_Num == -2147483647 - 1);
    EXPECT_EQ(Cur_Settings.Tooltips, 1);
    Fakes().registry.clear();
    // The message cuts a long value between characters.
    std::string value = "x";
    for (int i = 0; i < 500; ++i)
        value += "\xC3\xA9";
    Stored("Settings\\Bar Time") = value;
    EXPECT_EQ(Load_Error(), "The setting \"Bar Time\" in the section \"Settings\" is \"" +
                                value.substr(0, 59) + "...\", but must be True or False" + mended +
                                "Settings, and start it again.");
}

} // namespace

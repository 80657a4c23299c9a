// The settings table against the store: names, sections, types, defaults and errors.
#include "core/settings.h"
#include "platform/registry.h"
#include "tests/fakes/fake_test.h"

#include <algorithm>
#include <climits>
#include <vector>

using Settings_Test = Fake_Test;

namespace {

const std::string general = "Software\\Vellatro\\Settings\\";
const std::string colours = "Software\\Vellatro\\Colours\\";

/// Section, key and default of every setting in reading order.
const std::string told =
    "Settings\\Style=1;Settings\\Alignment=0;Colours\\Today=16761024;Colours\\Normal=16777215;"
    "Colours\\Fore=16777215;Colours\\Num=-2147483630;Colours\\Text=-2147483630;Colours\\Back=8390687;"
    "Colours\\Menu Colour Source=1;Settings\\Pack Name=Default;Settings\\Use Themes=0;"
    "Settings\\Use Theme Pos=1;Settings\\Use Theme Style=1;Settings\\Show Alerts=1;"
    "Settings\\Allow Dragging=1;Settings\\Bar Time=False;Settings\\Bar Time Format=H:mm;"
    "Settings\\Bar Date Format=d Month - yyyy;Settings\\Manual_PosX=0;Settings\\Manual_PosY=0;"
    "Settings\\Use Other Display Mode=False;Settings\\Other Display Mode=0;Settings\\Auto Compact=0;"
    "Settings\\Tooltips=1;Settings\\Settings Tab=4;";

/// The name in a configuration file: mostly a rule, with the exceptions that users' files have.
std::string Configuration_Key(const Setting_Row &row) {
    std::string key = row.key;
    if (key == "Alignment" || key == "Settings Tab")
        return "none";
    if (key == "Menu Colour Source")
        return "Menu_Col_Sorce";
    std::replace(key.begin(), key.end(), ' ', '_');
    return row.section == std::string("Colours") ? "Col_" + key : key;
}

std::string Load_Error() {
    try {
        Load_Settings();
    } catch (const Setting_Error &error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST_F(Settings_Test, Table_And_First_Run) {
    Cur_Settings.Style = 9;
    Cur_Settings.Pack_Name = "left over";
    Load_Settings();
    std::string table;
    for (const Setting_Row &row : Setting_Rows()) {
        table += std::string(row.section) + "\\" + row.key + "=" + Setting_Text(Cur_Settings, row) + ";";
        EXPECT_EQ(row.configuration_key == nullptr ? "none" : row.configuration_key, Configuration_Key(row));
    }
    EXPECT_EQ(table, told);
    EXPECT_TRUE(Fakes().registry.empty());
    EXPECT_EQ(Fakes().registry_writes, 0);
    EXPECT_THROW(Setting_Row_Of("No such"), std::out_of_range);
}

TEST_F(Settings_Test, Each_Setting_Is_Its_Own_Variable_And_Survives_The_Store) {
    std::vector<std::string> texts;
    for (const Setting_Row &row : Setting_Rows()) {
        const std::string number = std::to_string(100 + texts.size());
        const bool flag = Setting_Text(Cur_Settings, row) == "False";
        texts.push_back(flag ? "True" : row.variable.index() == 3 ? "text " + number : number);
        Set_From_Text(Cur_Settings, row, texts.back());
    }
    for (const Setting_Row &row : Setting_Rows())
        Save_Setting(row.key);
    EXPECT_EQ(Fakes().registry.size(), texts.size());
    Cur_Settings = Settings{};
    Load_Settings();
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(Setting_Text(Cur_Settings, Setting_Rows()[i]), texts[i]) << Setting_Rows()[i].key;
    EXPECT_EQ(Fakes().registry[colours + "Back"], "107");
    EXPECT_EQ(Fakes().registry[general + "Bar Time"], "True");
}

TEST_F(Settings_Test, Save_Writes_One_Key_And_Tells_A_Refusal) {
    Cur_Settings.Style = -3;
    Save_Setting("Style");
    EXPECT_EQ(Fakes().registry.size(), 1U);
    EXPECT_EQ(Fakes().registry[general + "Style"], "-3");
    Fakes().registry_refuses_writes = true;
    EXPECT_THROW(Save_Setting("Style"), platform::Registry_Error);
}

TEST_F(Settings_Test, Stored_Forms) {
    Fakes().registry[general + "Bar Time"] = "-1";
    Fakes().registry[colours + "Num"] = "-2147483648";
    Fakes().registry[general + "Pack Name"] = "";
    Fakes().registry[general + "Style"] = " +0 ";
    Load_Settings();
    EXPECT_TRUE(Cur_Settings.Bar_Time);
    EXPECT_EQ(Cur_Settings.Col_Num, INT_MIN);
    EXPECT_EQ(Cur_Settings.Pack_Name, "");
    EXPECT_EQ(Cur_Settings.Style, 0);
}

TEST_F(Settings_Test, A_Malformed_Value_Is_Named_And_Ends_The_Loading) {
    Fakes().registry[general + "Style"] = "2";
    Fakes().registry[colours + "Menu Colour Source"] = "40000";
    Fakes().registry[general + "Tooltips"] = "2";
    EXPECT_EQ(Load_Error(),
              "The setting \"Menu Colour Source\" in the section \"Colours\" is \"40000\", but must be a "
              "whole number from -32768 to 32767.");
    EXPECT_EQ(Cur_Settings.Style, 2);
    EXPECT_EQ(Cur_Settings.Tooltips, 1);

    Fakes().registry.clear();
    Fakes().registry[general + "Bar Time"] = "";
    EXPECT_EQ(Load_Error(),
              "The setting \"Bar Time\" in the section \"Settings\" is \"\", but must be True or False.");

    // A long value is cut between whole characters.
    std::string value = "x";
    for (int i = 0; i < 500; ++i)
        value += "\xC3\xA9";
    Fakes().registry[general + "Bar Time"] = value;
    EXPECT_EQ(Load_Error(), "The setting \"Bar Time\" in the section \"Settings\" is \"" +
                                value.substr(0, 59) + "...\", but must be True or False.");
}

// Exports through the buttons of the page: formats byte for byte, names, refusals, and importing them again.
#include "tests/transfer/transfer_test.h"

namespace {

using Exporting = Transfer_Test;

TEST_F(Exporting, writes_events_byte_for_byte) {
    const std::string no_csv =
        "\"Subject\",\"Start Date\",\"Description\",\"Start Time\",\"End Date\",\"End Time\"\r\n";
    Export(3, "C:\\out.csv", "Successfully exported 0 events to the CSV file...\r\nC:\\out.csv");
    EXPECT_EQ(File("C:\\out.csv"), no_csv);
    Data_File() =
        "\"31/12/2002=New = Year, \"\r\n\"nonsense\"\r\n\"5/3/2002=Dentist\"\r\n\"29/2/9999=Leap\"\r\n"
        "5/3/2002=a \"b\"\r\n";
    Export(2, "C:\\out", "Successfully exported 4 events to the text file...\r\nC:\\out.txt");
    EXPECT_EQ(File("C:\\out.txt"),
              "28/2/2002 (every year)  -  Leap\r\n5/3/2002  -  Dentist\r\n5/3/2002  -  a \"b\"\r\n"
              "31/12/2002  -  New = Year, \r\n");
    Export(3, "C:\\OUT2.CSV", "Successfully exported 4 events to the CSV file...\r\nC:\\OUT2.CSV");
    const auto record = [](const std::string &date, const std::string &text, const std::string &next) {
        return "\"Vellatro\",\"" + date + "\",\"" + text + "\",\"12:00:00 AM\",\"" + next +
               "\",\"12:00:00 AM\"\r\n";
    };
    EXPECT_EQ(File("C:\\OUT2.CSV"), no_csv + record("28/2/2002", "Leap", "1/3/2002") +
                                        record("5/3/2002", "Dentist", "6/3/2002") +
                                        record("5/3/2002", "a \"\"b\"\"", "6/3/2002") +
                                        record("31/12/2002", "New = Year, ", "1/1/2003"));
    Data_File() = "";
    Import(2, "C:\\OUT2.CSV", "Successfully imported 4 events from the CSV file...\r\n\r\nC:\\OUT2.CSV");
    EXPECT_EQ(Data_File(),
              "\"28/2/2002=Leap\"\r\n\"5/3/2002=Dentist + a b\"\r\n\"31/12/2002=New = Year, \"\r\n");
    Data_File() = "\"5/3/2002=cut";
    Export(2, "C:\\cut.txt", "Error loading in data file.");
    EXPECT_FALSE(Fakes().files.contains("C:\\cut.txt"));
}

TEST_F(Exporting, writes_the_configuration_that_is_shown) {
    dialog->General.Bar_Time_Cbo.Set_Text("h, mm");
    Choose(*dialog, dialog->TabStrip1, Settings_Frm::general_fra);
    Push(*dialog, dialog->General.Alert_Chk, true);
    Push(*dialog, dialog->General.Bar_Time_Chk, true);
    for (Option_Button *option :
         {&dialog->Tooltips.Tips_Opt[2], &dialog->Style.Style1_Opt, &dialog->Style.Pos_Manual_Opt})
        option->Set_Checked(true);
    Choose(*dialog, dialog->TabStrip1, Settings_Frm::transfer_fra);
    Cur_Settings.Manual_PosX = -15;
    Export(1, "C:\\a.b", "Successfully exported current configuration to file...\r\nC:\\a.b.ini");
    std::string expected;
    for (const char c : std::string(
             "Style=0|TaskPos=7|Col_Today=16761024|Col_Normal=16777215|Col_Fore=16777215|"
             "Col_Num=-2147483630|Col_Text=-2147483630|Col_Back=8390687|Menu_Col_Sorce=1|Show_Alerts=1|"
             "Use_Themes=0|Use_Theme_Pos=1|Use_Theme_Style=1|Allow_Dragging=1|Bar_Time=1|"
             "Bar_Time_Format=h, mm|Bar_Date_Format=d Month - yyyy|Manual_PosX=-15|Manual_PosY=0|"
             "Use_Other_Display_Mode=0|Other_Display_Mode=0|Auto_Compact=0|Pack_Name=Default|Tooltips=2|"))
        expected += c == '|' ? "\"\r\n\"" : std::string(1, c);
    expected = "\"" + expected.substr(0, expected.size() - 1);
    EXPECT_EQ(File("C:\\a.b.ini"), expected);
    Import(1, "C:\\a.b.ini", "Loaded configuration file successfully.");
    EXPECT_TRUE(Cur_Settings.Bar_Time && Cur_Settings.Alignment == 7 && Cur_Settings.Style == 0);
}

TEST_F(Exporting, keeps_a_file_when_its_replacement_fails) {
    Export(0, "C:\\copy", "Can't find data file! This could be because you havn't created any events yet?");
    Data_File() = "anything\0,\"";
    File("C:\\copy.DAT") = "old";
    Fakes().unwritable.insert("C:\\copy.DAT");
    for (const char *message :
         {"C:\\copy.DAT cannot be written", "Successfully exported data file to...\r\nC:\\copy.DAT"}) {
        EXPECT_EQ(File("C:\\copy.DAT"), "old");
        Fakes().Expect_Box("Overwrite existing file?", platform::Box_Answer::Yes);
        Export(0, "C:\\copy.DAT", message);
        Fakes().unwritable.clear();
    }
    EXPECT_EQ(File("C:\\copy.DAT"), Data_File());
    EXPECT_EQ(Fakes().written["C:\\copy.DAT"].month, 2); // the time of the original
}

} // namespace

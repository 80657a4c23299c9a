// Import and export through the settings dialog and the system's file dialogs.
#include "tests/desktop/transfer.h"

namespace {

TEST_F(Transfer, An_Export_Asks_And_Keeps_What_It_May_Not_Replace) {
    Write_Data("\"28/2/2028=\xE6\x97\xA5\xE6\x9C\xAC, =\xE8\xAA\x9E\"\r\n");
    Open();
    const char *title = "Export Events as CSV File";
    const std::string question = "[Vellatro] Overwrite existing file?";
    Choose_File('V', title, "");
    Expect_Quiet();
    EXPECT_EQ(Read_File(L"out.csv"), "");
    Write_File(L"out.csv", "old");
    Choose_File('V', title, "out.csv");
    Answer(question, IDNO);
    Give_Name(title, ""); // a No asks for another name
    Expect_Quiet();
    EXPECT_EQ(Read_File(L"out.csv"), "old");
    Choose_File('V', title, "out"); // the program adds the extension
    Answer(question, IDYES);
    Answer("[Vellatro] Successfully exported 1 events to the CSV file...\r\n" + folder_ + "out.csv");
    Expect_Quiet();
    EXPECT_TRUE(Read_File(L"out.csv")
                    .ends_with("\"2/28/2028\",\"\xE6\x97\xA5\xE6\x9C\xAC, =\xE8\xAA\x9E\","
                               "\"12:00:00 AM\",\"2/29/2028\",\"12:00:00 AM\"\r\n"));
    EXPECT_EQ(Read_File(L"out.csv.vellatro-new"), "");
}

TEST_F(Transfer, An_Import_Refuses_And_Asks) {
    const std::string old = "\"6/5/2027=Old\"\r\n", other = "\"7/5/2027=Other\"\r\n";
    Write_File(L"out.dat", other);
    Write_File(L"out.ics",
               "BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20270509\nSUMMARY:Web\nEND:VEVENT\nEND:VCALENDAR\n");
    Write_File(L"out.ini", "\"Tooltips=2\"\r\n\"Unknown=1\"\r\n");
    Write_Data(old);
    Open();
    const std::string warning = "warning [Vellatro] ";
    const std::string replace = warning + "You already have a working data file. Importing another one will "
                                          "completely overwrite the old one and you will lose all data.";
    Choose_File('E', "Import Events from iCalendar File", "out.ics");
    Answer("[Vellatro] Successfully imported 1 events from the iCalendar file...");
    Expect_Quiet();
    EXPECT_EQ(Data(), old + "\"9/5/2027=Web\"\r\n");
    EXPECT_EQ(program_->Named("Sunday 9th May 2027").value, "Web");
    Choose_File('T', "Import Data File", "out.dat");
    Answer(replace, IDYES);
    Answer("[Vellatro] Successfully imported data file from...\r\n\r\n" + folder_ + "out.dat");
    Expect_Quiet();
    EXPECT_EQ(Data(), other);
    Choose_File('G', "Import Configuration File", "out.ini");
    Answer("[Vellatro] Loaded configuration file successfully.");
    EXPECT_TRUE(Wait_Until([&] { return !program_->Window("Vellatro_Settings_Frm"); })) << "the dialog stays";
    EXPECT_NE(Store().find("Tooltips=2\n"), std::string::npos) << Store();
}

} // namespace

// Import and export as a user does them: through the dialog's page and the system's file dialogs. What the
// exported table says to another reader, tests/csv_fields.py looks at afterwards.
#include "tests/desktop/transfer.h"

namespace {

TEST_F(Transfer, Events_Go_Out_And_Come_Back) {
    Write_Data("\"12/5/9999=Every, year\"\r\n\"6/5/2027=Once\"\r\n");
    Open();
    Save_Picture("transfer-page");
    Choose_File('V', "Export Events as CSV File", "out.csv");
    Answer("[Vellatro] Successfully exported 2 events to the CSV file...\r\n" + folder_ + "out.csv");
    DeleteFileW(Data_Path().c_str());
    Write_Data("\"6/5/9999=Always\"\r\n");
    Choose_File('L', "Import Events from CSV File", "out.csv");
    Answer("[Vellatro] Successfully imported 2 events from the CSV file...\r\n\r\n" + folder_ + "out.csv");
    EXPECT_EQ(Data(), "\"6/5/9999=Always + Once\"\r\n\"12/5/2027=Every, year\"\r\n");
    EXPECT_EQ(program_->Named("Wednesday 12th May 2027, today").value, "Every, year");
}

TEST_F(Transfer, Every_Export_Asks_And_Keeps_What_It_May_Not_Replace) {
    const std::string data = "\"12/5/9999=Every, year\"\r\n6/5/2027=Say \"no\" twice\r\n"
                             "\"28/2/2028=\xE6\x97\xA5\xE6\x9C\xAC, =\xE8\xAA\x9E\"\r\n";
    Write_Data(data);
    Open();
    const struct {
        WORD key;
        const char *title, *name, *report, *content;
    } rows[] = {{'D', "Export Data File", "out.dat", "data file to...", data.c_str()},
                {'C', "Export Configuration File", "out.ini", "current configuration to file...",
                 "\"Show_Alerts=0\"\r\n"},
                {'X', "Export Events to Text File", "out.txt", "3 events to the text file...",
                 "5/6/2027  -  Say \"no\" twice\r\n5/12/2027 (every year)  -  Every, year\r\n2/28/2028  -  "},
                {'V', "Export Events as CSV File", "out.csv", "3 events to the CSV file...",
                 "\"Vellatro\",\"5/6/2027\",\"Say \"\"no\"\" twice\",\"12:00:00 AM\",\"5/7/2027\","}};
    for (const auto &[key, title, name, report, content] : rows) {
        SCOPED_TRACE(title);
        const std::string question = "[Vellatro] Overwrite existing file?";
        Send_Key(key, true);
        Give_Name(title, "");
        Expect_Quiet();
        EXPECT_EQ(File(name), "");
        Set_File(name, "old");
        Choose_File(key, title, name);
        Answer(question, IDNO);
        Give_Name(title, ""); // it asks for another name
        Expect_Quiet();
        EXPECT_EQ(File(name), "old");
        Set_Read_Only(name, true);
        Choose_File(key, title, name);
        Answer(question, IDYES);
        Answer("stop [Vellatro] " + folder_ + name + ": ");
        Expect_Quiet();
        EXPECT_EQ(File(name), "old");
        Set_Read_Only(name, false);
        Choose_File(key, title, std::string(name).substr(0, 3)); // which gets the ending
        Answer(question, IDYES);
        Answer("[Vellatro] Successfully exported " + std::string(report) + "\r\n" + folder_ + name);
        Expect_Quiet();
        EXPECT_NE(File(name).find(content), std::string::npos) << File(name);
        EXPECT_EQ(File(std::string(name) + ".vellatro-new"), "");
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_EQ(Data(), data);
}

TEST_F(Transfer, Every_Import_Refuses_And_Asks) {
    const std::string old = "\"6/5/2027=Old\"\r\n";
    Set_File("out.csv",
             "\"Subject\",\"Start Date\",\"Description\"\r\n\"Vellatro\",\"5/6/2027\",\"New\"\r\n");
    Set_File("out.txt", "\"Subject\",\"Description\"\r\n\"Vellatro\",\"New\"\r\n");
    Set_File("out.dat", "\"7/5/2027=Other\"\r\n");
    Set_File("out.ini", "\"Tooltips=2\"\r\n\"Unknown=1\"\r\n");
    Write_Data(old);
    Open();
    const std::string replace =
        "warning [Vellatro] You already have a working data file. Importing another one "
        "will completely overwrite the old one and you will lose all data.";
    const std::string replaced =
        "[Vellatro] Successfully imported data file from...\r\n\r\n" + folder_ + "out.dat";
    const std::string failed = "warning [Vellatro] Error when importing ";
    const struct {
        WORD key;
        const char *title, *name;
        bool read_only; ///< the data file
        std::vector<std::pair<std::string, WORD>> boxes;
        bool asks_again;
        const char *after;
    } rows[] = {
        {'T', "Import Data File", "", false, {}, false, old.c_str()},
        {'T',
         "Import Data File",
         "none.dat",
         false,
         {{"warning [Vellatro] File doesn't exist!", IDOK}},
         true,
         old.c_str()},
        {'T',
         "Import Data File",
         "calendar.dat",
         false,
         {{"warning [Vellatro] You can't import the data file your currently using!", IDOK}},
         true,
         old.c_str()},
        {'T', "Import Data File", "out.dat", false, {{replace, IDNO}, {replaced, IDOK}}, false, old.c_str()},
        {'T',
         "Import Data File",
         "out.dat",
         true,
         {{replace, IDYES}, {failed + "data file.", IDOK}},
         false,
         old.c_str()},
        {'L', "Import Events from CSV File", "", false, {}, false, old.c_str()},
        {'L',
         "Import Events from CSV File",
         "none.csv",
         false,
         {{"warning [Vellatro] File doesn't exist!", IDOK}},
         true,
         old.c_str()},
        {'L',
         "Import Events from CSV File",
         "out.csv",
         true,
         {{failed + "from CSV file.", IDOK}},
         false,
         old.c_str()},
        {'L',
         "Import Events from CSV File",
         "out.txt",
         false,
         {{"stop [Vellatro] Invalid CSV file or missing required headings.", IDOK},
          {failed + "from CSV file.", IDOK}},
         false,
         old.c_str()},
        {'L',
         "Import Events from CSV File",
         "out.csv",
         false,
         {{"[Vellatro] Successfully imported 1 events", IDOK}},
         false,
         "\"6/5/2027=Old + New\"\r\n"},
        {'T',
         "Import Data File",
         "out.dat",
         false,
         {{replace, IDYES}, {replaced, IDOK}},
         false,
         "\"7/5/2027=Other\"\r\n"},
        {'G', "Import Configuration File", "", false, {}, false, "\"7/5/2027=Other\"\r\n"},
        {'G',
         "Import Configuration File",
         "none.ini",
         false,
         {{"warning [Vellatro] File doesn't exist!", IDOK}},
         true,
         "\"7/5/2027=Other\"\r\n"},
    };
    for (const auto &[key, title, name, read_only, boxes, asks_again, after] : rows) {
        SCOPED_TRACE(std::string(title) + ": " + name + (read_only ? ", read-only" : ""));
        Set_Read_Only("calendar.dat", read_only);
        if (*name)
            Choose_File(key, title, name);
        else {
            Send_Key(key, true);
            Give_Name(title, "");
        }
        for (const auto &[text, button] : boxes)
            Answer(text, button);
        if (asks_again)
            Give_Name(title, "");
        Expect_Quiet();
        EXPECT_EQ(Data(), after);
        ASSERT_FALSE(HasFailure());
        Set_Read_Only("calendar.dat", false);
    }
    Choose_File('G', "Import Configuration File", "out.ini");
    Answer("[Vellatro] Loaded configuration file successfully.");
    EXPECT_TRUE(Wait_Until([&] { return !program_->Window("Vellatro_Settings_Frm"); })) << "the dialog stays";
    EXPECT_NE(Store().find("Tooltips=2\n"), std::string::npos) << Store();
}

} // namespace

// Import and export as a user does them: through the dialog's page and the system's file dialogs. What the
// exported table says to another reader, tests/csv_fields.py looks at afterwards.
#include "tests/desktop/transfer.h"

#include <tuple>

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
                 "\"Vellatro\",\"5/6/2027\",\"Say \"\"no\"\" twice\",\"12:00:00 AM\",\"5/7/2027\","},
                {'I', "Export Events as iCalendar File", "out.ics", "3 events to the iCalendar file...",
                 "DTSTART;VALUE=DATE:20270506\r\nDTEND;VALUE=DATE:20270507\r\nSUMMARY:Say \"no\" twice\r\n"}};
    for (const auto &[key, title, name, report, content] : rows) {
        SCOPED_TRACE(title);
        const std::string question = "[Vellatro] Overwrite existing file?";
        Choose_File(key, title, "");
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
    Set_File("out.ics",
             "BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20270509\nSUMMARY:Web\nEND:VEVENT\nEND:VCALENDAR\n");
    Set_File("out.ini", "\"Tooltips=2\"\r\n\"Unknown=1\"\r\n");
    Write_Data(old);
    Open();
    const auto title = [](WORD key) {
        return key == 'T'   ? "Import Data File"
               : key == 'L' ? "Import Events from CSV File"
               : key == 'E' ? "Import Events from iCalendar File"
                            : "Import Configuration File";
    };
    const std::string warning = "warning [Vellatro] ";
    const std::string missing = warning + "File doesn't exist!";
    const std::string own = warning + "You can't import the data file your currently using!";
    const std::tuple<WORD, const char *, std::string> refused[] = {{'T', "none.dat", missing},
                                                                   {'T', "Calendar.dat", own},
                                                                   {'L', "n.csv", missing},
                                                                   {'G', "n.ini", missing}};
    for (const auto &[key, name, box] : refused) {
        SCOPED_TRACE(name);
        Choose_File(key, title(key), "");
        Expect_Quiet();
        Choose_File(key, title(key), name);
        Answer(box);
        Give_Name(title(key), ""); // it asks for another name
        Expect_Quiet();
        EXPECT_EQ(Data(), old);
        ASSERT_FALSE(HasFailure());
    }
    const std::string replace = warning + "You already have a working data file. Importing another one will "
                                          "completely overwrite the old one and you will lose all data.";
    const std::string replaced =
        "[Vellatro] Successfully imported data file from...\r\n\r\n" + folder_ + "out.dat";
    const std::string failed = warning + "Error when importing ";
    const std::string headings = "stop [Vellatro] Invalid CSV file or missing required headings.";
    const std::string one = "[Vellatro] Successfully imported 1 events from the CSV file...";
    const std::string events = "[Vellatro] Successfully imported 1 events from the iCalendar file...";
    const struct {
        WORD key;
        const char *name;
        std::vector<std::string> boxes;
        WORD answer;    ///< to the first of the boxes
        bool read_only; ///< the data file
        std::string after;
    } rows[] = {
        {'T', "out.dat", {replace, replaced}, IDNO, false, old},
        {'T', "out.dat", {replace, failed + "data file."}, IDYES, true, old},
        {'L', "out.csv", {failed + "from CSV file."}, IDOK, true, old},
        {'L', "out.txt", {headings, failed + "from CSV file."}, IDOK, false, old},
        {'L', "out.csv", {one}, IDOK, false, "\"6/5/2027=Old + New\"\r\n"},
        {'E', "out.csv", {failed + "from iCalendar file."}, IDOK, false, "\"6/5/2027=Old + New\"\r\n"},
        {'E', "out.ics", {events}, IDOK, false, "\"6/5/2027=Old + New\"\r\n\"9/5/2027=Web\"\r\n"},
        {'T', "out.dat", {replace, replaced}, IDYES, false, "\"7/5/2027=Other\"\r\n"}};
    for (const auto &[key, name, boxes, answer, read_only, after] : rows) {
        SCOPED_TRACE(name + boxes.back());
        Set_Read_Only("calendar.dat", read_only);
        Choose_File(key, title(key), name);
        for (const std::string &box : boxes)
            Answer(box, &box == boxes.data() ? answer : WORD{IDOK});
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

// Imports through the buttons of the page: files of this and other programs, and errors.
#include "tests/transfer/transfer_test.h"

#include <algorithm>

namespace {

using Importing = Transfer_Test;

const std::string failed = "Error when importing from CSV file.";
const std::string headings = "'Subject','Start Date','Description'\r\n";

std::string Imported(int count) {
    return "Successfully imported " + std::to_string(count) +
           " events from the CSV file...\r\n\r\nC:\\in.csv";
}

/// Returns the text with double quotes instead of single ones.
std::string Quoted(std::string text) {
    std::replace(text.begin(), text.end(), '\'', '"');
    return text;
}

std::string Long_Table(int events) {
    std::string bytes = Quoted(headings);
    for (int i = 0; i < events; ++i)
        bytes += "\"0\",\"" + std::to_string(1 + i % 28) + "/3/2002\",\"x\"\r\n";
    return bytes;
}

TEST_F(Importing, reads_files_of_many_hands) {
    const std::string before = "'25/12/9999=Christmas'\r\n'3/4/2002=Payday \u20AC'\r\n";
    const std::string yearly = "'25/12/9999=Christmas", payday = "'\r\n'3/4/2002=Payday \u20AC",
                      end = "'\r\n";
    const std::string megabyte(1'000'000, 'x');
    const struct {
        const char *name;
        std::string bytes;
        int count; ///< of imported events; -1 if the file is refused
        std::string after;
    } cases[] = {
        {"quotes and commas", headings + "'Dentist','3/4/2002','Bring ''card'', 10am'\r\n", 1,
         yearly + payday + " + Dentist - Bring card, 10am" + end},
        {"an every-year day, a new day twice, day and month exchanged",
         headings + "'A','25/12/2003','B'\r\n'B','1/2/2003','b|c'\n'Vellatro','1/2/2003','d'\n'VELLATRO','1/"
                    "13/2003','e'",
         4, yearly + " + A - B" + payday + "'\r\n'1/2/2003=B - b,c + d'\r\n'13/1/2003=VELLATRO - e" + end},
        {"columns between",
         "'Subject','Start Date','Start Time','Reminder','Organizer','Rooms','Description','Show time as'\n"
         "'Lunch','5/3/2002','12:00',,'Me',,'With ''Ann'',\nat noon','2'\n",
         1, yearly + payday + "'\r\n'5/3/2002=Lunch - With Ann, at noon" + end},
        // In the previous file, subject and description were columns 0 and 6.
        {"a byte-order mark, and no quotes around headings",
         "\xEF\xBB\xBFStart Date,Subject,Description\n'3/4/2002','s','d'\n", 1,
         yearly + payday + " + s - d" + end},
        {"a heading that is only part of one, which leaves its column",
         "Start Date,Email Subject,Description\n'3/4/2002','s','d'\n", 1, yearly + payday + " + s - d" + end},
        {"no quotes around the fields", "Subject,Start Date,Description,Room\nDentist,3/4/2002,Card,'x'\n", 0,
         before},
        {"no quotes around the date", headings + "'s',3/4/2002,'d'", 1,
         yearly + payday + "'\r\n'30/12/1899=s - d" + end},
        {"an empty line joins the next one", headings + "\r\n's','3/4/2002','d'\r\n", 1,
         yearly + payday + " + d" + end},
        {"a long field", headings + "'s','3/4/2002','" + megabyte + "'\r\n", 1,
         yearly + payday + " + s - " + megabyte + end},
        {"two digits of the year in the list", headings + "'s','3/4/1932','d'", 1,
         yearly + payday + "'\r\n'3/4/1932=s - d" + end},
        {"an older code page, and an end mark", headings + "'s','3/4/2002','\xE9|\x1A'\r\n\x1A x", 1,
         yearly + payday + " + s - \u00E9,\x1A" + end},
        {"no line", "", -1, before},
        {"an empty line at the end", headings + "'s','3/4/2002','d'\r\n\r\n", -1, before},
        {"no quote at all", headings + std::string(200'000, '\n'), -1, before},
        {"an open quote", headings + "'s','3/4/2002','d''", -1, before},
        {"the last field without quotes", headings + "'s','3/4/2002',d,''", -1, before},
        {"no date", headings + "'s','3/4/2002','d'\n's','31/2/2002','d'", -1, before},
        // The columns of the previous file still apply.
        {"semicolons", "'Subject';'Start Date';'Description'\n's';'3/4/2002';'d'\n", 1,
         yearly + payday + "'\r\n'30/12/1899=s;3/4/2002;d" + end},
    };
    Fakes().short_date_pattern = "dd/mm/yy";
    for (const auto &[name, bytes, count, after] : cases) {
        Data_File() = Quoted(before);
        File("C:\\in.csv") = Quoted(bytes);
        Import(2, "C:\\in.csv", count < 0 ? failed : Imported(count));
        EXPECT_TRUE(Data_File() == Quoted(after)) << name << ": " << Data_File().substr(0, 300);
        EXPECT_EQ(Has_Backup(), count >= 0) << name;
        const std::size_t listed = dialog->Events.Events_Lst.Items().size();
        EXPECT_TRUE(count < 0 || listed == static_cast<std::size_t>(count)) << name;
    }
}

TEST_F(Importing, backs_the_data_file_up_and_refuses_other_files) {
    Data_File() = "\"1/3/2002=Old\"\r\n";
    Import(2, "", "");
    EXPECT_EQ(Backup(), Data_File());
    // An old backup must not be restored.
    Backup() = "older";
    Fakes().unwritable.insert("C:\\Vellatro\\data.bak");
    Fakes().Expect_Box(failed);
    Push(*dialog, dialog->Transfer.Import_Btn[2]);
    EXPECT_EQ(Data_File() + Backup(), "\"1/3/2002=Old\"\r\nolder");
    // A failed import keeps the backup, and the data file even if its backup is gone.
    Fakes().unwritable.clear();
    for (const bool data : {false, true}) {
        File("C:\\in.csv") = data ? "none" : "Description,Start Date";
        Fakes().files.erase("C:\\Vellatro\\" + std::string(data ? "data.bak" : "calendar.dat"));
        (data ? Data_File() : Backup()) = "kept";
        Fakes().Expect_Box("Invalid CSV file or missing required headings.", platform::Box_Answer::Ok,
                           [data] {
                               if (data)
                                   Fakes().files.erase("C:\\Vellatro\\data.bak");
                           });
        Import(2, "C:\\in.csv", failed);
        EXPECT_EQ(Fakes().files.contains("C:\\Vellatro\\calendar.dat"), data);
        EXPECT_EQ(data ? Data_File() : Backup(), "kept");
    }
}

TEST_F(Importing, is_taken_back_line_by_line) {
    const std::string before = Data_File() = Quoted("'25/12/9999=C'\r\n'1/2/2003=C'\r\n");
    File("C:\\in.csv") = Quoted(headings + "'','25/12/2003','a + b'\n'','1/2/2003','C'\n'','25/12/2004','b'\n"
                                           "'','3/3/2003','n'\n'','25/12/2003','b'\n'','3/3/2003','m'\n");
    Import(2, "C:\\in.csv", Imported(6));
    List_Box &list = dialog->Events.Events_Lst;
    const std::string yearly = "'25/12/9999=C + a + b + b'\r\n'1/2/2003=C + C'\r\n";
    const struct {
        std::size_t line;
        std::string after; ///< of the data file; earlier events stay to the end, also equal ones
        int selected;
        const char *told = nullptr;
    } steps[] = {{2, "'25/12/9999=C + a + b + b + b'\r\n'1/2/2003=C + C'\r\n'3/3/2003=n + m'\r\n", 2,
                  "Error saving data file."},
                 {2, yearly + "'3/3/2003=n + m'\r\n", 2},
                 {2, yearly + "'3/3/2003=m'\r\n", 2},
                 {3, yearly, 2},
                 {0, "'25/12/9999=C + b'\r\n'1/2/2003=C + C'\r\n", 0},
                 {0, before, 0, "This event is no longer in the data file."},
                 {0, before, -1, "This event is no longer in the data file."}};
    for (const auto &[line, after, selected, told] : steps) {
        if (after == before)
            Data_File() = before;
        else if (told != nullptr)
            Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
        const std::string text = list.Items().at(line);
        Fakes().Expect_Box("Do you really want to remove the event..\r\n\r\n" + text,
                           platform::Box_Answer::Yes);
        if (told != nullptr)
            Fakes().Expect_Box(told);
        list.Select(static_cast<int>(line));
        dialog->Events.Events_Lst_DblClick();
        EXPECT_EQ(Data_File(), Quoted(after));
        EXPECT_EQ(list.Selected(), selected);
        Fakes().unwritable.clear();
    }
    EXPECT_TRUE(list.Items().empty());
}

TEST_F(Importing, leaves_nothing_behind_when_it_fails) {
    // The data file is missing and cannot be written.
    File("C:\\in.csv") = Quoted(headings + "'s','6/3/2002','a, b'");
    Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
    Import(2, "C:\\in.csv", failed);
    Fakes().unwritable.clear();
    form.Events.Load_File();
    form.Events.Check_For_Pre("7/3/2002", "x", false);
    EXPECT_EQ(Data_File(), Quoted("'7/3/2002=x'\r\n"));
    // A hand-written quote cannot be stored beside a comma: the message names its day. A text saved meanwhile
    // stays.
    const std::string quote = "6/3/9999=a \"quote\"\r\n", other = Quoted("'7/3/2002=x'\r\n");
    Data_File() = quote;
    Fakes().Expect_Box("The event of 6/3/2002 holds a quotation mark (\"). Remove it before you import "
                       "another event of that day.",
                       platform::Box_Answer::Ok, [this] {
                           form.Events.Load_File();
                           form.Events.Check_For_Pre("7/3/2002", "x", false);
                       });
    Import(2, "C:\\in.csv", failed);
    EXPECT_EQ(Data_File(), quote + other);
}

TEST_F(Importing, that_fails_after_its_first_write_puts_the_file_back) {
    File("C:\\in.csv") = Long_Table(2000);
    Fakes().clock_step = 300;
    const std::string old = Quoted("'6/3/2002=Old'\r\n");
    for (const bool for_good : {false, true}) {
        Data_File() = for_good ? old : "";
        // A text that is saved while the import first paints is put back, too.
        Fakes().painting = [&] { Data_File() = Data_File().empty() ? old : Data_File(); };
        const int second = Fakes().writes + 4; // two writes make the backup, the third merges the first part
        Fakes().file_fails = [=](const std::string &path) {
            return path == "C:\\Vellatro\\calendar.dat" &&
                   (for_good ? Fakes().writes >= second : Fakes().writes == second);
        };
        Import(2, "C:\\in.csv", failed);
        EXPECT_EQ(Data_File() == old, !for_good);
        EXPECT_TRUE(Has_Backup() == for_good && (!for_good || Backup() == old)) << "the last copy is lost";
    }
    // A text saved while the import paints stays.
    Data_File() = old;
    Fakes().file_fails = nullptr;
    Fakes().painting = [&] {
        if (Data_File() == old || Fakes().file_fails)
            return;
        form.Events.Load_File();
        form.Events.Check_For_Pre("7/3/2003", "typed", false);
        Fakes().file_fails = [next = Fakes().writes + 2](const std::string &path) {
            return path == "C:\\Vellatro\\calendar.dat" && Fakes().writes == next;
        };
    };
    Import(2, "C:\\in.csv", failed);
    EXPECT_TRUE(Data_File().find("typed") != std::string::npos);
}

TEST_F(Importing, is_seen_while_it_takes_long_and_the_file_is_whole_then) {
    constexpr int count = 2000;
    File("C:\\in.csv") = Long_Table(count);
    Fakes().painting = [] { ADD_FAILURE() << "progress of a short import"; };
    Import(2, "C:\\in.csv", Imported(count));
    Data_File() = "";
    Fakes().clock_step = 300;
    std::vector<std::ptrdiff_t> merged;
    const Transfer_Page &page = dialog->Transfer;
    int shown = 0;
    Fakes().painting = [&] {
        EXPECT_TRUE(page.Progress_Bar1.Visible() && page.Progress_Lbl.Visible());
        const platform::Control_State &bar = page.Progress_Bar1.State();
        EXPECT_TRUE(bar.value >= shown && bar.value <= 100 && bar.maximum == 100) << bar.value;
        shown = bar.value;
        EXPECT_EQ(dialog->Model().pointer, platform::Pointer_Shape::Hourglass);
        const std::string &data = Data_File();
        if (data.empty())
            return;
        const auto events = std::count(data.begin(), data.end(), 'x');
        EXPECT_TRUE(data.ends_with("x\"\r\n") && (merged.empty() || events > merged.back()));
        merged.push_back(events);
        // The session ends, and the editor saves its text.
        form.Events.Load_File();
        form.Events.Check_For_Pre("1/1/2003", std::to_string(merged.size()) + " typed x", false);
    };
    Import(2, "C:\\in.csv", Imported(count));
    EXPECT_TRUE(merged.size() > 3 && shown > 90);
    EXPECT_EQ(std::count(Data_File().begin(), Data_File().end(), 'x'), count + 1);
    EXPECT_TRUE(!page.Progress_Bar1.Visible() && dialog->Model().pointer == platform::Pointer_Shape::Arrow);
    EXPECT_TRUE(Text_Of(1).starts_with("0 - x + 0"));
    shown = 0;
    Fakes().painting = [&] { shown = page.Progress_Bar1.Visible() ? page.Progress_Bar1.State().value : 0; };
    Data_File().clear();
    for (int i = 0; i < 1000; ++i)
        Data_File() += "5/3/2002=x\r\n";
    Export(3, "C:\\x.csv", "Successfully exported 1000 events to the CSV file...\r\nC:\\x.csv");
    EXPECT_TRUE(shown > 80 && !page.Progress_Bar1.Visible()) << shown;
}

TEST_F(Importing, takes_a_configuration_over_up_to_an_error) {
    Cur_Settings.Use_Themes = 0;
    const struct {
        const char *bytes;
        bool taken;
        const char *stored; ///< value of "Tooltips"
    } cases[] = {
        {"\"Tooltips=2\"\r\n\"Unknown=x\"\r\n\"Bar_Time_Format=H, mm\"\r\n\"TaskPos=3\"\r\nStyle=0\n", true,
         "2"},
        {"Tooltips=0\r\nCol_Normal=255\r\nBar_Date_Format=d Month, yyyy\r\nStyle=1\r\n", false, "0"},
        {"Tooltips=2,Tooltips=abc,Style=1", false, "2"},
        {"\"Tooltips=1", false, "2"}};
    for (const auto &[bytes, taken, stored] : cases) {
        Open(Settings_Frm::about_fra);
        Choose(*dialog, dialog->TabStrip1, Settings_Frm::transfer_fra);
        File("C:\\in.ini") = bytes;
        Fakes().file_fails = [this](const std::string &path) {
            EXPECT_EQ(dialog->Model().pointer == platform::Pointer_Shape::Hourglass, path == "C:\\in.ini");
            return false;
        };
        Import(1, "C:\\in.ini",
               taken ? "Loaded configuration file successfully."
                     : "Error when importing configuration from file.");
        EXPECT_EQ(form.Settings_Visible(), !taken) << bytes;
        EXPECT_EQ(Stored("Tooltips"), stored) << bytes;
        EXPECT_EQ(Cur_Settings.Style, 0) << bytes;
        if (taken)
            continue;
        EXPECT_EQ(form.Box_Lbl[20].Back_Colour(), 255);
        EXPECT_EQ(dialog->Model().pointer, platform::Pointer_Shape::Arrow);
        EXPECT_EQ(dialog->Which_Tab() - 1, Settings_Frm::transfer_fra);
        Push(*dialog, dialog->Ok_Btn); // does not store what the pages showed before the import
        EXPECT_EQ(Stored("Tooltips"), stored) << bytes;
    }
    EXPECT_EQ(Stored("Alignment") + Stored("Bar Time Format"), "3H, mm");
    form.Which_Month_Lbl_DblClick(); // in compact mode, the title also follows colours and position
    const int top = form.Top();
    Open(Settings_Frm::transfer_fra);
    File("C:\\in.ini") = "Col_Fore=255\nTaskPos=0\nBar_Date_Format=mm/yyyy\n";
    Import(1, "C:\\in.ini", "Loaded configuration file successfully.");
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "03/2002");
    EXPECT_TRUE(form.Compacted && form.Top() != top && form.Which_Month_Lbl.Fore_Colour() == 255);
}

TEST_F(Importing, replaces_the_data_file_when_the_user_agrees) {
    const std::string question =
        "You already have a working data file. Importing another one will completely overwrite the old one "
        "and you will lose all data. Are you absolutely sure you want to do this?\r\n\r\nReplace current "
        "file 'calendar.dat' modified on 1/2/2002 09:05:00\r\n\r\nwith new file 'other.dat' modified on "
        "1/2/2002 09:05:00";
    Data_File() = "own";
    for (const bool to : {false, true}) { // the program's own file is refused in any letter case
        const std::string title = to ? "Export Data File" : "Import Data File";
        if (!to) {
            Fakes().Expect_Dialog(title, "C:\\none.dat");
            Fakes().Expect_Box("File doesn't exist!");
        }
        Fakes().Expect_Dialog(title, "c:\\VELLATRO\\Calendar.DAT");
        Fakes().Expect_Box(to ? "You can't export to the data file you're currently using!"
                              : "You can't import the data file your currently using!");
        Fakes().Expect_Dialog(title, "");
        Push(*dialog, to ? dialog->Transfer.Export_Btn[0] : dialog->Transfer.Import_Btn[0]);
    }
    Fakes().files.erase("C:\\Vellatro\\calendar.dat");
    for (const bool has_one : {false, true}) {
        File("C:\\other.dat") = has_one ? "\"6/3/2002=Newer\"\r\n" : "\"6/3/2002=New\"\r\n";
        if (has_one)
            Fakes().Expect_Box(question, platform::Box_Answer::Yes);
        Import(0, "C:\\other.dat", "Successfully imported data file from...\r\n\r\nC:\\other.dat");
        EXPECT_EQ(Text_Of(6), has_one ? "Newer" : "New");
        EXPECT_EQ(dialog->Events.Events_Lst.Items(), std::vector<std::string>{"6/3/2002  -  " + Text_Of(6)});
    }
}

} // namespace

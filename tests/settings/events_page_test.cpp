// The events page: what it counts, lists and removes, with any data file.
#include "settings/events_page.h"
#include "tests/calendar/calendar_test.h"
#include "toolkit/keys.h"

using platform::Box_Answer;

namespace {

class Events_Page_Test : public Calendar_Test {
protected:
    Events_Page_Test() { Show_Month(3, 2002); } // today is 5 March 2002

    void Open() {
        page.Write_Month_Titles();
        page.Get_Stats();
        page.Open_Overview();
    }
    std::string Lines() const {
        std::string lines;
        for (const std::string &line : page.Events_Lst.Items())
            lines += line + "|";
        return lines;
    }
    std::string Totals() {
        std::string totals = page.Total_All_Lbl.Caption() + "|" + page.Total_Year_Lbl.Caption() + "|" +
                             page.Before_Lbl.Caption() + "|" + page.After_Lbl.Caption() + "|";
        for (const Label &label : page.Month_Count_Lbl)
            totals += label.Caption().ends_with(" 0") ? "" : label.Caption() + "|";
        return totals;
    }
    /// Double-clicks the line or presses the key on it, and answers the question.
    void Remove(int line, Box_Answer answer, int key = 0, std::function<void()> meanwhile = nullptr) {
        Choose(dialog, page.Events_Lst, line);
        Fakes().Expect_Box("Do you really want to remove the event..\r\n\r\n" +
                               page.Events_Lst.Items().at(static_cast<std::size_t>(line)),
                           answer, std::move(meanwhile));
        if (key == 0)
            return Choose(dialog, page.Events_Lst, line, platform::Input_Kind::Item_Activated);
        for (const bool repeated : {false, true}) // a held key asks only once
            Input(dialog, {.kind = platform::Input_Kind::Key_Down, .key = key, .repeated = repeated},
                  &page.Events_Lst);
    }

    Form dialog{platform::Form_Kind::Dialog, "Dialog"};
    Frame frame{dialog, "Frame0"};
    Events_Page page{frame, form};
};

TEST_F(Events_Page_Test, counts_events) {
    Events({"5/3/2002=today", "1/1/2003=next", "7/4/2002=soon", "31/12/9998=last", "1/2/2001=past",
            "6/3/2002=a=b", "4/3/2002=yesterday", "29/2/9999=leap", "7/3/yyyy=every", "1/1/0100=early",
            // None of the following is an event.
            "", "no key", "1/13/2002=x", "0/3/2002=x", "31/4/2002=x", "30/2/9999=x", "a/b/c=x", "5/3/99=x",
            "5/3/40000=x", "yyyy=x"});
    Open();
    EXPECT_EQ(Totals(), "Total Events: 8|Events This Year: 4|No. Before Today: 4|No. After Today: 3|"
                        "Feb: 1|Mar: 4|Apr: 1|");
    EXPECT_EQ(page.Events_Lst.Items().size(), 10U);
    Data_File().clear();
    for (int i = 0; i < 33'000; ++i)
        Data_File() += "1/1/2003=x\r\n";
    page.Get_Stats();
    EXPECT_TRUE(Totals().starts_with("Total Events: 32767|")) << Totals();
}

TEST_F(Events_Page_Test, lists_events_in_each_order_and_short_date) {
    Events({"9/3/2002=b", "1/1/1600=old", "6/3/9999=a\r\nb\t=\xC3\xA9", "2/2/9998=far", "9/3/2002=c",
            "29/2/yyyy=leap"});
    // Sort by descending date. The other two orders are by ascending date and that of the file.
    Fakes().short_date_pattern = "d. m. yyyy";
    Open();
    Choose(dialog, page.Sort_Cbo, 1);
    EXPECT_EQ(Lines(), "2. 2. 9998  -  far|9. 3. 2002  -  c|9. 3. 2002  -  b|6. 3. 2002 (every year)  -  a b "
                       "=\xC3\xA9|28. 2. 2002 (every year)  -  leap|1. 1. 1600  -  old|");
    for (const char *pattern : {"m/d/yyyy", "yyyy-mm-dd", "d. m. yyyy"}) {
        Fakes().short_date_pattern = pattern;
        Open(); // sorts by ascending dates again
        std::string countdowns;
        for (int line = 0; line < 4; ++line) {
            Choose(dialog, page.Events_Lst, line);
            countdowns += page.Countdown_Lbl.Caption() + "|";
        }
        EXPECT_EQ(countdowns, "-146891 days|-5 days|1 days|4 days|") << pattern;
    }
    Events({"6/3/2002=new"});
    for (Option_Button *option : {&page.Stats_Opt, &page.Overview_Opt}) {
        Push(dialog, *option);
        const bool stats = option == &page.Stats_Opt;
        EXPECT_TRUE(page.Events_Fra.Visible() == stats && page.Yearview_Fra.Visible() == stats &&
                    page.Overview_Fra.Visible() != stats);
    }
    EXPECT_EQ(Lines() + page.Countdown_Lbl.Caption(), "6. 3. 2002  -  new|");
}

TEST_F(Events_Page_Test, removes_the_event_of_the_line) {
    const std::vector<std::string> all{"6/3/9999=every", "30/2/2002=none", "6/3/2002=exact",
                                       "29/2/9999=leap", "8/03/9999=hand", "6/3/2002=exact"};
    struct {
        int line, key;
        std::size_t record;
    } const rows[] = {{0, Key_Delete, 3}, {1, 0, 0}, {2, Key_Return, 2}, {3, 0, 5}, {4, 0, 4}};
    for (const auto &row : rows) {
        Events(all);
        Open();
        form.Compacted = row.record != 0;
        form.Which_Month_Lbl.Set_Caption("stale");
        for (const Box_Answer answer : {Box_Answer::No, Box_Answer::Cancel, Box_Answer::Yes})
            Remove(row.line, answer, row.key);
        auto rest = all;
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(row.record));
        const std::string after = Data_File();
        Events(rest);
        EXPECT_EQ(after, Data_File()) << row.line;
        EXPECT_TRUE(page.Events_Lst.Items().size() == 4 &&
                    page.Events_Lst.Selected() == std::min(row.line, 3) &&
                    !page.Countdown_Lbl.Caption().empty());
        EXPECT_EQ(form.Which_Month_Lbl.Caption() == "stale", row.record != 0);
        form.Compacted = false;
    }
    EXPECT_EQ(page.Month_Count_Lbl[2].Caption(), "Mar: 3"); // counted again after the removal
}

TEST_F(Events_Page_Test, bears_a_file_that_fails_or_changes_behind_it) {
    Events({"6/3/2002=a", "7/3/2002=b"});
    Open();
    for (const bool gone : {false, true}) { // another program removed the event first
        Remove(0, Box_Answer::Yes, 0, [gone] {
            Events({"6/3/9999=A", "7/3/2002=b"});
            if (gone)
                Fakes().files.clear();
            Fakes().Expect_Box("This event is no longer in the data file.");
        });
        EXPECT_EQ(Lines(), gone ? "" : "6/3/2002 (every year)  -  A|7/3/2002  -  b|");
    }
    Events({"7/3/2002=b"});
    Open();
    Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
    Remove(0, Box_Answer::Yes, 0, [] { Fakes().Expect_Box("Error saving data file."); });
    EXPECT_EQ(Lines(), "7/3/2002  -  b|");
    Fakes().unreadable.insert("C:\\Vellatro\\calendar.dat");
    Remove(0, Box_Answer::Yes, 0, [] { Fakes().Expect_Box("Error loading in data file."); });
    Fakes().unreadable.clear();
    Data_File() += "\"8/3/2002=unclosed";
    Open();
    EXPECT_EQ(Lines() + page.Overview_Fra.Caption(), "7/3/2002  -  b|Error loading in data file.");
    Fakes().unreadable.insert("C:\\Vellatro\\calendar.dat");
    Open();
    EXPECT_EQ(Lines() + page.Events_Fra.Caption(), "Error loading in data file.");
    Choose(dialog, page.Events_Lst, -1, platform::Input_Kind::Item_Activated); // asks nothing
    page.Show_Imported({}); // these do not come from the file
    EXPECT_EQ(page.Overview_Fra.Caption(), "Events");
    Fakes().files.clear();
    Open();
    EXPECT_EQ(Lines() + page.Overview_Fra.Caption(), "Events");
    EXPECT_EQ(page.Events_Lst_Lbl.Caption(), "No &events yet: double-click a day of the calendar.");
}

} // namespace

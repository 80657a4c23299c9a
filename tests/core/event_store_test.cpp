// The event procedures on a disk in memory: which record counts, what is written, and what a failure leaves.
#include "core/event_store.h"
#include "tests/fakes/fake_test.h"

#include <stdexcept>

using Items = std::vector<std::string>;

namespace {

const char *const loading_failed = "Error loading in data file.";
const char *const saving_failed = "Error saving data file.";

class Event_Store_Test : public Fake_Test {
protected:
    std::string &File() { return Fakes().files[Event_Store::Data_File()]; }

    /// What the editor and the menu do: load, then store.
    void Save(const std::string &text, bool each_year = false, const std::string &key = "5/3/2002") {
        store.Load_File();
        store.Check_For_Pre(key, text, each_year);
    }

    Items Entered() {
        Items records;
        store.Load_Dates([&](std::string_view record) { records.emplace_back(record); });
        return records;
    }

    Event_Store store;
};

std::string Quoted(const Items &records) {
    std::string bytes;
    for (const std::string &record : records)
        bytes += "\"" + record + "\"\r\n";
    return bytes;
}

} // namespace

TEST_F(Event_Store_Test, Without_A_File_Loading_Gives_Nothing_And_Saving_Makes_It) {
    store.Temp_Lst = {"1/1/2002=kept"};
    store.Load_File();
    EXPECT_EQ(store.Temp_Lst, Items{"1/1/2002=kept"});
    EXPECT_EQ(Entered(), Items{});
    EXPECT_EQ(store.Get_Message("5/3/2002").text, "");
    store.Temp_Lst.clear();
    Save("");
    EXPECT_EQ(Fakes().writes, 0);
    Save("Dentist 10:30");
    EXPECT_EQ(Event_Store::Data_File(), "C:\\Vellatro\\calendar.dat");
    EXPECT_EQ(File(), "\"5/3/2002=Dentist 10:30\"\r\n");
    EXPECT_TRUE(store.Temp_Lst.empty());
    Save("Christmas", true, "25/12/2002");
    EXPECT_EQ(File(), Quoted({"5/3/2002=Dentist 10:30", "25/12/9999=Christmas"}));
    EXPECT_EQ(store.Temp_Lst.size(), 1U); // the new record enters with the next loading
}

TEST_F(Event_Store_Test, The_First_Record_Of_The_Day_Is_Replaced_Or_Removed) {
    const Items around{"15/3/2002=other", "5/3/20021=longer", "5/3/2002", "5/3/2003=next"};
    const struct {
        Items before;
        const char *text;
        bool each_year;
        Items after;
    } cases[] = {
        {{"5/3/2002=A", "5/3/9999=B"}, "new", false, {"5/3/2002=new", "5/3/9999=B"}},
        {{"5/3/9999=B", "5/3/2002=A"}, "new", false, {"5/3/2002=new", "5/3/2002=A"}},
        {{"5/3/2002=A", "5/3/9999=B"}, "new", true, {"5/3/9999=new", "5/3/9999=B"}},
        {{"5/3/9999=B", "5/3/2002=A"}, "", false, {"5/3/2002=A"}},
        {{"5/3/2002=A", "5/3/9999=B"}, "", true, {"5/3/9999=B"}},
        {{"5/3/2002=A"}, "a, b = \r\n c", false, {"5/3/2002=a, b = \r\n c"}},
        {{}, "new", true, {"5/3/9999=new"}},
    };
    for (const auto &c : cases) {
        Items before = around, after = around;
        before.insert(before.end(), c.before.begin(), c.before.end());
        after.insert(after.end(), c.after.begin(), c.after.end());
        File() = Quoted(before);
        Save(c.text, c.each_year);
        EXPECT_EQ(File(), Quoted(after)) << c.text;
        EXPECT_EQ(Entered(), after);
    }
}

TEST_F(Event_Store_Test, The_Last_Record_Of_The_Day_Is_The_Message) {
    const struct {
        Items records;
        const char *text;
        bool every_year;
    } cases[] = {
        {{"5/3/2002=A", "5/3/9999=B"}, "B", true},
        {{"5/3/9999=B", "5/3/2002=A"}, "A", true},
        {{"6/3/2002=A", "5/3/2003=B", "5/3/9999=B=C"}, "B=C", true},
        {{"5/3/2002=A", "5/3/2002="}, "", false},
        {{"=A", " 5/3/2002 =B"}, "", false},
    };
    for (const auto &c : cases) {
        File() = Quoted(c.records);
        const Stored_Message message = store.Get_Message("5/3/2002");
        EXPECT_EQ(message.text, c.text) << File();
        EXPECT_EQ(message.every_year, c.every_year) << File();
    }
}

TEST_F(Event_Store_Test, A_Rewrite_Loses_Nothing_Of_A_Hand_Written_File) {
    File() = "\xEF\xBB\xBF 1/1/2002=it\"s \n\n\"2/1/2002=a, b\",no date\r\"two\r\nlines\"\"5/3/2002=old\"  "
             "\r\n\r\n";
    Save("new");
    EXPECT_EQ(File(), "1/1/2002=it\"s\r\n" +
                          Quoted({"", "2/1/2002=a, b", "no date", "two\r\nlines", "5/3/2002=new"}));
    const std::string once = File();
    Save("new");
    EXPECT_EQ(File(), once);
    // A quote that reads back the same, because the record needs none around it.
    File().clear();
    Save("it\"s");
    EXPECT_EQ(store.Get_Message("5/3/2002").text, "it\"s");
}

TEST_F(Event_Store_Test, What_Cannot_Be_Read_Is_Told_And_Never_Overwritten) {
    const std::string path = Event_Store::Data_File();
    const std::string unclosed = "\"1/1/2002=A\"\r\n\"5/3/2002=B\r\n";
    for (const char *what : {"unclosed quote", "locked", "folder"}) {
        Fakes().files.clear();
        Fakes().unreadable.clear();
        File() = unclosed;
        if (what == std::string("locked"))
            Fakes().unreadable.insert(path);
        if (what == std::string("folder")) {
            Fakes().files.clear();
            Fakes().folders.insert(path);
        }
        const auto disk = Fakes().files;
        for (int i = 0; i < 3; ++i)
            Fakes().Expect_Box(loading_failed);
        const Items read = what == std::string("unclosed quote") ? Items{"1/1/2002=A"} : Items{};
        EXPECT_EQ(Entered(), read) << what;
        EXPECT_EQ(store.Get_Message("1/1/2002").text, read.empty() ? "" : "A") << what;
        store.Temp_Lst.clear();
        store.Load_File();
        EXPECT_EQ(store.Temp_Lst, read) << what;
        for (int i = 0; i < 3; ++i)
            Fakes().Expect_Box(saving_failed);
        store.Check_For_Pre("5/3/2002", "new", false);
        store.Check_For_Pre("1/1/2002", read.empty() ? "new" : "", false);
        store.Write_ALL();
        EXPECT_EQ(Fakes().files, disk) << what;
    }
    for (const Shown_Box &box : Fakes().boxes) {
        EXPECT_EQ(box.title, "Vellatro");
        EXPECT_EQ(box.icon, platform::Box_Icon::Stop);
        EXPECT_EQ(box.buttons, platform::Box_Buttons::Ok);
    }
    EXPECT_EQ(Fakes().writes, 0);
}

TEST_F(Event_Store_Test, After_A_Good_Loading_Saving_Works_Again) {
    File() = "\"";
    Fakes().Expect_Box(loading_failed);
    store.Load_File();
    File() = Quoted({"1/1/2002=A"});
    Save("new");
    EXPECT_EQ(File(), Quoted({"1/1/2002=A", "5/3/2002=new"}));
}

TEST_F(Event_Store_Test, A_Failed_Write_Leaves_The_File) {
    File() = Quoted({"5/3/2002=A"});
    const std::string before = File();
    Fakes().unwritable.insert(Event_Store::Data_File());
    for (const char *text : {"B", ""}) {
        Fakes().Expect_Box(saving_failed);
        Save(text);
    }
    Fakes().Expect_Box(saving_failed);
    Save("new", false, "6/3/2002");
    Fakes().unwritable.clear();
    Fakes().Expect_Box(saving_failed);
    Save("a \"quote\", and a comma");
    EXPECT_EQ(File(), before);
}

TEST_F(Event_Store_Test, A_Malformed_Record_Ends_The_Reading) {
    File() = Quoted({"5/3/2002=A", "malformed", "5/3/2002=B"});
    Fakes().Expect_Box(loading_failed);
    EXPECT_EQ(store.Get_Message("5/3/2002").text, "A");

    Items shown;
    Fakes().Expect_Box(loading_failed);
    store.Load_Dates([&](std::string_view record) {
        if (record == "malformed")
            throw std::out_of_range("no such box");
        shown.emplace_back(record);
    });
    EXPECT_EQ(shown, Items{"5/3/2002=A"});
}

TEST_F(Event_Store_Test, The_Store_May_Be_Entered_Again_While_A_Month_Is_Filled) {
    const Items records{"5/3/2002=A", "6/3/2002=B", "7/3/2002=C"};
    File() = Quoted(records);
    Items outer, inner;
    Fakes().Expect_Box("Today", platform::Box_Answer::Ok, [&] {
        Save("changed meanwhile");
        inner = Entered();
    });
    store.Load_Dates([&](std::string_view record) {
        if (outer.empty())
            platform::Message_Box("Today", "Vellatro", platform::Box_Icon::Information);
        outer.emplace_back(record);
    });
    EXPECT_EQ(outer, records);
    EXPECT_EQ(inner[0], "5/3/2002=changed meanwhile");
    EXPECT_EQ(inner.size(), 3U);
}

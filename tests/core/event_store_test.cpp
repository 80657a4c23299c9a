// The event store: which record counts, what it writes, and what failures leave.
#include "core/event_store.h"
#include "tests/fakes/fake_test.h"

#include <random>

using Items = std::vector<std::string>;
using namespace std::string_literals;

namespace {

const char *const loading_failed = "Error loading in data file.";
const char *const saving_failed = "Error saving data file.";

class Event_Store_Test : public Fake_Test {
protected:
    std::string &File() { return Fakes().files["C:\\Vellatro\\calendar.dat"]; }

    /// Loads the file and stores the text, as the editor does.
    void Save(const std::string &text, bool each_year = false) {
        store.Load_File();
        store.Check_For_Pre("5/3/2002", text, each_year);
    }

    Items Entered() {
        Items records;
        store.Load_Dates([&](std::string_view record) { records.emplace_back(record); });
        return records;
    }

    static std::string Quoted(const Items &records) {
        std::string bytes;
        for (const std::string &record : records)
            bytes += "\"" + record + "\"\r\n";
        return bytes;
    }

    Event_Store store;
};

TEST_F(Event_Store_Test, The_Last_Record_Of_The_Day_Is_Shown_And_The_First_One_Changed) {
    EXPECT_EQ(Entered(), Items{}); // without a file
    Save("");
    EXPECT_EQ(Fakes().writes, 0);
    const struct {
        Items before;
        std::string shown;
        bool every_year;
        std::string typed;
        bool each_year;
        Items after;
    } cases[] = {
        {{"5/3/2002=A", "5/3/9999=B"}, "B", true, "new", false, {"5/3/2002=new", "5/3/9999=B"}},
        {{"5/3/9999=B", "5/3/2002=A"}, "A", true, "new", false, {"5/3/2002=new", "5/3/2002=A"}},
        {{"5/3/2002=A", "5/3/9999=B=C"}, "B=C", true, "new", true, {"5/3/9999=new", "5/3/9999=B=C"}},
        {{"5/3/9999=B", "5/3/2002="}, "", true, "", false, {"5/3/2002="}},
        {{"5/3/2002=A"}, "A", false, "a, b = \r\n c", false, {"5/3/2002=a, b = \r\n c"}},
        {{"=A", " 5/3/2002 =B"}, "", false, "new", true, {"=A", " 5/3/2002 =B", "5/3/9999=new"}},
    };
    for (const auto &c : cases) {
        Items before{"15/3/2002=other", "5/3/20021=longer", "5/3/2003=next"}, after = before;
        before.insert(before.end(), c.before.begin(), c.before.end());
        after.insert(after.end(), c.after.begin(), c.after.end());
        File() = Quoted(before);
        const Stored_Message message = store.Get_Message("5/3/2002");
        EXPECT_TRUE(message.text == c.shown && message.every_year == c.every_year) << File();
        Save(c.typed, c.each_year);
        EXPECT_EQ(File(), Quoted(after)) << c.typed;
        EXPECT_EQ(Entered(), after);
    }
}

TEST_F(Event_Store_Test, A_Rewrite_Loses_Nothing_Of_A_Hand_Written_File) {
    File() = "\xEF\xBB\xBF 1/1/2002=it\"s \n\n\"2/1/2002=a, b\",5/3/2002\r\"two\r\nlines\"\"5/3/2002=old\"  "
             "\r\n3/1/2002=\x93\xE9\x94\n\r\n\x1A 4/1/2002=behind the end";
    for (int repeated = 0; repeated < 2; ++repeated) {
        Save("new");
        EXPECT_EQ(File(), "1/1/2002=it\"s\r\n" + Quoted({"", "2/1/2002=a, b", "5/3/2002", "two\r\nlines",
                                                         "5/3/2002=new", "3/1/2002=\u201C\u00E9\u201D"}));
    }
}

TEST_F(Event_Store_Test, What_Cannot_Be_Read_Is_Told_And_Never_Overwritten) {
    const std::string path = "C:\\Vellatro\\calendar.dat";
    // An open quote, a NUL, UTF-16, and a file that another program has locked.
    for (const std::string &bytes : {"\"1/1/2002=A\"\r\n\"5/3/2002=B\r\n" + std::string(2'000'000, '\n'),
                                     "\"1/1/2002=A\"\0"s, "\xFF\xFE\"\0001\0"s, "\"1/1/2002=A\""s}) {
        const bool locked = bytes.ends_with("A\""), none = locked || bytes[0] != '"';
        File() = bytes;
        if (locked)
            Fakes().unreadable.insert(path);
        for (const char *told :
             {loading_failed, loading_failed, loading_failed, saving_failed, saving_failed})
            Fakes().Expect_Box(told);
        EXPECT_EQ(Entered(), none ? Items{} : Items{"1/1/2002=A"});
        EXPECT_EQ(store.Get_Message("1/1/2002").text, none ? "" : "A");
        Save("new");
        EXPECT_FALSE(store.Check_For_Pre("1/1/2002", none ? "new" : "", false));
        EXPECT_FALSE(store.Check_For_Pre("9/9/2002", "", false)); // the file may hold an event of that day
        EXPECT_EQ(File(), bytes);
    }
    EXPECT_EQ(Fakes().writes, 0);
    for (const Shown_Box &box : Fakes().boxes)
        EXPECT_TRUE(box.title == "Vellatro" && box.icon == platform::Box_Icon::Stop) << box.text;
    // After a successful load, saving works again, if text and file can be written. A text saved while the
    // message is open survives the save that follows.
    Fakes().Expect_Box(loading_failed, platform::Box_Answer::Ok, [this] {
        Fakes().unreadable.clear();
        File() = Quoted({"1/1/2002=A"});
        Save("new");
    });
    EXPECT_FALSE(store.Load_File());
    Fakes().Expect_Box(saving_failed);
    EXPECT_FALSE(store.Check_For_Pre("1/1/2002", "", false));
    EXPECT_EQ(File(), Quoted({"1/1/2002=A", "5/3/2002=new"}));
    for (const char *text : {"a \"quote\", and a comma", "B", ""}) {
        Fakes().Expect_Box(saving_failed);
        Save(text);
        Fakes().unwritable.insert(path);
        EXPECT_EQ(File(), Quoted({"1/1/2002=A", "5/3/2002=new"}));
        EXPECT_EQ(store.Temp_Lst, (Items{"1/1/2002=A", "5/3/2002=new"}));
    }
}

TEST_F(Event_Store_Test, A_Note_Between_The_Records_Is_Told_And_Hides_None) {
    File() = "5/3/2002=A\n\nnote, to myself\n6/3/2002=bad\n5/3/9999=B\n";
    for (int reading = 0; reading < 3; ++reading)
        Fakes().Expect_Box(loading_failed); // once for each read
    const Stored_Message message = store.Get_Message("5/3/2002");
    EXPECT_TRUE(message.text == "B" && message.every_year && !message.incomplete);
    EXPECT_EQ(Entered(), (Items{"5/3/2002=A", "6/3/2002=bad", "5/3/9999=B"}));
    Items shown;
    EXPECT_FALSE(store.Load_Dates([&](std::string_view record) {
        if (record == "6/3/2002=bad")
            throw std::out_of_range("no such box");
        shown.emplace_back(record);
    }));
    EXPECT_EQ(shown, Items{"5/3/2002=A"});
    // Load_Dates may be called again, and events saved, from its callback.
    File() = Quoted({"5/3/2002=A", "6/3/2002=B"});
    Items outer, inner;
    store.Load_Dates([&](std::string_view record) {
        if (outer.empty()) {
            Save("changed meanwhile");
            inner = Entered();
        }
        outer.emplace_back(record);
    });
    EXPECT_EQ(outer, (Items{"5/3/2002=A", "6/3/2002=B"}));
    EXPECT_EQ(inner, (Items{"5/3/2002=changed meanwhile", "6/3/2002=B"}));
}

TEST_F(Event_Store_Test, Random_Changes_Are_Undone_Byte_For_Byte) {
    std::mt19937 random;
    const auto upto = [&random](std::size_t count) { return static_cast<std::size_t>(random() % count); };
    auto &files = Fakes().files;
    for (const bool hand_written : {false, true}) {
        files.clear();
        if (hand_written)
            File() = "\xEF\xBB\xBF 1/1/2002=it\"s \n\n\"2/1/2002=a\",5/3/2002\r\"3/1/2002=\x93\"  \n";
        std::deque<decltype(Fakes().files)> former; // the disk before each change that can be undone
        for (int step = 0; step < 20'000 || !former.empty(); ++step) {
            if (step >= 20'000 || upto(2) == 0) {
                ASSERT_EQ(store.Undo(), !former.empty());
                if (former.empty())
                    continue;
                ASSERT_EQ(files, former.back());
                former.pop_back();
                continue;
            }
            former.push_back(files);
            {
                const Undo_Log::Change change(store.Changes, "Edit");
                const Undo_Log::Change inner(store.Changes, "belongs to the other");
                for (std::size_t writes = upto(3) + 1; writes > 0; --writes) {
                    store.Load_File();
                    store.Check_For_Pre(std::to_string(upto(9) + 1) + "/1/2002", std::string(upto(5), 'a'),
                                        upto(4) == 0);
                }
            }
            if (former.back() == files)
                former.pop_back();
            else if (former.size() > Undo_Log::most_steps)
                former.pop_front();
        }
        EXPECT_FALSE(store.Undo());
    }
}

} // namespace

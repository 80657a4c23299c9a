// The event editor: what it shows, saves and asks, and that it keeps its day.
#include "app/program.h"
#include "core/settings.h"
#include "editor/edit_frm.h"
#include "settings/settings_frm.h"
#include "tests/calendar/calendar_test.h"

using platform::Box_Answer;
using platform::Broadcast;
using platform::Input_Kind;

namespace {

constexpr const char *question = "Save changes for the Tuesday 5th March 2002?";

class Editor : public Calendar_Test {
protected:
    Editor() {
        Stored("Show Alerts") = "0";
        Connect_Editor(form, editor);
        Start();
    }

    void Open(int day) { Double_Click(form, Box_Of(day)); }
    void Type(const std::string &text) { Enter_Text(editor, editor.Message_Txt, text); }
    bool Has_Window() { return Desktop().mirrors.contains(&editor.Model()); }

    Edit_Frm editor{form};
};

TEST_F(Editor, shows_and_saves_the_event_of_a_day) {
    struct {
        std::string before, shown;
        bool shown_tick;
        std::string typed;
        bool tick;
        std::string after;
    } const rows[] = {
        {"7/3/2002=b", "", false, "Dentist, a=b", false, "7/3/2002=b|5/3/2002=Dentist, a=b|"},
        {"5/3/2002=A", "A", false, "A", true, "5/3/9999=A|"},
        {"5/3/9999=B", "B", true, "C", false, "5/3/2002=C|"},
        {"5/3/2002=a\r\nb", "a b", false, "a b.", true, "5/3/9999=a b.|"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.after + " for " + row.typed);
        Events({row.before});
        form.Redraw();
        Cur_Settings.Tooltips = row.tick ? 1 : 2;
        Open(6); // no question about the editor that this replaces
        Open(5);
        EXPECT_EQ(editor.Date_Lbl.Caption() + editor.Message_Txt.Text(),
                  "Tuesday 5th March 2002" + row.shown);
        EXPECT_EQ(editor.Every_Year_Chk.Checked(), row.shown_tick);
        Push(editor, editor.Every_Year_Chk, row.tick);
        EXPECT_FALSE(editor.Apply_Btn.Enabled());
        Type(row.typed);
        EXPECT_EQ(editor.Apply_Btn.Enabled(), row.typed != row.shown);
        form.Alert_Done = false;
        form.Box_Lbl[9].Set_Tooltip("untouched");
        Push(editor, row.tick && editor.Apply_Btn.Enabled() ? editor.Apply_Btn : editor.Ok_Btn);
        EXPECT_TRUE(form.Alert_Done && !Has_Window());
        EXPECT_EQ(Records(), row.after);
        EXPECT_EQ(Text_Of(5) + Box_Of(5).Tooltip(), row.typed + (row.tick ? row.typed : "untouched"));
    }
}

TEST_F(Editor, keeps_a_text_that_cannot_be_saved_and_shows_what_is_stored) {
    Events({"5/3/2002=A"});
    form.Redraw();
    for (const bool unread : {false, true}) {
        if (unread) { // the event of the 6th is unreadable when the editor opens, and readable when it saves
            Data_File() += "\"6/3/2002=open";
            Fakes().Expect_Box("Error loading in data file.");
        } else {
            Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
        }
        Open(unread ? 6 : 5);
        Type("typed");
        if (unread)
            Data_File() += "\"";
        for (int box = 0; box < 3; ++box)
            Fakes().Expect_Box("Error saving data file.");
        for (Button *button : {&editor.Ok_Btn, &editor.Apply_Btn}) {
            Push(editor, *button);
            EXPECT_TRUE(Has_Window() && editor.Apply_Btn.Enabled() && !form.Alert_Done);
        }
        Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
        form.Clear_Box(Index_Of(5));
        EXPECT_EQ(editor.Message_Txt.Text() + Text_Of(5) + Text_Of(6), "typedA");
        EXPECT_EQ(Records(), unread ? "5/3/2002=A|6/3/2002=open" : "5/3/2002=A|");
        Push(editor, editor.Cancel_Btn);
        Fakes().unwritable.clear();
    }
    Open(6); // now the event can be read
    EXPECT_EQ(editor.Message_Txt.Text(), "open");
}

TEST_F(Editor, closes_without_saving_and_lets_compact_mode_go_on) {
    form.Edit_Box(4); // the last box before 1 March
    EXPECT_FALSE(Has_Window());
    for (const Input_Kind way : {Input_Kind::Clicked, Input_Kind::Close, Input_Kind::Window_Lost}) {
        Input(form, {.kind = Input_Kind::Default_Action}, &Box_Of(5));
        ASSERT_TRUE(Has_Window());
        Desktop().front = nullptr;
        Input(form, {.kind = Input_Kind::Default_Action}, &Box_Of(5));
        EXPECT_EQ(Desktop().front, &editor.Model()) << "one that is open comes to the front";
        Type("dropped");
        Cur_Settings.Auto_Compact = 1;
        form.Compact_Timer.Set_Enabled(false);
        if (way == Input_Kind::Window_Lost)
            Desktop().mirrors.erase(&editor.Model());
        Input(editor, {.kind = way}, &editor.Cancel_Btn);
        EXPECT_FALSE(form.Editor_Visible() || Has_Window() || form.Alert_Done || Fakes().writes > 0);
        EXPECT_TRUE(form.Compact_Timer.Enabled());
    }
}

TEST_F(Editor, asks_for_unsaved_text_before_another_day_and_the_end_of_session_and_program) {
    struct {
        std::string typed;
        Box_Answer answer;
        bool leaves, saves;
    } const rows[] = {
        {"new", Box_Answer::Cancel, false, false},
        {"new", Box_Answer::No, true, false},
        {"new", Box_Answer::Yes, true, true},
        {"n\"w", Box_Answer::Yes, false, false},
    };
    enum { other_day, session, program };
    const auto leave = [this](int way) {
        Desktop().loop_ended = false;
        if (way == other_day)
            Open(6);
        else if (way == program)
            Input(form, {.kind = Input_Kind::Close});
        return way == session ? Desktop().Say(Broadcast::Session_Ends) : Desktop().loop_ended;
    };
    for (const int way : {other_day, session, program}) {
        for (const auto &row : rows) {
            SCOPED_TRACE(row.typed + std::to_string(static_cast<int>(row.answer)) + std::to_string(way));
            Events({"6/3/2002=six"});
            Open(5);
            Push(editor, editor.Every_Year_Chk, true);
            EXPECT_TRUE(way == other_day || leave(way)) << "nothing is unsaved yet";
            Type(row.typed);
            EXPECT_EQ(Desktop().refusal, "An event in the editor is not saved yet.");
            editor.Set_Focus(editor.Ok_Btn);
            Fakes().Expect_Box(question, row.answer, [this] {
                EXPECT_FALSE(Desktop().Say(Broadcast::Session_Ends)); // no second question over the first one
                form.Edit_Box(20);
            });
            if (row.typed == "n\"w")
                Fakes().Expect_Box("Make sure you haven't used any quotation marks (\") in your entry.");
            EXPECT_EQ(leave(way), way != other_day && row.leaves);
            EXPECT_EQ(Records(), row.saves ? "6/3/2002=six|5/3/9999=new|" : "6/3/2002=six|");
            EXPECT_EQ(Has_Window(), way == other_day || !row.leaves);
            if (Has_Window()) {
                // An editor that stays open keeps its tick; one opened after a save has its own.
                EXPECT_TRUE(editor.Apply_Btn.Enabled() != row.leaves &&
                            editor.Every_Year_Chk.Checked() != row.saves);
                EXPECT_EQ(editor.Message_Txt.Text(), row.leaves ? "six" : row.typed);
                EXPECT_EQ(editor.Model().focused, editor.Message_Txt.State().index);
            }
            Push(editor, editor.Cancel_Btn);
            EXPECT_EQ(Desktop().refusal, "");
        }
    }
    for (const bool sound : {true, false}) { // a forced end of the session
        Open(5);
        Type(sound ? "kept" : "n\"w");
        EXPECT_TRUE(Desktop().Say(Broadcast::Session_Forced));
        EXPECT_EQ(Has_Window(), !sound);
        EXPECT_EQ(Records(), "6/3/2002=six|5/3/2002=kept|");
    }
}

TEST_F(Editor, waits_for_the_end_of_the_settings_and_is_asked_for_meanwhile) {
    std::unique_ptr<Settings_Frm> settings;
    Connect_Settings(form, settings);
    Open(5);
    Type("new");
    form.Open_Settings();
    Type("newer");
    Push(editor, editor.Ok_Btn);
    EXPECT_TRUE(Has_Window() && !editor.Model().enabled && editor.Message_Txt.Text() == "new");
    Fakes().Expect_Box(question, Box_Answer::Cancel);
    EXPECT_FALSE(Desktop().Say(Broadcast::Session_Ends));
    EXPECT_EQ(Desktop().front, &settings->Model());
    Push(*settings, settings->Cancel_Btn);
    EXPECT_TRUE(editor.Model().enabled && Records().empty());
    Cur_Settings.Settings_Tab = Settings_Frm::transfer_fra + 1;
    form.Open_Settings();
    // The session ends during an import, which stores the text; then the import fails.
    Fakes().files["C:\\in.csv"] = "none";
    Fakes().Expect_Dialog("Import Events from CSV File", "C:\\in.csv");
    Fakes().Expect_Box("Invalid CSV file or missing required headings.", Box_Answer::Ok, [&settings] {
        Fakes().Expect_Box(question, Box_Answer::Yes);
        EXPECT_TRUE(Desktop().Say(Broadcast::Session_Ends));
        EXPECT_EQ(settings->Events.Events_Lst.Items().size(), 1U);
        Fakes().Expect_Box("Error when importing from CSV file.");
    });
    Push(*settings, settings->Transfer.Import_Btn[2]);
    EXPECT_EQ(Records(), "5/3/2002=new|");
}

TEST_F(Editor, keeps_its_day_whatever_the_calendar_shows) {
    const std::function<void()> changes[] = {
        [this] { Show_Month(4, 2002); },
        [] {
            Fakes().first_weekday = 1;
            Desktop().Say(Broadcast::Settings_Changed);
        },
    };
    for (const auto &change : changes) {
        Fakes().files.clear();
        Show_Month(3, 2002);
        Open(5);
        Type("kept");
        change();
        Push(editor, editor.Ok_Btn);
        EXPECT_EQ(Records() + Text_Of(5) + form.Model().description,
                  form.Cur_Month == 3 ? "5/3/2002=kept|kept" : "5/3/2002=kept|");
    }
    // The clicked day counts, even if the month changes while the question is open.
    Open(5);
    Type("other");
    Fakes().Expect_Box(question, Box_Answer::Yes, [this] { Show_Month(7, 2010); });
    Open(6);
    Type("six");
    Push(editor, editor.Ok_Btn);
    EXPECT_EQ(Records(), "5/3/2002=other|6/3/2002=six|");
    // A yearly event appears in the same month of another year, and disappears from it.
    Events({"5/3/2010=ten"});
    for (const std::string text : {"yearly", "once", "yearly", ""}) {
        Show_Month(3, 2002);
        Open(7);
        Push(editor, editor.Every_Year_Chk, text == "yearly");
        Type(text);
        Show_Month(3, 2010);
        Push(editor, editor.Ok_Btn);
        EXPECT_EQ(Text_Of(7) + Text_Of(5), (text == "yearly" ? text : "") + "ten") << Records();
    }
    for (const int day : {1, 15, 31}) { // the editor opens beside its box
        Show_Month(3, 2002);
        Open(day);
        Rect box = Box_Of(day).Bounds();
        box.left += form.Left();
        box.top += form.Top();
        EXPECT_FALSE(box.Intersects(editor.Model().bounds)) << day;
        EXPECT_TRUE(editor.Top() >= 0 && editor.Top() + editor.Height() <= 740 * 15) << day;
    }
    const int height = editor.Height();
    Desktop().char_width = 200; // as at other dots per inch
    Input(editor, {.kind = Input_Kind::Scale_Changed});
    EXPECT_GT(editor.Height(), height);
}

} // namespace

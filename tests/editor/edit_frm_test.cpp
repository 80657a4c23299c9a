// The event editor on the calendar: what it shows and saves, its questions, and the days that stay its own.
#include "app/program.h"
#include "core/settings.h"
#include "editor/edit_frm.h"
#include "tests/calendar/calendar_test.h"

#include <array>
#include <map>

using platform::Box_Answer;
using platform::Broadcast;
using platform::Input_Event;
using platform::Input_Kind;

namespace {

constexpr const char *question = "Save changes for the Tuesday 5th March 2002?";
constexpr const char *refusal = "Make sure you haven't used any quotation marks (\") in your entry.";

class Editor : public Calendar_Test {
protected:
    Editor() {
        Fakes().registry["Software\\Vellatro\\Settings\\Show Alerts"] = "0";
        Connect_Editor(form, editor);
    }

    void Open(int day) { Double_Click(form, Box_Of(day)); }

    void Send(Input_Kind kind, const Control *control = nullptr, const std::string &text = {},
              bool checked = false) {
        Input_Event event{};
        event.kind = kind;
        event.control = control != nullptr ? control->State().index : -1;
        event.text = text;
        event.checked = checked;
        editor.Model().input(event);
    }
    void Type(const std::string &text) { Send(Input_Kind::Text_Changed, &editor.Message_Txt, text); }
    void Tick(bool on) { Send(Input_Kind::Clicked, &editor.Every_Year_Chk, {}, on); }
    void Push(const Button &button) { Send(Input_Kind::Clicked, &button); }

    /// The records of the data file, each ended by a "|".
    static std::string Records() {
        std::string records;
        for (const char c : Fakes().files["C:\\Vellatro\\calendar.dat"])
            records += c == '"' || c == '\r' ? "" : c == '\n' ? "|" : std::string(1, c);
        return records;
    }

    std::string All_Boxes() {
        std::string texts;
        for (const Label &box : form.Box_Caption_Lbl)
            texts += box.Caption() + "|";
        for (const Label &box : form.Box_Lbl)
            texts += box.Access().value + box.Tooltip() + "|";
        return texts;
    }

    bool Has_Window() { return Desktop().mirrors.contains(&editor.Model()); }

    Edit_Frm editor{form};
};

TEST_F(Editor, shows_and_saves_the_event_of_a_day) {
    const std::string long_text(300, 'w');
    struct {
        std::vector<std::string> before;
        std::string shown;
        bool shown_tick;
        std::string typed;
        bool tick;
        std::string after;
    } const rows[] = {
        {{}, "", false, "Dentist, a=b", false, "5/3/2002=Dentist, a=b|"},
        {{}, "", false, "Birthday", true, "5/3/9999=Birthday|"},
        {{}, "", false, "", false, ""},
        {{"1/3/2002=a", "5/3/2002=old", "6/3/2002=b"},
         "old",
         false,
         "new",
         false,
         "1/3/2002=a|5/3/2002=new|6/3/2002=b|"},
        {{"5/3/2002=old", "6/3/2002=b"}, "old", false, "", false, "6/3/2002=b|"},
        {{"5/3/2002=A", "6/3/2002=b"}, "A", false, "A", true, "5/3/9999=A|6/3/2002=b|"},
        {{"5/3/9999=B"}, "B", true, "C", false, "5/3/2002=C|"},
        {{"5/3/9999=B"}, "B", true, "", true, ""},
        // Of both kinds the last is shown and the first changed.
        {{"5/3/2002=A", "5/3/9999=B"}, "B", true, "X", false, "5/3/2002=X|5/3/9999=B|"},
        {{"5/3/9999=B", "5/3/2002=A"}, "A", true, "X", true, "5/3/9999=X|5/3/2002=A|"},
        {{"5/3/2002=A", "5/3/9999=B"}, "B", true, "", true, "5/3/9999=B|"},
        {{"5/3/2002=a\r\nb"}, "a b", false, "a b.", false, "5/3/2002=a b.|"},
        {{"5/3/2002=" + long_text}, long_text, false, long_text + "!", false, "5/3/2002=" + long_text + "!|"},
    };
    Start();
    bool by_apply = false;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.after + " for " + row.typed);
        Events(row.before);
        form.Redraw();
        Cur_Settings.Tooltips = by_apply ? 1 : 2;
        Open(5);
        EXPECT_EQ(editor.Date_Lbl.Caption(), "Tuesday 5th March 2002");
        EXPECT_EQ(editor.Message_Txt.Text(), row.shown);
        EXPECT_EQ(editor.Every_Year_Chk.Checked(), row.shown_tick);
        EXPECT_FALSE(editor.Apply_Btn.Enabled());
        Tick(row.tick);
        EXPECT_FALSE(editor.Apply_Btn.Enabled());
        Type(row.typed);
        EXPECT_EQ(editor.Apply_Btn.Enabled(), row.typed != row.shown);
        form.Alert_Done = false;
        form.Box_Lbl[9].Set_Tooltip("untouched");
        Push(by_apply && editor.Apply_Btn.Enabled() ? editor.Apply_Btn : editor.Ok_Btn);
        EXPECT_FALSE(Has_Window());
        EXPECT_FALSE(editor.Apply_Btn.Enabled());
        EXPECT_TRUE(form.Alert_Done);
        EXPECT_EQ(Records(), row.after);
        EXPECT_EQ(Text_Of(5).empty(), row.typed.empty());
        EXPECT_EQ(Box_Of(5).Access().value, row.typed);
        EXPECT_EQ(Box_Of(5).Tooltip(), by_apply ? row.typed : "untouched");
        EXPECT_EQ(Box_Of(5).Caption(), " 5");
        by_apply = !by_apply;
    }
}

TEST_F(Editor, closes_without_saving_and_lets_compact_mode_go_on) {
    Start();
    struct {
        std::int16_t auto_compact;
        bool compacted, resumes;
    } const rows[] = {{1, false, true}, {0, false, false}, {1, true, false}};
    for (const auto &row : rows) {
        for (int way = 0; way < 3; ++way) {
            Cur_Settings.Auto_Compact = 0;
            form.Compact_Timer.Set_Enabled(false);
            Open(5);
            EXPECT_EQ(editor.Message_Txt.Text(), "");
            EXPECT_TRUE(form.Editor_Visible());
            Type("dropped");
            Cur_Settings.Auto_Compact = row.auto_compact;
            form.Compacted = row.compacted;
            if (way == 2)
                Desktop().mirrors.erase(&editor.Model());
            Send(std::array{Input_Kind::Clicked, Input_Kind::Close, Input_Kind::Window_Lost}.at(
                     static_cast<std::size_t>(way)),
                 &editor.Cancel_Btn);
            EXPECT_FALSE(form.Editor_Visible() || Has_Window() || form.Alert_Done);
            EXPECT_EQ(form.Compact_Timer.Enabled(), row.resumes);
            form.Compacted = false;
        }
    }
    EXPECT_EQ(Fakes().writes, 0);
}

TEST_F(Editor, refuses_a_quotation_mark) {
    Start();
    Open(5);
    Type("say \"hello\"");
    Fakes().Expect_Box(refusal);
    Push(editor.Ok_Btn);
    EXPECT_EQ(Fakes().boxes.at(0).title, "Vellatro");
    EXPECT_EQ(Fakes().boxes.at(0).icon, platform::Box_Icon::Exclamation);
    EXPECT_TRUE(Has_Window() && editor.Apply_Btn.Enabled());
    EXPECT_FALSE(form.Alert_Done);
    EXPECT_EQ(Fakes().writes, 0);
}

TEST_F(Editor, asks_for_unsaved_text_before_another_day_and_the_end_of_session_and_program) {
    struct {
        std::string typed;
        Box_Answer answer;
        bool refused, leaves, ticked;
        std::string file;
    } const rows[] = {
        {"new", Box_Answer::Cancel, false, false, true, "6/3/2002=six|"},
        // An editor that stays open keeps its tick; after a save it is a new one.
        {"new", Box_Answer::No, false, true, true, "6/3/2002=six|"},
        {"new", Box_Answer::Yes, false, true, false, "6/3/2002=six|5/3/9999=new|"},
        {"n\"w", Box_Answer::Yes, true, false, true, "6/3/2002=six|"},
    };
    enum { other_day, session, program };
    const auto leave = [this](int way) {
        Input_Event event{};
        event.kind = Input_Kind::Close;
        Desktop().loop_ended = false;
        if (way == other_day)
            Open(6);
        else if (way == program)
            form.Input(event);
        return way == session ? Desktop().Say(Broadcast::Session_Ends) : Desktop().loop_ended;
    };
    Start();
    for (const int way : {other_day, session, program}) {
        for (const auto &row : rows) {
            SCOPED_TRACE(row.file + " " + row.typed + std::to_string(way));
            Events({"6/3/2002=six"});
            form.Redraw();
            Open(5);
            EXPECT_EQ(way == other_day || leave(way), true) << "nothing is unsaved yet";
            Tick(true);
            Type(row.typed);
            editor.Model().focused = -1;
            Fakes().boxes.clear();
            Fakes().Expect_Box(question, row.answer, [this] {
                EXPECT_FALSE(Desktop().Say(Broadcast::Session_Ends)); // no second question over the first
                form.Edit_Box(20);
            });
            if (row.refused)
                Fakes().Expect_Box(refusal);
            EXPECT_EQ(leave(way), way != other_day && row.leaves);
            EXPECT_EQ(Fakes().boxes.at(0).title, "Desktop Wallpaper");
            EXPECT_EQ(Fakes().boxes.at(0).icon, platform::Box_Icon::Question);
            EXPECT_EQ(Records(), row.file);
            EXPECT_EQ(Has_Window(), way == other_day || !row.leaves);
            EXPECT_EQ(editor.Apply_Btn.Enabled() && Has_Window(), !row.leaves);
            if (Has_Window()) {
                EXPECT_EQ(editor.Date_Lbl.Caption(),
                          row.leaves ? "Wednesday 6th March 2002" : "Tuesday 5th March 2002");
                EXPECT_EQ(editor.Message_Txt.Text(), row.leaves ? "six" : row.typed);
                EXPECT_EQ(editor.Every_Year_Chk.Checked(), row.ticked);
                EXPECT_EQ(editor.Model().focused, editor.Message_Txt.State().index);
            }
            Push(editor.Cancel_Btn);
        }
    }
}

TEST_F(Editor, a_clean_editor_goes_to_another_day_without_a_question) {
    Events({"5/3/9999=five", "6/3/2002=six"});
    Start();
    Open(5);
    Open(6);
    EXPECT_EQ(editor.Message_Txt.Text(), "six");
    EXPECT_TRUE(editor.Every_Year_Chk.Checked()) << "kept from the former day";
    EXPECT_EQ(Desktop().mirrors.size(), 2U) << "one calendar, one editor";
    Tick(false);
    Push(editor.Ok_Btn);
    EXPECT_EQ(Records(), "5/3/9999=five|6/3/2002=six|");
    form.Edit_Box(4); // the last box before 1 March
    form.Edit_Box(36);
    EXPECT_FALSE(Has_Window());
}

TEST_F(Editor, keeps_its_day_whatever_the_calendar_shows) {
    Start();
    Open(5);
    Type("kept");
    for (const auto &[month, year] : {std::pair{4, 2002}, {3, 2003}}) {
        Show_Month(static_cast<std::int16_t>(month), static_cast<std::int16_t>(year));
        const std::string before = All_Boxes();
        Push(editor.Ok_Btn);
        EXPECT_EQ(Records(), "5/3/2002=kept|");
        EXPECT_EQ(All_Boxes(), before);
        Fakes().files.clear();
        Show_Month(3, 2002);
        Open(5);
        Type("kept");
    }
    Fakes().first_weekday = 1;
    Desktop().Say(Broadcast::Settings_Changed);
    Push(editor.Ok_Btn);
    EXPECT_EQ(Text_Of(5), "kept");
    EXPECT_EQ(form.Box_Caption_Lbl[8].Caption(), "kept");
    EXPECT_EQ(form.Box_Caption_Lbl[9].Caption(), "");

    // Clearing another day, or this one, has a key of its own.
    for (const int box : {9, 8}) {
        Open(5);
        Type("kept " + std::to_string(box));
        form.Clear_Box(box);
        Push(editor.Ok_Btn);
        EXPECT_EQ(Records(), "5/3/2002=kept " + std::to_string(box) + "|");
    }

    // The day that the user meant when he clicked counts, not what the question left the calendar at.
    Open(5);
    Type("other");
    Fakes().Expect_Box(question, Box_Answer::Yes, [this] { Show_Month(7, 2010); });
    Open(6);
    EXPECT_EQ(editor.Date_Lbl.Caption(), "Wednesday 6th March 2002");
    Type("six");
    Push(editor.Ok_Btn);
    EXPECT_EQ(Records(), "5/3/2002=other|6/3/2002=six|");
}

TEST_F(Editor, tells_failures_of_the_file_and_alerts_of_nothing_that_was_just_typed) {
    Start();
    Cur_Settings.Show_Alerts = 1;
    Open(5);
    Type("typed");
    Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
    Fakes().Expect_Box("Error saving data file.");
    Push(editor.Ok_Btn);
    EXPECT_EQ(Text_Of(5), "typed");
    EXPECT_FALSE(Has_Window());
    Events({"5/3/2002=a", "no key", "5/3/2002=b"});
    Fakes().Expect_Box("Error loading in data file.");
    Open(5);
    EXPECT_EQ(editor.Message_Txt.Text(), "a");
    Events({"5/3/2002=a"});
    form.Redraw();
}

TEST_F(Editor, a_loop_that_ends_unasked_still_offers_the_text) {
    Desktop().in_the_loop = [] {
        // The program's own windows: of a kind, the first control with that name.
        const auto send = [](platform::Form_Kind kind, const char *name, Input_Event event) {
            for (const auto &[model, mirror] : std::map(Desktop().mirrors))
                for (const platform::Control_State *control : model->controls)
                    if (model->kind == kind && control->name == name) {
                        event.control = control->index;
                        return model->input(event);
                    }
            ADD_FAILURE() << name;
        };
        Input_Event event{};
        event.kind = Input_Kind::Default_Action;
        send(platform::Form_Kind::Painted, "Box_Lbl(9)", event);
        event.kind = Input_Kind::Text_Changed;
        event.text = "late";
        send(platform::Form_Kind::Dialog, "Message_Txt", event);
        platform::End_Message_Loop();
    };
    Fakes().Expect_Box(question, Box_Answer::Yes);
    EXPECT_EQ(Run_Program(), 0);
    EXPECT_EQ(Records(), "5/3/2002=late|");
}

TEST_F(Editor, lies_beside_its_box) {
    Start();
    for (const int day : {1, 15, 31}) {
        Open(day);
        platform::Rect box = Box_Of(day).Bounds();
        box.left += form.Left();
        box.top += form.Top();
        EXPECT_FALSE(box.Intersects(editor.Model().bounds)) << day;
        EXPECT_TRUE(editor.Top() >= 0 && editor.Top() + editor.Height() <= 740 * 15) << day;
    }
}

} // namespace

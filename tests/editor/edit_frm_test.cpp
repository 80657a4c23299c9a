// The event editor on the calendar: what it shows and saves, its questions, and the days that stay its own.
#include "app/program.h"
#include "core/settings.h"
#include "editor/edit_frm.h"
#include "tests/calendar/calendar_test.h"

#include <map>

using platform::Box_Answer;
using platform::Broadcast;
using platform::Input_Kind;

namespace {

constexpr const char *question = "Save changes for the Tuesday 5th March 2002?";

class Editor : public Calendar_Test {
protected:
    Editor() {
        Fakes().registry["Software\\Vellatro\\Settings\\Show Alerts"] = "0";
        Connect_Editor(form, editor);
        Start();
    }

    void Open(int day) { Double_Click(form, Box_Of(day)); }

    static void Send(const platform::Form_Model &model, Input_Kind kind,
                     const platform::Control_State &control, const std::string &text = {},
                     bool checked = false) {
        platform::Input_Event event{};
        event.kind = kind;
        event.control = control.index;
        event.text = text;
        event.checked = checked;
        model.input(event);
    }
    void Type(const std::string &text) {
        Send(editor.Model(), Input_Kind::Text_Changed, editor.Message_Txt.State(), text);
    }
    void Tick(bool on) { Send(editor.Model(), Input_Kind::Clicked, editor.Every_Year_Chk.State(), {}, on); }
    void Push(const Button &button) { Send(editor.Model(), Input_Kind::Clicked, button.State()); }

    /// The records of the data file, each ended by a "|".
    static std::string Records() {
        std::string records;
        for (const char c : Fakes().files["C:\\Vellatro\\calendar.dat"])
            records += c == '"' || c == '\r' ? "" : c == '\n' ? "|" : std::string(1, c);
        return records;
    }

    bool Has_Window() { return Desktop().mirrors.contains(&editor.Model()); }

    Edit_Frm editor{form};
};

TEST_F(Editor, shows_and_saves_the_event_of_a_day) {
    const std::string long_text(300, 'w');
    struct {
        std::string before, shown;
        bool shown_tick;
        std::string typed;
        bool tick;
        std::string after;
    } const rows[] = {
        {"7/3/2002=b", "", false, "Dentist, a=b", false, "7/3/2002=b|5/3/2002=Dentist, a=b|"},
        {"5/3/2002=A", "A", false, "", false, ""},
        {"5/3/2002=A", "A", false, "A", true, "5/3/9999=A|"},
        {"5/3/9999=B", "B", true, "C", false, "5/3/2002=C|"},
        {"5/3/2002=a\r\nb", "a b", false, "a b.", false, "5/3/2002=a b.|"},
        {"5/3/2002=" + long_text, long_text, false, long_text + "!", true, "5/3/9999=" + long_text + "!|"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.after + " for " + row.typed);
        Events({row.before});
        form.Redraw();
        Cur_Settings.Tooltips = row.tick ? 1 : 2;
        Open(6); // and from there without a question
        Open(5);
        EXPECT_EQ(editor.Date_Lbl.Caption(), "Tuesday 5th March 2002");
        EXPECT_EQ(editor.Message_Txt.Text(), row.shown);
        EXPECT_EQ(editor.Every_Year_Chk.Checked(), row.shown_tick);
        Tick(row.tick);
        EXPECT_FALSE(editor.Apply_Btn.Enabled());
        Type(row.typed);
        EXPECT_EQ(editor.Apply_Btn.Enabled(), row.typed != row.shown);
        form.Alert_Done = false;
        form.Box_Lbl[9].Set_Tooltip("untouched");
        Push(row.tick && editor.Apply_Btn.Enabled() ? editor.Apply_Btn : editor.Ok_Btn);
        EXPECT_TRUE(form.Alert_Done && !Has_Window());
        EXPECT_EQ(Records(), row.after);
        EXPECT_EQ(Text_Of(5).empty(), row.typed.empty());
        EXPECT_EQ(Box_Of(5).Tooltip(), row.tick ? row.typed : "untouched");
    }
}

TEST_F(Editor, closes_without_saving_and_lets_compact_mode_go_on) {
    form.Edit_Box(4); // the last box before 1 March
    EXPECT_FALSE(Has_Window());
    for (const Input_Kind way : {Input_Kind::Clicked, Input_Kind::Close, Input_Kind::Window_Lost}) {
        form.Compact_Timer.Set_Enabled(false);
        Open(5);
        Type("dropped");
        Cur_Settings.Auto_Compact = 1;
        if (way == Input_Kind::Window_Lost)
            Desktop().mirrors.erase(&editor.Model());
        Send(editor.Model(), way, editor.Cancel_Btn.State());
        EXPECT_FALSE(form.Editor_Visible() || Has_Window() || form.Alert_Done);
        EXPECT_TRUE(form.Compact_Timer.Enabled());
    }
    EXPECT_EQ(Fakes().writes, 0);
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
            Send(form.Model(), Input_Kind::Close, Box_Of(5).State());
        return way == session ? Desktop().Say(Broadcast::Session_Ends) : Desktop().loop_ended;
    };
    for (const int way : {other_day, session, program}) {
        for (const auto &row : rows) {
            SCOPED_TRACE(row.typed + std::to_string(static_cast<int>(row.answer)) + std::to_string(way));
            Events({"6/3/2002=six"});
            Open(5);
            Tick(true);
            EXPECT_TRUE(way == other_day || leave(way)) << "nothing is unsaved yet";
            Type(row.typed);
            editor.Model().focused = -1;
            Fakes().Expect_Box(question, row.answer, [this] {
                EXPECT_FALSE(Desktop().Say(Broadcast::Session_Ends)); // no second question over the first
                form.Edit_Box(20);
            });
            if (row.typed == "n\"w")
                Fakes().Expect_Box("Make sure you haven't used any quotation marks (\") in your entry.");
            EXPECT_EQ(leave(way), way != other_day && row.leaves);
            EXPECT_EQ(Records(), row.saves ? "6/3/2002=six|5/3/9999=new|" : "6/3/2002=six|");
            EXPECT_EQ(Has_Window(), way == other_day || !row.leaves);
            if (Has_Window()) {
                EXPECT_EQ(editor.Apply_Btn.Enabled(), !row.leaves);
                EXPECT_EQ(editor.Message_Txt.Text(), row.leaves ? "six" : row.typed);
                // An editor that stays open keeps its tick; after a save it is a new one.
                EXPECT_EQ(editor.Every_Year_Chk.Checked(), !row.saves);
                EXPECT_EQ(editor.Model().focused, editor.Message_Txt.State().index);
            }
            Push(editor.Cancel_Btn);
        }
    }
}

TEST_F(Editor, keeps_its_day_whatever_the_calendar_shows) {
    const std::function<void()> changes[] = {
        [this] { Show_Month(4, 2002); },
        [this] { Show_Month(3, 2003); },
        [this] { form.Clear_Box(9); },
        [this] { form.Clear_Box(8); },
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
        Push(editor.Ok_Btn);
        EXPECT_EQ(Records(), "5/3/2002=kept|");
        EXPECT_EQ(Text_Of(5), form.Cur_Month == 3 && form.Cur_Year == 2002 ? "kept" : "");
    }
    // The day that the user meant when he clicked counts, not what the question left the calendar at.
    Open(5);
    Type("other");
    Fakes().Expect_Box(question, Box_Answer::Yes, [this] { Show_Month(7, 2010); });
    Open(6);
    Type("six");
    Push(editor.Ok_Btn);
    EXPECT_EQ(Records(), "5/3/2002=other|6/3/2002=six|");
}

TEST_F(Editor, a_loop_that_ends_unasked_still_offers_the_text) {
    form.Close(); // the program makes a calendar of its own
    Desktop().in_the_loop = [] {
        // The program's own windows: of a kind, the first control with that name.
        const auto send = [](platform::Form_Kind kind, const char *name, Input_Kind input) {
            for (const auto &[model, mirror] : std::map(Desktop().mirrors))
                for (const platform::Control_State *control : model->controls)
                    if (model->kind == kind && control->name == name)
                        return Send(*model, input, *control, "late");
            ADD_FAILURE() << name;
        };
        send(platform::Form_Kind::Painted, "Box_Lbl(9)", Input_Kind::Default_Action);
        send(platform::Form_Kind::Dialog, "Message_Txt", Input_Kind::Text_Changed);
        platform::End_Message_Loop();
    };
    Fakes().Expect_Box(question, Box_Answer::Yes);
    EXPECT_EQ(Run_Program(), 0);
    EXPECT_EQ(Records(), "5/3/2002=late|");
}

TEST_F(Editor, lies_beside_its_box) {
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

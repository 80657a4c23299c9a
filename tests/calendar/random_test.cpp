// Ten thousand random actions on the calendar and its editor without a screen: whatever a user does in
// whatever order, nothing breaks that always holds.
#include "app/program.h"
#include "core/settings.h"
#include "editor/edit_frm.h"
#include "tests/calendar/calendar_test.h"

#include <algorithm>
#include <random>

using platform::Box_Answer;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

class Random_Actions : public Calendar_Test {
protected:
    int Upto(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
    template <typename Choice>
    Choice One_Of(std::initializer_list<Choice> choices) {
        return choices.begin()[Upto(static_cast<int>(choices.size()))];
    }

    void Mouse() {
        const auto kind = One_Of({Input_Kind::Mouse_Down, Input_Kind::Mouse_Up, Input_Kind::Mouse_Up,
                                  Input_Kind::Mouse_Move, Input_Kind::Double_Click});
        const auto button =
            One_Of({Mouse_Button::Left, Mouse_Button::Left, Mouse_Button::Right, Mouse_Button::Middle});
        // The title is small, and much happens there.
        const int height = One_Of({form.Height(), form.Height(), form.Which_Month_Lbl.Height()});
        Desktop().button_held = kind == Input_Kind::Mouse_Down;
        Input(form, {.kind = kind, .point = {Upto(form.Width()), Upto(height)}, .button = button});
    }

    void Time_And_System() {
        if (Upto(3) == 0)
            Fakes().now = {2002, 1 + Upto(12), 1 + Upto(28), Upto(24), Upto(60), 59, 999};
        Desktop().Advance(One_Of({1000U, 61000U}));
        Cur_Settings.Auto_Compact = static_cast<std::int16_t>(Upto(2));
        Cur_Settings.Tooltips = static_cast<std::int16_t>(Upto(3));
        Input(form, {.kind = One_Of(
                         {Input_Kind::Dots_Changed, Input_Kind::Capture_Lost, Input_Kind::Focus_Changed})});
        Desktop().Say(static_cast<platform::Broadcast>(Upto(5)));
    }

    void Act() {
        if (editor.Visible() && Upto(6) == 0)
            Push(editor, *One_Of<Control *>({&editor.Every_Year_Chk, &editor.Cancel_Btn, &editor.Ok_Btn}),
                 Upto(2) == 0);
        else if (editor.Visible() && Upto(5) == 0)
            Enter_Text(editor, editor.Message_Txt, One_Of({"", "a text", "another, = one", "a \"quote\""}));
        else if (Upto(5) == 0)
            Time_And_System();
        else if (Upto(4) == 0)
            Press_Key(form, One_Of({13, 33, 34, 36, 37, 40, 46, 93, 112, 113, 114, 115, 119, 120, 123}));
        else
            Mouse();
    }

    /// What a save wrote is read as it was written, and a save changes one record.
    void Check_File() {
        const auto count = std::count(Data_File().begin(), Data_File().end(), '\n');
        EXPECT_LE(std::abs(count - records_before), Fakes().writes - writes_before);
        records_before = count;
        const std::string bytes = Data_File();
        Event_Store store;
        store.Load_File();
        store.Write_ALL();
        EXPECT_EQ(static_cast<std::ptrdiff_t>(store.Temp_Lst.size()), count);
        EXPECT_EQ(Data_File(), bytes);
        writes_before = Fakes().writes;
    }

    std::mt19937 random{20020305};
    Edit_Frm editor{form};
    int writes_before = 0;
    std::ptrdiff_t records_before = 3;
};

TEST_F(Random_Actions, break_nothing) {
    Events({"5/3/2002=today", "12/4/9999=April", "25/12/9999=December"});
    Fakes().any_box = true;
    Connect_Editor(form, editor);
    Start();
    Desktop().choose = [this](const std::vector<platform::Menu_Item> &) {
        Act(); // time goes on under a menu, and a key may come from elsewhere
        return One_Of({0, 1, 2, 4});
    };
    for (int i = 0; i < 10'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        Desktop().messages.push_back([this] { Mouse(); });
        if (editor.Visible())
            Fakes().Expect_Box("Save changes for the " + editor.Date_Lbl.Caption() + "?",
                               One_Of({Box_Answer::Yes, Box_Answer::No, Box_Answer::Cancel}));
        Act();
        Fakes().expected_boxes.clear();
        if (Fakes().writes != writes_before)
            Check_File();
        EXPECT_EQ(Desktop().mirrors.contains(&editor.Model()), editor.Visible());
        EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip, Seen());
        EXPECT_EQ(Seen().size() == 1, form.Compacted);
        EXPECT_FALSE(form.Compacted && form.Compact_Timer.Enabled());
        EXPECT_EQ(form.Balloon_Showing(), form.Timer2.Enabled());
        EXPECT_TRUE(form.Compacted || Box_Of(1).Caption() == " 1");
    }
    EXPECT_GT(writes_before, 50);
}

} // namespace

// Ten thousand random actions on the calendar without a screen: whatever a user does in whatever order,
// nothing breaks that always holds.
#include "tests/calendar/calendar_test.h"

#include <random>

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
        // The title is small, and much happens there.
        const int height = One_Of({form.Height(), form.Height(), form.Which_Month_Lbl.Height()});
        Desktop().button_held = kind == Input_Kind::Mouse_Down;
        Send(kind, {Upto(form.Width()), Upto(height)},
             One_Of({Mouse_Button::Left, Mouse_Button::Left, Mouse_Button::Right, Mouse_Button::Middle}));
    }

    void Time_And_System() {
        if (Upto(3) == 0)
            Fakes().now = {2002, 1 + Upto(12), 1 + Upto(28), Upto(24), Upto(60), 59, 999};
        Desktop().Advance(One_Of({1000U, 61000U}));
        Cur_Settings.Auto_Compact = static_cast<std::int16_t>(Upto(2));
        Cur_Settings.Tooltips = static_cast<std::int16_t>(Upto(3));
        Send(One_Of({Input_Kind::Dots_Changed, Input_Kind::Capture_Lost, Input_Kind::Focus_Changed}));
        Desktop().Say(static_cast<platform::Broadcast>(Upto(5)));
    }

    void Act() {
        if (Upto(5) == 0)
            Time_And_System();
        else if (Upto(4) == 0)
            Press_Key(form, One_Of({13, 33, 34, 36, 37, 40, 46, 93, 112, 113, 114, 115, 119, 120, 123}));
        else
            Mouse();
    }

    std::mt19937 random{20020305};
};

TEST_F(Random_Actions, break_nothing) {
    Events({"5/3/2002=today", "12/4/9999=April", "25/12/9999=December"});
    Fakes().any_box = true;
    Start();
    Desktop().choose = [this](const std::vector<platform::Menu_Item> &) {
        Act(); // time goes on under a menu, and a key may come from elsewhere
        return One_Of({0, 1, 2, 4});
    };
    for (int i = 0; i < 10'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        Desktop().messages.push_back([this] { Mouse(); });
        Act();
        EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip, Seen());
        EXPECT_EQ(Seen().size() == 1, form.Compacted);
        EXPECT_FALSE(form.Compacted && form.Compact_Timer.Enabled());
        EXPECT_EQ(form.Balloon_Showing(), form.Timer2.Enabled());
        EXPECT_TRUE(form.Compacted || Box_Of(1).Caption() == " 1");
    }
}

} // namespace

// Forms: the mouse and native controls act on controls, controls report changes to the native window, and
// handlers may destroy their own form.
#include "tests/fakes/form_test.h"

#include "toolkit/form.h"
#include "toolkit/timer.h"

#include <memory>
#include <new>

using platform::Aspect;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

/// Two labels that overlap between x = 50 and 100, and native controls.
struct Test_Form : Form {
    Test_Form()
        : Form(platform::Form_Kind::Painted, "Test"), Low(*this, "Low"), High(*this, "High"),
          Ok_Btn(*this, "Ok_Btn", "OK"), Text_Txt(*this, "Text_Txt") {
        Low.Move({0, 0, 100, 100});
        High.Move({50, 0, 100, 100});
        Record(Low);
        Record(High);
        Ok_Btn.On_Click = [this] { log += "clicked; "; };
        Text_Txt.On_Change = [this] { log += Text_Txt.Text() + "; "; };
    }

    void Record(Label &label) {
        const auto logged = [this, &label](const char *what) {
            return [this, &label, what](Mouse_Button, Point at) {
                log += label.Name() + " " + what + " " + std::to_string(at.x) + "; ";
            };
        };
        label.On_Mouse_Down = logged("down");
        label.On_Mouse_Up = logged("up");
        label.On_Mouse_Move = logged("move");
        label.On_Double_Click = [this, &label] { log += label.Name() + " double; "; };
    }

    void Send(Input_Kind kind, int x, Mouse_Button button = Mouse_Button::Left) {
        Input({.kind = kind, .point = {x, 10}, .button = button});
    }

    std::string Taken() { return std::exchange(log, {}); }

    Label Low, High;
    Button Ok_Btn;
    Text_Box Text_Txt;
    std::string log;
};

TEST_F(Form_Test, the_mouse_goes_to_the_topmost_control_and_stays_with_it_until_the_release) {
    Test_Form form;
    form.Send(Input_Kind::Mouse_Down, 60);
    form.Send(Input_Kind::Mouse_Move, 20);
    form.Send(Input_Kind::Mouse_Up, 20);
    form.Send(Input_Kind::Mouse_Move, 20, Mouse_Button::None);
    EXPECT_EQ(form.Taken(), "High down 10; High move -30; High up -30; Low move 20; ");

    // A second button joins the capture, and its release does not end the capture.
    form.Send(Input_Kind::Mouse_Down, 20);
    form.Send(Input_Kind::Mouse_Down, 120, Mouse_Button::Right);
    form.Send(Input_Kind::Mouse_Up, 120, Mouse_Button::Right);
    form.Send(Input_Kind::Mouse_Up, 120);
    form.Send(Input_Kind::Mouse_Up, 20); // its press went elsewhere
    EXPECT_EQ(form.Taken(), "Low down 20; Low down 120; Low up 120; Low up 120; ");

    // If a menu took the release, the next move without a button ends the capture.
    form.Send(Input_Kind::Mouse_Down, 20, Mouse_Button::Right);
    form.Send(Input_Kind::Mouse_Move, 120, Mouse_Button::None);
    form.Send(Input_Kind::Mouse_Down, 120);
    form.Send(Input_Kind::Capture_Lost, 0);
    form.Send(Input_Kind::Mouse_Move, 20);
    form.Send(Input_Kind::Mouse_Up, 20);
    EXPECT_EQ(form.Taken(), "Low down 20; High move 70; High down 70; Low move 20; ");

    Double_Click(form, form.Low);
    form.Send(Input_Kind::Double_Click, 20, Mouse_Button::Right);
    EXPECT_EQ(form.Taken(), "High down 0; High up 0; High double; High up 0; Low down 20; ");

    // Input passes through hidden controls, and disabled ones ignore it.
    form.Send(Input_Kind::Capture_Lost, 0);
    form.High.Set_Visible(false);
    form.Send(Input_Kind::Mouse_Move, 60, Mouse_Button::None);
    form.High.Set_Visible(true);
    form.High.Set_Enabled(false);
    form.Ok_Btn.Set_Enabled(false);
    Click(form, form.High);
    Push(form, form.Ok_Btn);
    EXPECT_EQ(form.Taken(), "Low move 60; ");
}

TEST_F(Form_Test, the_mirror_is_told_of_the_program_s_changes_only_and_only_while_it_exists) {
    Test_Form form;
    form.Clip({{0, 0, 10, 10}});
    form.Show();
    EXPECT_FALSE(Desktop().mirrors.at(&form.Model()).shown_unclipped);
    Desktop().announced.clear();
    Enter_Text(form, form.Text_Txt, "one\r\ntwo\nthree");
    for (int repeated = 0; repeated < 2; ++repeated) {
        form.Text_Txt.Set_Text("after");
        form.Low.Move({0, 0, 10, 10});
        form.Move(5, 5);
        form.Low.Set_Back_Colour(7);
        form.Set_Back_Colour(10);
    }
    form.Set_Focus(form.Ok_Btn);
    form.Close();
    form.Low.Set_Caption("unheard");
    EXPECT_EQ(form.Taken(), "one two three; after; ");
    EXPECT_EQ(Desktop().announced, (std::vector<Announced_Change>{{"Text_Txt", Aspect::Caption},
                                                                  {"Low", Aspect::Bounds},
                                                                  {"", Aspect::Bounds},
                                                                  {"Low", Aspect::Appearance},
                                                                  {"", Aspect::Appearance},
                                                                  {"", Aspect::Focus}}));
}

TEST_F(Form_Test, a_window_that_was_lost_or_refused_is_made_by_the_next_show) {
    Test_Form form;
    Desktop().refuses_windows = true;
    EXPECT_THROW(form.Show(), Error);
    EXPECT_FALSE(form.Visible());
    form.Set_Title("nobody is told");
    Desktop().refuses_windows = false;
    form.Show();
    Desktop().mirrors.clear();
    form.Send(Input_Kind::Window_Lost, 0);
    form.Set_Title("nobody is told now");
    form.Show();
    EXPECT_TRUE(Desktop().mirrors.contains(&form.Model()));
}

TEST_F(Form_Test, a_handler_may_end_its_own_form) {
    for (const Input_Kind kind : {Input_Kind::Mouse_Down, Input_Kind::Close}) {
        auto form = std::make_unique<Test_Form>();
        form->Show();
        form->On_Close = [&form, kept = 100] {
            form.reset();
            EXPECT_EQ(kept, 100); // the running handler still exists
        };
        form->Low.On_Mouse_Down = [&form](Mouse_Button, Point) { Fire(form->On_Close); };
        form->Send(kind, 10);
        EXPECT_TRUE(form == nullptr && Desktop().mirrors.empty());
    }
}

TEST_F(Form_Test, nothing_is_done_beside_a_message_box_and_timers_go_on) {
    Test_Form form;
    form.On_Key_Down = [&form](const auto &) { form.log += "key; "; };
    form.On_Close = [&form] { form.log += "close; "; };
    form.On_Focus_Changed = [&form](bool) { form.log += "focus; "; };
    Timer timer(10);
    timer.On_Timer = [&form] { form.log += "tick; "; };
    timer.Set_Enabled(true);
    const auto act = [&form] {
        Click(form, form.High);
        Push(form, form.Ok_Btn);
        Press_Key(form, 13);
        form.Send(Input_Kind::Focus_Changed, 0);
        form.Send(Input_Kind::Close, 0);
        Desktop().Advance(10);
    };
    Fakes().Expect_Box("Wait", platform::Box_Answer::Ok, act);
    platform::Message_Box("Wait", platform::Box_Icon::None);
    EXPECT_EQ(form.Taken(), "focus; tick; ");
    act();
    EXPECT_EQ(form.Taken(), "High down 50; High up 50; clicked; key; focus; close; tick; ");
}

TEST_F(Form_Test, an_exception_of_a_handler_is_told_and_goes_no_further) {
    constexpr const char *unnamed = "Something went wrong, and the last action was not completed.";
    const std::pair<Handler<>, const char *> rows[] = {
        {[] { throw Error("It broke."); }, "It broke."},
        {[] { throw Error(""); }, unnamed},
        {[] { throw 7; }, unnamed},
        {[] { throw std::bad_alloc(); }, "There is not enough memory for this."},
    };
    for (const auto &[handler, text] : rows) {
        Test_Form form;
        form.On_Close = handler;
        Fakes().Expect_Box(text);
        form.Send(Input_Kind::Close, 0);
    }
}

} // namespace

// What reaches controls from the mouse and from native controls, what reaches the mirror from controls, and
// handlers that end their own form.
#include "tests/fakes/form_test.h"

#include "toolkit/control_array.h"
#include "toolkit/form.h"

#include <memory>

using platform::Aspect;
using platform::Input_Event;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

/// Two labels that overlap between x = 50 and 100.
struct Two_Labels : Form {
    Two_Labels() : Form(platform::Form_Kind::Painted, "Test"), Low(*this, "Low"), High(*this, "High") {
        Low.Move({0, 0, 100, 100});
        High.Move({50, 0, 100, 100});
        Record(Low);
        Record(High);
    }

    void Record(Label &label) {
        label.On_Mouse_Down = [this, &label](Mouse_Button, platform::Point p) { Log(label, "down", p.x); };
        label.On_Mouse_Up = [this, &label](Mouse_Button, platform::Point p) { Log(label, "up", p.x); };
        label.On_Mouse_Move = [this, &label](Mouse_Button, platform::Point p) { Log(label, "move", p.x); };
        label.On_Double_Click = [this, &label] { log += label.Name() + " double; "; };
    }

    void Log(const Label &label, const char *what, int x) {
        log += label.Name() + " " + what + " " + std::to_string(x) + "; ";
    }

    void Mouse(Input_Kind kind, int x, Mouse_Button button = Mouse_Button::Left) {
        Input_Event event{};
        event.kind = kind;
        event.point = {x, 10};
        event.button = button;
        Input(event);
    }

    std::string Taken() { return std::exchange(log, {}); }

    Label Low;
    Label High;
    std::string log;
};

struct Dialog : Form {
    Dialog()
        : Form(platform::Form_Kind::Dialog, "Dialog"), Ok_Btn(*this, "Ok_Btn", "OK"),
          Flag_Chk(*this, "Flag_Chk", "Flag"), Text_Txt(*this, "Text_Txt") {}

    void Native(Input_Kind kind, const Control &control, bool checked = false, std::string text = {}) {
        Input_Event event{};
        event.kind = kind;
        event.control = control.State().index;
        event.checked = checked;
        event.text = std::move(text);
        Model().input(event);
    }

    Button Ok_Btn;
    Check_Box Flag_Chk;
    Text_Box Text_Txt;
};

class Toolkit_Form : public Form_Test {};

TEST_F(Toolkit_Form, the_mouse_goes_to_the_topmost_control_and_stays_with_it_until_the_release) {
    Two_Labels form;
    form.Mouse(Input_Kind::Mouse_Down, 60);
    form.Mouse(Input_Kind::Mouse_Move, 20);
    form.Mouse(Input_Kind::Mouse_Up, 20);
    EXPECT_EQ(form.Taken(), "High down 10; High move -30; High up -30; ");
    form.Mouse(Input_Kind::Mouse_Move, 20, Mouse_Button::None);
    EXPECT_EQ(form.Taken(), "Low move 20; ");

    // The second button joins the capture, and its release does not end it.
    form.Mouse(Input_Kind::Mouse_Down, 20);
    form.Mouse(Input_Kind::Mouse_Down, 120, Mouse_Button::Right);
    form.Mouse(Input_Kind::Mouse_Up, 120, Mouse_Button::Right);
    form.Mouse(Input_Kind::Mouse_Up, 120);
    EXPECT_EQ(form.Taken(), "Low down 20; Low down 120; Low up 120; Low up 120; ");

    form.Mouse(Input_Kind::Mouse_Up, 20);
    EXPECT_EQ(form.Taken(), "") << "a release whose press went elsewhere";

    // A menu swallowed the release: the next move without a button ends the capture.
    form.Mouse(Input_Kind::Mouse_Down, 20, Mouse_Button::Right);
    form.Mouse(Input_Kind::Mouse_Move, 120, Mouse_Button::None);
    form.Mouse(Input_Kind::Mouse_Down, 120);
    EXPECT_EQ(form.Taken(), "Low down 20; High move 70; High down 70; ");

    int lost = 0;
    form.On_Capture_Lost = [&lost] { ++lost; };
    form.Mouse(Input_Kind::Capture_Lost, 0);
    form.Mouse(Input_Kind::Mouse_Move, 20);
    form.Mouse(Input_Kind::Mouse_Up, 20);
    EXPECT_EQ(form.Taken(), "Low move 20; ");
    EXPECT_EQ(lost, 1);
}

TEST_F(Toolkit_Form, a_double_click_is_down_up_double_up) {
    Two_Labels form;
    Double_Click(form, form.Low);
    EXPECT_EQ(form.Taken(), "High down 0; High up 0; High double; High up 0; ");
    form.Mouse(Input_Kind::Double_Click, 20, Mouse_Button::Right);
    EXPECT_EQ(form.Taken(), "Low down 20; ");
}

TEST_F(Toolkit_Form, hidden_controls_are_looked_through_and_disabled_ones_take_nothing) {
    Two_Labels form;
    form.High.Set_Visible(false);
    form.Mouse(Input_Kind::Mouse_Move, 60, Mouse_Button::None);
    EXPECT_EQ(form.Taken(), "Low move 60; ");
    form.High.Set_Visible(true);
    form.High.Set_Enabled(false);
    form.Mouse(Input_Kind::Mouse_Down, 60);
    form.Mouse(Input_Kind::Mouse_Up, 60);
    EXPECT_EQ(form.Taken(), "");

    Dialog dialog;
    int clicks = 0;
    dialog.Ok_Btn.On_Click = [&] { ++clicks; };
    dialog.Native(Input_Kind::Clicked, dialog.Ok_Btn);
    dialog.Ok_Btn.Set_Enabled(false);
    dialog.Native(Input_Kind::Clicked, dialog.Ok_Btn);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Toolkit_Form, native_input_changes_the_state_before_the_event_and_is_not_told_back) {
    Dialog dialog;
    dialog.Show();
    bool checked_in_event = false;
    int changes = 0;
    dialog.Flag_Chk.On_Click = [&] { checked_in_event = dialog.Flag_Chk.Checked(); };
    dialog.Text_Txt.On_Change = [&] { ++changes; };
    dialog.Native(Input_Kind::Clicked, dialog.Flag_Chk, true);
    dialog.Native(Input_Kind::Text_Changed, dialog.Text_Txt, false, "one\r\ntwo\nthree");
    EXPECT_TRUE(checked_in_event);
    EXPECT_EQ(dialog.Text_Txt.Text(), "one two three");
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(Desktop().told.empty());

    dialog.Text_Txt.Set_Text("four");
    dialog.Text_Txt.Set_Text("four");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(Desktop().told, (std::vector<Told_Change>{{"Text_Txt", Aspect::Caption}}));
}

TEST_F(Toolkit_Form, the_mirror_is_told_of_changes_only_and_only_while_it_exists) {
    Two_Labels form;
    form.Low.Set_Caption("before");
    form.Clip({{0, 0, 10, 10}});
    form.Show();
    EXPECT_FALSE(Desktop().mirrors.at(&form.Model()).shown_unclipped);
    EXPECT_TRUE(Desktop().mirrors.at(&form.Model()).shown);
    Desktop().told.clear();

    form.Low.Set_Caption("before");
    form.Low.Move(form.Low.Bounds());
    form.Low.Set_Visible(true);
    form.Low.Set_Align(platform::Text_Align::Left, false);
    form.Move(0, 0);
    form.Set_Back_Colour(form.Back_Colour());
    EXPECT_TRUE(Desktop().told.empty());

    form.Low.Set_Caption("after");
    form.Low.Move({0, 0, 10, 10});
    form.High.Set_Visible(false);
    form.High.Set_Caption("unseen");
    form.Move(5, 5);
    EXPECT_EQ(Desktop().told, (std::vector<Told_Change>{{"Low", Aspect::Caption},
                                                        {"Low", Aspect::Bounds},
                                                        {"High", Aspect::Visible},
                                                        {"", Aspect::Bounds}}));
    form.Close();
    form.Low.Set_Caption("unheard");
    EXPECT_EQ(Desktop().told.size(), 4U);
}

TEST_F(Toolkit_Form, a_lost_window_is_made_anew_by_the_next_show) {
    Two_Labels form;
    bool lost = false;
    form.On_Window_Lost = [&] { lost = true; };
    form.Show();
    Desktop().mirrors.clear();
    Input_Event event{};
    event.kind = Input_Kind::Window_Lost;
    form.Input(event);
    form.Low.Set_Caption("nobody is told");
    EXPECT_TRUE(lost);
    form.Show();
    EXPECT_TRUE(Desktop().mirrors.contains(&form.Model()));
}

TEST_F(Toolkit_Form, a_form_without_the_window_that_it_asked_for_is_as_before) {
    Two_Labels form;
    Desktop().refuses_windows = true;
    EXPECT_THROW(form.Show(), std::runtime_error);
    EXPECT_FALSE(form.Visible());
    form.Set_Title("changed");
    Desktop().refuses_windows = false;
    form.Show();
    EXPECT_TRUE(Desktop().mirrors.at(&form.Model()).shown);
}

TEST_F(Toolkit_Form, a_handler_may_end_its_own_form) {
    auto form = std::make_unique<Two_Labels>();
    form->Show();
    form->Low.On_Mouse_Down = [&form, kept = std::string(100, 'x')](Mouse_Button, platform::Point) {
        form.reset();
        EXPECT_EQ(kept.size(), 100U); // the running handler itself is still whole
    };
    form->Mouse(Input_Kind::Mouse_Down, 10);
    EXPECT_EQ(form, nullptr);
    EXPECT_TRUE(Desktop().mirrors.empty());

    auto dialog = std::make_unique<Dialog>();
    dialog->Show();
    dialog->On_Close = [&dialog] { dialog.reset(); };
    Input_Event event{};
    event.kind = Input_Kind::Close;
    dialog->Input(event);
    EXPECT_TRUE(Desktop().mirrors.empty());
}

TEST_F(Toolkit_Form, an_exception_of_a_handler_is_told_and_goes_no_further) {
    Two_Labels form;
    form.Low.On_Mouse_Down = [](Mouse_Button, platform::Point) { throw std::runtime_error("It broke."); };
    form.High.On_Mouse_Down = [](Mouse_Button, platform::Point) { throw 7; };
    Fakes().Expect_Box("It broke.");
    form.Mouse(Input_Kind::Mouse_Down, 10);
    Fakes().Expect_Box("Something went wrong, and the last action was not completed.");
    form.Mouse(Input_Kind::Mouse_Down, 110);
    EXPECT_EQ(Fakes().boxes.at(0).title, "Vellatro");
    EXPECT_EQ(Fakes().boxes.at(0).icon, platform::Box_Icon::Stop);
}

TEST_F(Toolkit_Form, elements_of_a_control_array_are_named_and_ordered_by_their_index) {
    struct Array_Form : Form {
        Array_Form() : Form(platform::Form_Kind::Painted, "Array"), Box_Lbl(*this, "Box_Lbl") {}
        Control_Array<Label, 3> Box_Lbl;
    } form;
    ASSERT_EQ(form.Model().controls.size(), 3U);
    EXPECT_EQ(form.Model().controls[2]->name, "Box_Lbl(2)");
    EXPECT_EQ(&form.Box_Lbl[2].State(), form.Model().controls[2]);
    EXPECT_EQ(form.Box_Lbl[2].State().index, 2);
    EXPECT_THROW(form.Box_Lbl[3], std::out_of_range);
    EXPECT_THROW(form.Box_Lbl[-1], std::out_of_range);
}

} // namespace

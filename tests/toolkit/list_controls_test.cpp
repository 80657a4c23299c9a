// Controls of dialogs: combo boxes, frames and painted controls.
#include "tests/fakes/form_test.h"
#include "toolkit/form.h"
#include "toolkit/list_controls.h"

using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

struct Dialog : Form {
    Dialog() : Form(platform::Form_Kind::Dialog, "Dialog") {
        for (Control *control : Controls())
            control->On_Click = [this, control] { heard += control->Name() + " "; };
        box.On_Change = [this] { heard += "box=" + box.Text() + " "; };
        picture.Move({0, 0, 300, 300});
    }
    std::string heard;
    Frame outer{*this, "outer"};
    Combo_Box box{outer, "box"};
    Frame inner{outer, "inner"};
    Option_Button option{inner, "option"};
    List_Box list{inner, "list"};
    Picture_Box picture{inner, "picture"};
};

struct List_Controls : Form_Test {
    Dialog form;
};

TEST_F(List_Controls, a_combo_box_keeps_text_and_item_together) {
    for (const bool editable : {false, true}) {
        Dialog dialog;
        if (editable)
            dialog.box.Set_Editable();
        dialog.box.Set_Items({"a", "b", "c"});
        const auto is = [&](const std::string &text, int selected) {
            return dialog.box.Text() == text && dialog.box.Selected() == selected;
        };
        dialog.box.Set_Text("b");
        EXPECT_TRUE(is("b", 1));
        dialog.box.Set_Text("other");
        EXPECT_TRUE(editable ? is("other", -1) : is("b", 1));
        EXPECT_EQ(dialog.heard, "");
        Choose(dialog, dialog.box, 2);
        EXPECT_TRUE(is("c", 2));
        Choose(dialog, dialog.box, 3); // beyond the last item
        Enter_Text(dialog, dialog.box, "a");
        EXPECT_TRUE(editable ? is("a", -1) : is("c", 2));
        EXPECT_EQ(dialog.heard, editable ? "box box=a " : "box ");
        dialog.box.Set_Items({"x"});
        EXPECT_TRUE(is(editable ? "a" : "", -1));
    }
}

TEST_F(List_Controls, hidden_and_disabled_frames_take_nothing_for_what_they_hold) {
    form.list.Set_Items({"a", "b"});
    const auto use = [this] {
        form.heard.clear();
        Push(form, form.option, true);
        Choose(form, form.list, 1);
        Click(form, form.picture);
        return form.heard;
    };
    EXPECT_EQ(use(), "option list picture ");
    for (Frame *frame : {&form.outer, &form.inner})
        for (const bool hidden : {false, true}) {
            frame->Set_Visible(!hidden);
            frame->Set_Enabled(hidden);
            EXPECT_EQ(use(), "");
            frame->Set_Visible(true);
            frame->Set_Enabled(true);
        }
}

TEST_F(List_Controls, a_painted_control_shows_its_picture_whole_and_is_clicked_by_a_release_inside) {
    for (const Point point : {Point{0, 0}, {299, 299}, {300, 10}, {-1, 10}, {10, 10}}) {
        if (point.x != 10) // the last release is without a press
            Press(form, form.picture);
        Input(form, {.kind = Input_Kind::Mouse_Up, .point = point, .button = Mouse_Button::Left},
              &form.picture);
    }
    Click(form, form.picture, Mouse_Button::Right);
    EXPECT_EQ(form.heard, "picture picture ");
    for (const auto &[size, place] :
         {std::pair(Size{20, 10}, Rect{0, 75, 300, 150}), {Size{10, 30}, Rect{100, 0, 100, 300}}}) {
        platform::Canvas canvas;
        form.picture.Set_Picture({size.width, size.height, {}});
        form.picture.State().paint(canvas, {0, 0, 300, 300});
        EXPECT_EQ(canvas.operations.back().rect, place) << "the whole picture, in the middle";
    }
}

} // namespace

// The controls of larger dialogs: option buttons, lists, tabs, sliders, frames, pictures and progress bars.
// The simple ones are in control.h.
#pragma once

#include "platform/pictures.h"
#include "toolkit/control.h"

#include <string>
#include <string_view>
#include <vector>

/// Holds other controls, which are made in it: they move, hide and are disabled with it. With a caption it is
/// drawn as a box around them.
class Frame : public Control_Of_Kind<platform::Control_Kind::Frame> {
public:
    using Control_Of_Kind::Control_Of_Kind;
};

/// One of several choices: of all the option buttons in one frame (or on the form itself) at most one is
/// checked.
class Option_Button : public Control_Of_Kind<platform::Control_Kind::Option_Button> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    bool Checked() const { return state_.checked; }
    /// Checking one unchecks the others.
    void Set_Checked(bool checked);

private:
    void Handle_Event(const platform::Input_Event &event) override;
    void Uncheck_Others();
};

/// What combo boxes, list boxes and tab strips have in common: items, of which one can be selected.
class Item_Control : public Control {
public:
    const std::vector<std::string> &Items() const { return state_.items; }
    /// Replaces all items; none is selected then.
    void Set_Items(std::vector<std::string> items);
    /// Index of the selected item, -1: none.
    int Selected() const { return state_.selected; }
    /// Selects an item; -1, or an index beyond them, selects none.
    void Select(int index);

protected:
    using Control::Control;
    void Handle_Event(const platform::Input_Event &event) override;
};

/// A drop-down list whose text is the selected item's, or an editable one, whose text can be any.
class Combo_Box : public Control_Of_Kind<platform::Control_Kind::Combo_Box, Item_Control> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    /// Any text can be typed. To be called before there is a native window.
    void Set_Editable();
    const std::string &Text() const { return state_.caption; }
    /// Selects the item that has this text. Where there is none, an editable combo box shows the text with no
    /// item selected, and another one stays as it is.
    void Set_Text(const std::string &text);
    /// The user typed. Choosing an item is On_Click.
    Handler<> On_Change;

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

/// A list with one column. `On_Click` comes with every selection by the user, by mouse or keyboard.
class List_Box : public Control_Of_Kind<platform::Control_Kind::List_Box, Item_Control> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    void Remove_Item(int index);

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

/// Tabs above pages that the form shows and hides by itself. `On_Click` comes with every change by the user.
class Tab_Strip : public Control_Of_Kind<platform::Control_Kind::Tab_Strip, Item_Control> {
public:
    using Control_Of_Kind::Control_Of_Kind;
};

/// A slider over whole numbers, with a mark for each.
class Slider : public Control {
public:
    Slider(Container in, const char *name, int minimum, int maximum);
    int Value() const { return state_.value; }
    /// Takes the nearest value within the range.
    void Set_Value(int value);
    /// The text that floats beside the thumb while it is moved.
    void Set_Text(std::string_view text) { Set_Caption(text); }
    Handler<> On_Change; ///< the user left it at another value
    Handler<> On_Scroll; ///< the user is moving it

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

/// A box that paints itself: its background, its picture if it has one, fitted in whole and centred, and what
/// On_Paint adds.
class Picture_Box : public Control {
public:
    Picture_Box(Container in, const char *name);
    /// A picture with the width 0 is none.
    void Set_Picture(Picture picture);
    /// Makes the keyboard reach it: it gets On_Key_Down, and the space bar clicks it. So does Enter, where
    /// there is a default action and no other On_Key_Down. Before there is a native window.
    void Set_Tab_Stop();
    /// Gives it the pointer of a link.
    void Set_Link() { state_.link = true; }
    /// Paints it anew: what On_Paint draws has changed.
    void Repaint() { Notify_Mirror(platform::Aspect::Look); }
    /// Paints on the background and the picture, in twips from the top left corner of the box.
    Handler<platform::Canvas &> On_Paint;

private:
    void Paint_Content(platform::Canvas &canvas) const;

    Picture picture_;
};

/// How far a long piece of work has come.
class Progress_Bar : public Control_Of_Kind<platform::Control_Kind::Progress_Bar> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    /// Per cent, 0 to 100.
    void Set_Value(int value);
};

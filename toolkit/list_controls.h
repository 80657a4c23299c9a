// The controls of larger dialogs: option buttons, lists, tabs, sliders, frames, pictures and progress bars.
// control.h has the simple ones.
#pragma once

#include "platform/pictures.h"
#include "toolkit/control.h"

#include <string>
#include <string_view>
#include <vector>

/// A container for other controls. It moves, hides and disables them with itself. A frame with a caption
/// looks like a group box.
class Frame : public Control_Of_Kind<platform::Control_Kind::Frame> {
public:
    using Control_Of_Kind::Control_Of_Kind;
};

/// An option button (radio button): at most one is checked in each frame, and at most one on the form
/// itself.
class Option_Button : public Control_Of_Kind<platform::Control_Kind::Option_Button> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    bool Checked() const { return state_.checked; }
    /// Checks or unchecks the button. Checking the button unchecks the others in its container.
    void Set_Checked(bool checked);

private:
    void Handle_Event(const platform::Input_Event &event) override;
    void Uncheck_Others();
};

/// The common base of combo boxes, list boxes and tab strips: a list of items with at most one selected.
class Item_Control : public Control {
public:
    const std::vector<std::string> &Items() const { return state_.items; }
    /// Replaces all items and selects none.
    void Set_Items(std::vector<std::string> items);
    /// Returns the index of the selected item, or -1.
    int Selected() const { return state_.selected; }
    /// Selects an item. -1 or an index out of range selects none.
    void Select(int index);

protected:
    using Control::Control;
    void Handle_Event(const platform::Input_Event &event) override;
};

/// A drop-down list. Its text is that of the selected item or, in an editable combo box, any typed text.
class Combo_Box : public Control_Of_Kind<platform::Control_Kind::Combo_Box, Item_Control> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    /// Lets the user type any text. Call this before the native window is created.
    void Set_Editable();
    const std::string &Text() const { return state_.caption; }
    /// Selects the item with this text. If there is no such item, an editable combo box shows the text and
    /// selects no item, and any other combo box stays unchanged.
    void Set_Text(const std::string &text);
    /// The user typed a text. Choosing an item raises On_Click instead.
    Handler<> On_Change;

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

/// A list with one column. Each selection by the user, with mouse or keyboard, raises `On_Click`.
class List_Box : public Control_Of_Kind<platform::Control_Kind::List_Box, Item_Control> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    void Remove_Item(int index);

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

/// Tabs above pages. The form itself shows and hides the pages. Each selection by the user raises
/// `On_Click`.
class Tab_Strip : public Control_Of_Kind<platform::Control_Kind::Tab_Strip, Item_Control> {
public:
    using Control_Of_Kind::Control_Of_Kind;
};

/// A slider for whole numbers, with a tick mark for each number. The initial value is the minimum.
class Slider : public Control {
public:
    Slider(Container in, const char *name, int minimum, int maximum);
    int Value() const { return state_.value; }
    /// Sets the value, clamped to the slider's range.
    void Set_Value(int value);
    /// Sets the text that floats above the thumb during a move.
    void Set_Text(std::string_view text) { Set_Caption(text); }
    Handler<> On_Change; ///< the user finished a move at a new value
    Handler<> On_Scroll; ///< the user is moving the thumb

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

/// A box that paints itself: its background, its picture fitted and centred, and the output of On_Paint on
/// top.
class Picture_Box : public Control {
public:
    Picture_Box(Container in, const char *name);
    /// Sets the picture. A picture of width 0 removes the old one.
    void Set_Picture(Picture picture);
    /// Adds the box to the tab order and lets it raise On_Key_Down. The space bar clicks the box. So does
    /// Enter if the box has a default action and nothing replaces its On_Key_Down. Call this before the
    /// native window is created.
    void Set_Tab_Stop();
    /// Gives the box the hand pointer of a link.
    void Set_Link() { state_.link = true; }
    /// Repaints the box after a change in the output of On_Paint.
    void Repaint() { Notify_Mirror(platform::Aspect::Appearance); }
    /// Paints on top of the background and the picture, in twips from the top left corner of the box.
    Handler<platform::Canvas &> On_Paint;

private:
    void Paint_Content(platform::Canvas &canvas) const;

    Picture picture_;
};

/// A bar that shows the progress of a long task.
class Progress_Bar : public Control_Of_Kind<platform::Control_Kind::Progress_Bar> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    /// Sets the progress in per cent, 0 to 100.
    void Set_Value(int value);
};

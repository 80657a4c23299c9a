// The controls of forms: plain objects that hold their own state and tell the form's mirror when it changes.
// What a user does with a control arrives at its form (toolkit/form.h), which calls the events here.
#pragma once

#include "platform/forms.h"

#include <functional>
#include <string>

class Form;

/// A place, a look and events. Positions and sizes are twips on the form.
class Control {
public:
    Control(Form &form, platform::Control_Kind kind, std::string name);
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;
    /// Takes the form's native window down: it must not outlive the controls that it mirrors.
    ~Control();

    const platform::Control_State &State() const { return state_; }
    const std::string &Name() const { return state_.name; }

    int Left() const { return state_.bounds.left; }
    int Top() const { return state_.bounds.top; }
    int Width() const { return state_.bounds.width; }
    int Height() const { return state_.bounds.height; }
    const platform::Rect &Bounds() const { return state_.bounds; }
    void Move(const platform::Rect &bounds);

    bool Visible() const { return state_.visible; }
    void Set_Visible(bool visible);
    bool Enabled() const { return state_.enabled; }
    void Set_Enabled(bool enabled);
    const std::string &Caption() const { return state_.caption; }
    void Set_Caption(std::string caption);
    const std::string &Tooltip() const { return state_.tooltip; }
    void Set_Tooltip(std::string tooltip);
    platform::Colour Fore_Colour() const { return state_.fore_colour; }
    void Set_Fore_Colour(platform::Colour colour);
    platform::Colour Back_Colour() const { return state_.back_colour; }
    void Set_Back_Colour(platform::Colour colour);
    /// -1 takes the frame away.
    void Set_Frame_Colour(platform::Colour colour);
    /// The mark of the keyboard focus.
    void Set_Marked(bool marked);
    const platform::Font &Font() const { return state_.font; }
    void Set_Font(const platform::Font &font);
    void Set_Transparent(bool transparent);
    void Set_Align(platform::Text_Align align, bool middle);
    void Set_Padding(int twips);
    void Set_Glyph(platform::Glyph glyph);
    const platform::Access_State &Access() const { return state_.access; }
    void Set_Access(platform::Access_State access);

    // Events. The point is relative to the control's top left corner.
    std::function<void(platform::Mouse_Button, platform::Point)> On_Mouse_Down;
    std::function<void(platform::Mouse_Button, platform::Point)> On_Mouse_Up;
    std::function<void(platform::Mouse_Button, platform::Point)> On_Mouse_Move;
    std::function<void()> On_Double_Click;
    std::function<void()> On_Default_Action;

protected:
    /// Stores `value` in `field` and tells the mirror, if that is a change. Returns whether it was.
    template <typename T>
    bool Store(T &field, T value, platform::Aspect aspect) {
        if (field == value)
            return false;
        field = std::move(value);
        Tell(aspect);
        return true;
    }
    void Tell(platform::Aspect aspect);

    platform::Control_State state_;

private:
    friend class Form;
    Form &form_;
};

/// A text, or in a painted form a box of colour with a text.
class Label : public Control {
public:
    Label(Form &form, std::string name);
};

/// A push button. `On_Click` comes from the mouse, the keyboard, the access key, and Enter or Esc where it
/// stands for them.
class Button : public Control {
public:
    Button(Form &form, std::string name, std::string caption);
    void Set_Default(bool is_default);
    void Set_Cancel(bool is_cancel);
    std::function<void()> On_Click;
};

class Check_Box : public Control {
public:
    Check_Box(Form &form, std::string name, std::string caption);
    bool Checked() const { return state_.checked; }
    void Set_Checked(bool checked);
    std::function<void()> On_Click;

private:
    friend class Form;
};

/// A text box of several wrapped lines that holds no line break: a pasted one becomes a blank.
class Text_Box : public Control {
public:
    Text_Box(Form &form, std::string name);
    const std::string &Text() const { return state_.caption; }
    void Set_Text(std::string text);
    /// Every change of the text, by the user or by Set_Text.
    std::function<void()> On_Change;

private:
    friend class Form;
};

// The controls of forms: plain objects that hold their own state and tell the form's mirror when it changes.
// What a user does with a control arrives at its form (toolkit/form.h), which calls the events here.
#pragma once

#include "platform/forms.h"
#include "toolkit/handler.h"

#include <string>
#include <string_view>
#include <utility>

class Form;
class Frame;

/// Where a control is made: on a form, or in a frame on one.
struct Container {
    Container(Form &on) : form(on) {}
    Container(const Frame &in);
    Form &form;
    int frame = -1; ///< its index; -1: none
};

/// A place, a look and events. Positions and sizes are twips on the form, or on the frame that holds it. What
/// the program itself changes raises no event, except the change of a text box.
class Control {
public:
    /// Comes behind all controls that its form has, also in the order of the Tab key.
    Control(Container in, platform::Control_Kind kind, const char *name, const char *caption = "");
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;
    /// Takes the form's native window down: it must not outlive the controls that it mirrors.
    virtual ~Control();

    const platform::Control_State &State() const { return state_; }
    const std::string &Name() const { return state_.name; }
    Form &Owner() const { return form_; }

    int Left() const { return state_.bounds.left; }
    int Top() const { return state_.bounds.top; }
    int Width() const { return state_.bounds.width; }
    int Height() const { return state_.bounds.height; }
    const Rect &Bounds() const { return state_.bounds; }
    void Move(const Rect &bounds);

    bool Visible() const { return state_.visible; }
    void Set_Visible(bool visible) { Store(state_.visible, visible, Aspect::Visible); }
    bool Enabled() const { return state_.enabled; }
    void Set_Enabled(bool enabled) { Store(state_.enabled, enabled, Aspect::Enabled); }
    const std::string &Caption() const { return state_.caption; }
    void Set_Caption(std::string_view caption) { Store(state_.caption, caption, Aspect::Caption); }
    const std::string &Tooltip() const { return state_.tooltip; }
    void Set_Tooltip(std::string_view tooltip) { Store(state_.tooltip, tooltip, Aspect::Tooltip); }
    Colour Fore_Colour() const { return state_.fore_colour; }
    void Set_Fore_Colour(Colour colour) { Store(state_.fore_colour, colour, Aspect::Look); }
    Colour Back_Colour() const { return state_.back_colour; }
    void Set_Back_Colour(Colour colour) { Store(state_.back_colour, colour, Aspect::Look); }
    /// -1 takes the frame away.
    void Set_Frame_Colour(Colour colour) { Store(state_.frame_colour, colour, Aspect::Look); }
    /// The mark of the keyboard focus.
    void Set_Marked(bool marked) { Store(state_.marked, marked, Aspect::Look); }
    /// A hairline inside the edges, for a box that stands on a picture of any colour. A frame and a mark
    /// cover it.
    void Set_Hairline(bool hairline) { Store(state_.hairline, hairline, Aspect::Look); }
    const platform::Font &Font() const { return state_.font; }
    void Set_Font(const platform::Font &font) { Store(state_.font, font, Aspect::Look); }
    void Set_Transparent(bool transparent) { Store(state_.transparent, transparent, Aspect::Look); }
    void Set_Align(platform::Text_Align align, bool middle);
    void Set_Padding(int twips) { Store(state_.padding, twips, Aspect::Look); }
    void Set_Glyph(platform::Glyph glyph) { Store(state_.glyph, glyph, Aspect::Look); }
    const platform::Access_State &Access() const { return state_.access; }
    void Set_Access(platform::Access_State access);

    // Events. The point is relative to the control's top left corner.
    /// A button of any kind pressed, a painted control clicked with the left button. The second click of a
    /// double click is one too, where there is no On_Double_Click.
    Handler<> On_Click;
    Handler<platform::Mouse_Button, Point> On_Mouse_Down;
    Handler<platform::Mouse_Button, Point> On_Mouse_Up;
    Handler<platform::Mouse_Button, Point> On_Mouse_Move;
    Handler<> On_Double_Click;
    Handler<> On_Default_Action;
    /// A key while a control of a dialog has the keyboard.
    Handler<const platform::Input_Event &> On_Key_Down;

    /// Takes what a native control tells of; the point where the kinds of controls differ. The handler may
    /// end the form: it comes last.
    virtual void Handle_Event(const platform::Input_Event &event);

protected:
    using Aspect = platform::Aspect;

    /// Stores `value` in `field` and tells the mirror, if that is a change. Returns whether it was.
    template <typename Field, typename Value>
    bool Store(Field &field, Value &&value, Aspect aspect) {
        if (field == value)
            return false;
        field = std::forward<Value>(value);
        Notify_Mirror(aspect);
        return true;
    }
    void Notify_Mirror(Aspect aspect);

    platform::Control_State state_;

    Form &form_;
};

/// What all kinds have in common: a container, a name and a caption make one.
template <platform::Control_Kind Kind, typename Base = Control>
class Control_Of_Kind : public Base {
public:
    explicit Control_Of_Kind(Container in, const char *name, const char *caption = "")
        : Base(in, Kind, name, caption) {}
};

/// A text, or in a painted form a box of colour with a text.
class Label : public Control_Of_Kind<platform::Control_Kind::Label> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    /// In a dialog: draws itself as a painted form draws its labels, and takes the mouse.
    void Set_Painted();
};

/// A push button. `On_Click` comes from the mouse, the keyboard, the access key, and Enter or Esc where it
/// stands for them.
class Button : public Control_Of_Kind<platform::Control_Kind::Button> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    void Set_Default(bool is_default) { Store(state_.is_default, is_default, Aspect::Look); }
    void Set_Cancel(bool is_cancel) { Store(state_.is_cancel, is_cancel, Aspect::Look); }
    /// Esc, where it stands for the button. Empty: `On_Click` comes then, too.
    Handler<> On_Escape;

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

class Check_Box : public Control_Of_Kind<platform::Control_Kind::Check_Box> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    bool Checked() const { return state_.checked; }
    void Set_Checked(bool checked) { Store(state_.checked, checked, Aspect::Checked); }

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

/// A text box that holds no line break: a pasted one becomes a blank.
class Text_Box : public Control_Of_Kind<platform::Control_Kind::Text_Box> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    const std::string &Text() const { return state_.caption; }
    void Set_Text(std::string text);
    /// One line in place of several wrapped ones, to be read and copied only. Before there is a native
    /// window.
    void Set_Display_Only();
    /// Every change of the text, by the user or by Set_Text.
    Handler<> On_Change;

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

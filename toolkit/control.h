// The controls of forms: plain objects that hold their own state and report its changes to the form's
// mirror. User actions arrive at the form (toolkit/form.h), which raises the controls' events.
#pragma once

#include "platform/forms.h"
#include "toolkit/handler.h"

#include <string>
#include <string_view>
#include <utility>

class Form;
class Frame;

/// The place where a control is created: a form, or a frame on a form.
struct Container {
    Container(Form &on) : form(on) {}
    Container(const Frame &in);
    Form &form;
    int frame = -1; ///< index of the frame; -1: none
};

/// A control: bounds, appearance and events. Bounds are in twips, relative to the form or to the containing
/// frame. A change by the program raises no event, except a change to a text box's text.
class Control {
public:
    /// Adds the control to its form, last in paint and tab order.
    Control(Container in, platform::Control_Kind kind, const char *name, const char *caption = "");
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;
    /// Closes the form's native window, which must not outlive the controls it mirrors.
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
    void Set_Fore_Colour(Colour colour) { Store(state_.fore_colour, colour, Aspect::Appearance); }
    Colour Back_Colour() const { return state_.back_colour; }
    void Set_Back_Colour(Colour colour) { Store(state_.back_colour, colour, Aspect::Appearance); }
    /// Sets the colour of the frame; -1 removes the frame.
    void Set_Frame_Colour(Colour colour) { Store(state_.frame_colour, colour, Aspect::Appearance); }
    /// Shows or hides the mark of the keyboard focus.
    void Set_Marked(bool marked) { Store(state_.marked, marked, Aspect::Appearance); }
    /// Shows or hides a hairline inside the edges. It sets the box off against a picture of any colour. A
    /// frame replaces the hairline, and a focus mark covers it.
    void Set_Hairline(bool hairline) { Store(state_.hairline, hairline, Aspect::Appearance); }
    const platform::Font &Font() const { return state_.font; }
    void Set_Font(const platform::Font &font) { Store(state_.font, font, Aspect::Appearance); }
    void Set_Transparent(bool transparent) { Store(state_.transparent, transparent, Aspect::Appearance); }
    void Set_Align(platform::Text_Align align, bool centre_vertically);
    void Set_Padding(int twips) { Store(state_.padding, twips, Aspect::Appearance); }
    void Set_Glyph(platform::Glyph glyph) { Store(state_.glyph, glyph, Aspect::Appearance); }
    const platform::Access_State &Access() const { return state_.access; }
    void Set_Access(platform::Access_State access);

    // Events. Points are relative to the control's top left corner.
    /// The user pressed a button of any kind, clicked a painted control with the left mouse button, or chose
    /// an item. If On_Double_Click is empty, the second click of a double click counts as well.
    Handler<> On_Click;
    Handler<platform::Mouse_Button, Point> On_Mouse_Down;
    Handler<platform::Mouse_Button, Point> On_Mouse_Up;
    Handler<platform::Mouse_Button, Point> On_Mouse_Move;
    Handler<> On_Double_Click;
    Handler<> On_Default_Action;
    /// The user pressed a key while this control of a dialog had the focus. If empty, the form raises its
    /// own On_Key_Down.
    Handler<const platform::Input_Event &> On_Key_Down;

    /// Handles an event of the native control. Overrides must call the event's handler last, because it may
    /// destroy the form.
    virtual void Handle_Event(const platform::Input_Event &event);

protected:
    using Aspect = platform::Aspect;

    /// Assigns `value` to `field` and reports the change to the mirror. Does nothing if the values are
    /// equal. Returns whether the field changed.
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

/// The base of the controls that need no constructor arguments besides container, name and caption.
template <platform::Control_Kind Kind, typename Base = Control>
class Control_Of_Kind : public Base {
public:
    explicit Control_Of_Kind(Container in, const char *name, const char *caption = "")
        : Base(in, Kind, name, caption) {}
};

/// A text; in a painted form, a text in a coloured box.
class Label : public Control_Of_Kind<platform::Control_Kind::Label> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    /// Makes a label in a dialog draw itself as in a painted form and receive mouse events.
    void Set_Painted();
};

/// A push button. The mouse, the keyboard and the access key raise `On_Click`. So do Enter for a default
/// button and Esc for a cancel button.
class Button : public Control_Of_Kind<platform::Control_Kind::Button> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    void Set_Default(bool is_default) { Store(state_.is_default, is_default, Aspect::Appearance); }
    void Set_Cancel(bool is_cancel) { Store(state_.is_cancel, is_cancel, Aspect::Appearance); }
    /// The user pressed Esc, and this is the cancel button. If empty, Esc raises `On_Click`.
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

/// A text box without line breaks: a pasted line break becomes a blank.
class Text_Box : public Control_Of_Kind<platform::Control_Kind::Text_Box> {
public:
    using Control_Of_Kind::Control_Of_Kind;
    const std::string &Text() const { return state_.caption; }
    void Set_Text(std::string text);
    /// Makes the box read-only, with a single line instead of wrapped lines. Call this before the native
    /// window is created.
    void Set_Display_Only();
    /// The user or Set_Text changed the text.
    Handler<> On_Change;

private:
    void Handle_Event(const platform::Input_Event &event) override;
};

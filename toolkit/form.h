// A form: a window with its controls, whose native window only mirrors it. Every user action enters through
// Input.
#pragma once

#include "platform/forms.h"
#include "toolkit/control.h"

#include <optional>
#include <string>
#include <vector>

/// Base of all windows of the program. A form's controls are its direct members, registered in the order in
/// which they are declared, which is the paint and tab order.
class Form {
public:
    Form(platform::Form_Kind kind, const char *name);
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;
    virtual ~Form();

    const platform::Form_Model &Model() const { return model_; }

    // Place on the screen, also where others have moved the window, and size, in twips.
    int Left() const { return Corner().x; }
    int Top() const { return Corner().y; }
    int Width() const { return model_.bounds.width; }
    int Height() const { return model_.bounds.height; }
    void Move(int left, int top);
    /// Returns where the form itself put its window last.
    Point Requested_Position() const { return {model_.bounds.left, model_.bounds.top}; }
    /// Brings a window that others have moved back there. One that does not come is left where it is until it
    /// is moved again.
    void Restore_Position();
    void Resize(int width, int height);

    bool Visible() const { return model_.visible; }
    /// Makes the native window, hidden, for who has to prepare it before it appears.
    void Create();
    /// Makes the native window, if there is none.
    void Show();
    /// Takes the native window down; the form's state stays.
    void Close();
    void Set_Title(std::string_view title);
    /// For assistive technology, which asks when it comes to the form.
    void Set_Description(std::string_view description) { model_.description = description; }
    Colour Back_Colour() const { return model_.back_colour; }
    void Set_Back_Colour(Colour colour);
    /// Paints the whole window anew: what it shows changed without a change of its state.
    void Repaint() { Notify_Mirror(platform::Aspect::Look); }
    void Set_Pointer(platform::Pointer_Shape shape);
    void Set_Focus(const Control &control);
    /// Lets another form, which is modal to this one, take all that the user does here: pressing a mouse
    /// button or a key brings it to the front instead. Null ends that.
    void Set_Blocked_By(Form *modal);
    /// Shows the form, or the one that blocks it, in front of the other windows and gives it the keyboard.
    void Bring_To_Front();
    /// All controls in paint and tab order.
    const std::vector<Control *> &Controls() const { return controls_; }
    /// Clips the window to these rectangles (twips on the form); also a window that is made later.
    void Clip(std::vector<Rect> rects);

    /// Clips the window to a polygon (twips on the form) instead.
    void Shape(std::vector<Point> corners);

    /// The door of all user actions and messages to the form: hit-testing, capture and the rules of visible
    /// and enabled are here, and that nothing is done beside an open message box. An exception of a handler
    /// is told to the user in a message box and goes no further.
    virtual void Input(const platform::Input_Event &event);

    /// The top-most visible control at the point, null where there is none.
    Control *Control_At(Point point);

    // Events of the form itself.
    Handler<const platform::Input_Event &> On_Key_Down;
    Handler<const platform::Input_Event &> On_Key_Up;
    /// The user asks the window to close.
    Handler<> On_Close;
    /// The native window is gone.
    Handler<> On_Window_Lost;
    Handler<bool> On_Focus_Changed; ///< whether it has the focus now
    /// The release of the pressed mouse button will not come.
    Handler<> On_Capture_Lost;
    Handler<> On_Dots_Changed;

protected:
    /// Paints what of a painted form lies in `clip` (twips on the form).
    virtual void Paint(platform::Canvas &canvas, const Rect &clip) const;

private:
    friend class Control;
    void Register(Control &control, platform::Control_State &state);
    void Forget(const Control &control);
    void Notify_Mirror(platform::Aspect aspect);
    Point Corner() const;
    void Make_Window(bool visible);
    void Handle(const platform::Input_Event &event);
    void Handle_Mouse(const platform::Input_Event &event);
    void Press(Control *control, const platform::Input_Event &event, Point point);
    void Handle_Native(const platform::Input_Event &event);
    bool Blocked(const platform::Input_Event &event);
    Control *Control_Of(const platform::Input_Event &event) const;
    bool Takes_Input(const Control *control) const;

    platform::Form_Model model_;
    std::vector<Control *> controls_;
    Control *captured_ = nullptr; ///< takes the mouse from button down to up
    platform::Mouse_Button captured_by_ = platform::Mouse_Button::None;
    bool double_clicked_ =
        false; ///< the last press was the second one of a double click that is taken as such
    std::optional<std::vector<Rect>> clip_; ///< nothing: not clipped
    std::vector<Point> shape_;              ///< empty: no polygon
    bool created_ = false;                  ///< there is a native window
    std::optional<Point> left_at_;          ///< where the last Restore_Position left the window
    std::optional<Point> stuck_at_;         ///< and where the one before left it as well
    Form *modal_ = nullptr;                 ///< takes what the user does here
};

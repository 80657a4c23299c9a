// A form: a window with its controls, mirrored by a native window. All user actions enter through Input.
#pragma once

#include "platform/forms.h"
#include "toolkit/control.h"

#include <optional>
#include <string>
#include <vector>

/// The base class of all windows of the program. The controls of a form are its direct members. Their
/// declaration order is their paint and tab order.
class Form {
public:
    Form(platform::Form_Kind kind, const char *name);
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;
    virtual ~Form();

    const platform::Form_Model &Model() const { return model_; }

    // The position on the screen and the size, in twips. The position is current even if another program
    // has moved the window.
    int Left() const { return Corner().x; }
    int Top() const { return Corner().y; }
    int Width() const { return model_.bounds.width; }
    int Height() const { return model_.bounds.height; }
    void Move(int left, int top);
    /// Returns the position that Move set last. For a dialog, a move by the user counts as well.
    Point Requested_Position() const { return {model_.bounds.left, model_.bounds.top}; }
    /// Moves the window back to Requested_Position if another program has moved it. After two failed
    /// attempts, leaves the window alone until another program moves it again.
    void Restore_Position();
    void Resize(int width, int height);

    bool Visible() const { return model_.visible; }
    /// Creates the native window but does not show it, so that the caller can prepare it first.
    void Create();
    /// Shows the form and creates its native window if there is none.
    void Show();
    /// Destroys the native window. The form's state stays.
    void Close();
    void Set_Title(std::string_view title);
    /// Sets the description that assistive technology reads when it reaches the form.
    void Set_Description(std::string_view description) { model_.description = description; }
    Colour Back_Colour() const { return model_.back_colour; }
    void Set_Back_Colour(Colour colour);
    /// Repaints the whole window after a change that is not part of the form's state.
    void Repaint() { Notify_Mirror(platform::Aspect::Appearance); }
    void Set_Pointer(platform::Pointer_Shape shape);
    void Set_Focus(const Control &control);
    /// Lets a modal form block this one: a mouse button or key pressed here brings the modal form to the
    /// front instead. Null ends the block.
    void Set_Blocked_By(Form *modal);
    /// Brings the form, or the modal form that blocks it, to the front and gives it the focus.
    void Bring_To_Front();
    /// Returns all controls in paint and tab order.
    const std::vector<Control *> &Controls() const { return controls_; }
    /// Clips the current window, or one created later, to these rectangles (twips on the form).
    void Clip(std::vector<Rect> rects);

    /// Clips the current window, or one created later, to a polygon (twips on the form).
    void Shape(std::vector<Point> corners);

    /// Handles a user action or a window event. Does the hit testing and the mouse capture, and raises the
    /// events of visible, enabled controls only. Ignores user input while a message box is open. Shows an
    /// exception of a handler in a message box and does not rethrow it.
    virtual void Input(const platform::Input_Event &event);

    /// Returns the topmost visible control at the point, or null.
    Control *Control_At(Point point);

    // Events of the form itself.
    Handler<const platform::Input_Event &> On_Key_Down;
    Handler<const platform::Input_Event &> On_Key_Up;
    /// The user or another program asked the window to close. If empty, the form closes.
    Handler<> On_Close;
    /// Something other than Close destroyed the native window.
    Handler<> On_Window_Lost;
    Handler<bool> On_Focus_Changed; ///< the argument: whether the form has the focus now
    /// The window lost the mouse capture, so the release of the pressed mouse button will not arrive.
    Handler<> On_Capture_Lost;
    Handler<> On_Dots_Changed;

protected:
    /// Paints the part of a painted form that lies in `clip` (twips on the form).
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
    Control *captured_ = nullptr; ///< receives all mouse events until the button is released
    platform::Mouse_Button captured_by_ = platform::Mouse_Button::None; ///< the button that began the capture
    /// The last press was the second of a double click, and On_Double_Click handled it.
    bool double_clicked_ = false;
    std::optional<std::vector<Rect>> clip_; ///< nullopt: not clipped
    std::vector<Point> shape_;              ///< empty: no polygon
    bool created_ = false;                  ///< the native window exists
    std::optional<Point> left_at_;          ///< the position after the last Restore_Position
    std::optional<Point> stuck_at_;         ///< the position after two failed attempts of Restore_Position
    Form *modal_ = nullptr;                 ///< the modal form that blocks this one
};

// The interface to native windows: the state of a form and its controls as plain values, the calls that tell
// a mirror (the native window) of a change, and the events that report user actions. The toolkit owns the
// state; a mirror only reads it.
#pragma once

#include "base/callback.h"
#include "base/colour.h"
#include "base/error.h"
#include "base/geometry.h"
#include "platform/drawing.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

/// The kinds of controls. In a dialog, a label or picture box whose `painted` is true paints itself, and all
/// other controls are native.
enum class Control_Kind : std::uint8_t {
    Label,
    Button,
    Check_Box,
    Text_Box, ///< holds no line breaks; wraps its text into several lines unless `single_line`
    Option_Button,
    Combo_Box, ///< a drop-down list; with `editable`, a text box with a list
    List_Box,
    Tab_Strip,
    Slider,
    Frame, ///< holds other controls; drawn as a group box if it has a caption
    Picture_Box,
    Progress_Bar,
};

/// The role of a control for assistive technology.
enum class Access_Role : std::uint8_t { None, Text, Title, Button, Header, Cell, Choice, Link };

/// The description of a control for assistive technology. With the role None, a painted form does not
/// present the control, and a dialog presents a painted control as a text or a picture. Only `name` matters
/// for a native control, because the system provides its role. Leave the name empty if the native control
/// shows a text of its own, because the name would replace the text. The label directly before an edit field
/// or a list names that control.
struct Access_State {
    Access_Role role = Access_Role::None;
    /// The control is the marked one of its kind, such as today's box or the chosen colour.
    bool current = false;
    std::string name;
    std::string value;
    std::string default_action; ///< empty: no action
    friend bool operator==(const Access_State &, const Access_State &) = default;
};

/// A symbol that a label can show instead of its caption.
enum class Glyph : std::uint8_t { None, Arrow_Left, Arrow_Right, Information };

/// The visible state of one control. Positions are twips on the form, or on the frame that holds the control.
struct Control_State {
    Control_Kind kind = Control_Kind::Label;
    int index = 0;      ///< position in the form's control order
    int container = -1; ///< index of the frame that holds the control, less than `index`; -1: the form
    std::string name;
    Rect bounds;
    bool visible = true;
    bool enabled = true;
    /// The caption, or the text of a text box. "\n" separates lines, and "&" marks the access key in dialogs.
    std::string caption;
    std::string tooltip;
    Font font;
    Colour fore_colour = System_Colour(18);
    Colour back_colour = System_Colour(15);
    bool transparent = false; ///< the control has no background of its own
    Colour frame_colour = -1; ///< -1: no frame
    bool marked = false;      ///< shows the mark of the keyboard focus
    bool hairline = false;    ///< shows a hairline inside its edges if it has no frame
    Text_Align align = Text_Align::Left;
    bool centre_vertically = false; ///< centres the caption between the top and bottom edges
    /// Twips from the caption to the left and right edges; without `centre_vertically`, also to the top edge.
    int padding = 0;
    Glyph glyph = Glyph::None;
    bool checked = false;    ///< state of a check box or option button
    bool is_default = false; ///< Enter presses this button
    bool is_cancel = false;  ///< Esc presses this button

    std::vector<std::string> items; ///< of combo boxes, list boxes and tab strips
    int selected = -1;              ///< index of the chosen item, -1: none
    int minimum = 0;                ///< of sliders and progress bars
    int maximum = 100;
    int value = 0;
    bool editable = false;    ///< of combo boxes: the user can type any text
    bool single_line = false; ///< of text boxes
    bool read_only = false;   ///< of text boxes

    bool painted = false; ///< in a dialog: paints itself with `paint`, and sends mouse events
    /// Lets a painted control take the keyboard focus and send key events. If the control has no default
    /// action, Enter presses the dialog's default button.
    bool tab_stop = false;
    bool link = false; ///< makes a painted control show the hand pointer
    /// Paints a painted control of a dialog, in twips from its top left corner. Never throws. The mirror adds
    /// the dotted focus rectangle.
    Callback<void(Canvas &canvas, const Rect &clip)> paint;

    Access_State access;
};

enum class Form_Kind : std::uint8_t {
    Painted, ///< borderless, painted by the form itself, without a task bar button
    /// A painted form above all windows. It never takes the keyboard focus. It has no owner: the shell's
    /// window that holds the calendar would be its owner, and would destroy it on closing.
    Floating,
    Dialog, ///< a native dialog: title bar, close box, native controls
};

/// The pointer shapes of a form.
enum class Pointer_Shape : std::uint8_t { Arrow, Move, Hourglass };

enum class Mouse_Button : std::uint8_t { None, Left, Right, Middle };

enum class Input_Kind : std::uint8_t {
    Mouse_Down,
    Mouse_Up,
    Mouse_Move,
    Double_Click, ///< replaces the second Mouse_Down
    Key_Down,
    Key_Up,
    /// A press of a button, check box or option button (`checked`: its new state), or the space bar on a
    /// painted control. `key` is Esc if Esc pressed the button.
    Clicked,
    Text_Changed, ///< the user changed the text of a text box or combo box to `text`
    /// The user chose the item `selected` of a combo box, list box or tab strip, perhaps the same as before,
    /// or released a slider at the value `selected`.
    Selected,
    Scrolled,       ///< the user is moving a slider, now at the value `selected`
    Item_Activated, ///< a double click on the chosen item of a list box
    Default_Action, ///< assistive technology requests the control's default action
    Close,          ///< the close box, Alt+F4, or Esc in a dialog without a cancel button
    Window_Lost,    ///< something other than Destroy_Mirror destroyed the native window
    Focus_Changed,  ///< a painted form got (`checked`) or lost the keyboard focus
    /// The window lost the mouse capture while the user held a button, so the release will not arrive.
    Capture_Lost,
    Scale_Changed, ///< the screen's dots per inch or the system's fonts changed
    Window_Moved,  ///< the window of a dialog moved to `point` on the screen
};

/// One user action. Fields without a meaning for the kind keep their defaults.
struct Input_Event {
    Input_Kind kind;
    /// Index of the control of a dialog; for keys, of the focused control. In a painted form, index of the
    /// control that assistive technology addresses. -1: none.
    int control = -1;
    /// Mouse position in twips on the form, or on the painted control `control`; for Window_Moved, the
    /// window's position on the screen in twips.
    Point point{};
    /// The pressed or released button; for Mouse_Move, the held one.
    Mouse_Button button = Mouse_Button::None;
    int key = 0;           ///< virtual key code
    bool repeated = false; ///< a Key_Down of a key that is held
    bool shift = false;
    bool control_key = false;
    bool alt = false;
    bool checked = false;
    int selected = -1;
    std::string text{};
};

/// The state of a form. The toolkit sets `input` and `paint`. Neither throws.
struct Form_Model {
    Form_Kind kind = Form_Kind::Dialog;
    std::string name; ///< the native window's class is "Vellatro_" plus this name
    std::string title;
    std::string description; ///< additional description for assistive technology
    Rect bounds;             ///< in twips on the screen; for a dialog, the size of its client area
    bool visible = false;
    bool enabled = true; ///< if false, the window of a dialog takes no mouse or keyboard input
    Colour back_colour = System_Colour(15);
    Pointer_Shape pointer = Pointer_Shape::Arrow;
    std::vector<Control_State *> controls; ///< in paint and tab order
    int focused = -1;                      ///< index of the control with the keyboard focus, -1: none

    Callback<void(const Input_Event &)> input;
    /// Paints everything in `clip` (twips on the form).
    Callback<void(Canvas &canvas, const Rect &clip)> paint;
};

/// The part of a form or control that has changed since the mirror last showed it.
enum class Aspect : std::uint8_t {
    Bounds,
    Visible,
    Enabled,
    Caption,
    Tooltip,
    Appearance,
    Access,
    Checked,
    Items,    ///< `items` and `selected`, or the range of a slider or progress bar
    Selected, ///< `selected` or `value`
    Pointer,
    Focus
};

/// Returns the control's rectangle on the form: its bounds, shifted by the positions of its frames.
inline Rect Place_On_Form(const Form_Model &model, const Control_State &control) {
    Rect place = control.bounds;
    for (int frame = control.container; frame != -1;) {
        const Control_State &holder = *model.controls[static_cast<std::size_t>(frame)];
        place.left += holder.bounds.left;
        place.top += holder.bounds.top;
        frame = holder.container;
    }
    return place;
}

/// Returns whether the control and all its frames are visible.
inline bool Is_Shown(const Form_Model &model, const Control_State &control) {
    return control.visible && (control.container == -1 ||
                               Is_Shown(model, *model.controls[static_cast<std::size_t>(control.container)]));
}

/// Returns whether the control and all its frames are enabled.
inline bool Is_Usable(const Form_Model &model, const Control_State &control) {
    return control.enabled &&
           (control.container == -1 ||
            Is_Usable(model, *model.controls[static_cast<std::size_t>(control.container)]));
}

/// Creates the native window of a form and its controls, hidden or visible as the model says. The mirror
/// creates the controls in a hidden frame when it first shows the frame. Does nothing if the window exists.
/// On failure, leaves no window and throws Error with the system's reason.
void Create_Mirror(const Form_Model &model);

/// Destroys the native window. Does nothing if there is none.
void Destroy_Mirror(const Form_Model &model);

/// Tells the mirror that the form itself changed. Does nothing without a native window.
void Form_Changed(const Form_Model &model, Aspect aspect);

/// Tells the mirror that a control changed. A change of a frame's Bounds, Visible or Enabled also concerns
/// the controls in it. `before` is the control's rectangle before a change of Bounds.
void Control_Changed(const Form_Model &model, const Control_State &control, Aspect aspect,
                     const Rect &before);

/// Clips the form's window to these rectangles (twips on the form). Does nothing if they have not changed.
void Clip_Window(const Form_Model &model, const std::vector<Rect> &rects);

/// Clips the form's window to a polygon (twips on the form).
void Shape_Window(const Form_Model &model, const std::vector<Point> &corners);

/// Returns the position of the window's top left corner on the screen, in pixels, even if another program has
/// moved the window or its parent. Returns nothing if there is no native window or the window is minimised.
std::optional<Point> Window_Corner(const Form_Model &model);

/// Brings the form to the front and gives it the keyboard focus.
void Bring_To_Front(const Form_Model &model);

} // namespace platform

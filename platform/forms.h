// What a native window mirrors: the state of a form and of its controls as plain values, the calls that tell
// the mirror of a change, and the events through which user actions come back. The toolkit owns the state; a
// mirror only reads it.
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

/// A label or a picture box with `painted` draws itself; all else in a dialog is a native control.
enum class Control_Kind : std::uint8_t {
    Label,
    Button,
    Check_Box,
    Text_Box, ///< without line breaks; several wrapped lines, unless `single_line`
    Option_Button,
    Combo_Box, ///< a drop-down list, or with `editable` a text box with one
    List_Box,
    Tab_Strip,
    Slider,
    Frame, ///< holds other controls; with a caption it is drawn around them
    Picture_Box,
    Progress_Bar,
};

/// What a control is to assistive technology.
enum class Access_Role : std::uint8_t { None, Text, Title, Button, Header, Cell, Choice, Link };

/// How a control presents itself to assistive technology. In a painted form one with the role None is not
/// presented; in a dialog it is a text or a picture. Native controls have a role; of those only the name
/// counts, and of those with a text of their own not even that: a label directly before them names them.
struct Access_State {
    Access_Role role = Access_Role::None;
    bool current = false; ///< the marked one of its kind: today, the chosen one
    std::string name;
    std::string value;
    std::string default_action; ///< empty when it has none
    friend bool operator==(const Access_State &, const Access_State &) = default;
};

/// Small drawn signs that a label can show instead of its caption.
enum class Glyph : std::uint8_t { None, Arrow_Left, Arrow_Right, Information };

/// All that can be seen of one control. Positions are twips on the form, or on the frame that holds it.
struct Control_State {
    Control_Kind kind = Control_Kind::Label;
    int index = 0;      ///< place in the form's control order
    int container = -1; ///< index of the frame that holds it, which comes before it; -1: the form
    std::string name;
    Rect bounds;
    bool visible = true;
    bool enabled = true;
    std::string
        caption; ///< lines are parted by "\n"; in a text box the text; "&" marks the access key in dialogs
    std::string tooltip;
    Font font;
    Colour fore_colour = System_Colour(18);
    Colour back_colour = System_Colour(15);
    bool transparent = false; ///< draws no background of its own
    Colour frame_colour = -1; ///< -1: no frame
    bool marked = false;      ///< bears the mark of the keyboard focus
    bool hairline = false;    ///< has a hairline inside its edges where no frame is
    Text_Align align = Text_Align::Left;
    bool middle = false; ///< caption centred between top and bottom
    int padding = 0;     ///< twips between the caption and the left, right and, unless `middle`, top edge
    Glyph glyph = Glyph::None;
    bool checked = false;    ///< check boxes and option buttons
    bool is_default = false; ///< the button that Enter presses
    bool is_cancel = false;  ///< the button that Esc presses

    std::vector<std::string> items; ///< of combo and list boxes and tab strips
    int selected = -1;              ///< the chosen one of `items`, -1: none
    int minimum = 0;                ///< sliders and progress bars
    int maximum = 100;
    int value = 0;
    bool editable = false;    ///< combo boxes: any text can be typed
    bool single_line = false; ///< text boxes
    bool read_only = false;   ///< text boxes

    bool painted = false;  ///< in a dialog: draws itself with `paint`, and tells of the mouse
    bool tab_stop = false; ///< a painted control that takes the keyboard and tells of keys; of Enter only
                           ///< where it has a default action, else that presses the default button
    bool link = false;     ///< a painted control with the hand pointer
    /// Paints a painted control of a dialog, in twips from its own top left corner. Never throws. The mirror
    /// adds the dotted rectangle of the keyboard focus.
    Callback<void(Canvas &canvas, const Rect &clip)> paint;

    Access_State access;
};

enum class Form_Kind : std::uint8_t {
    Painted, ///< borderless, painted by the form itself, no task bar button
    /// A painted form that appears above all windows and never takes the keyboard. It has no owner: the
    /// calendar may be inside a window of the shell's process, which an owned window would be tied to.
    Floating,
    Dialog, ///< a native dialog: title bar, close box, native controls
};

/// Pointer shapes over a form.
enum class Pointer_Shape : std::uint8_t { Arrow, Move, Hourglass };

enum class Mouse_Button : std::uint8_t { None, Left, Right, Middle };

enum class Input_Kind : std::uint8_t {
    Mouse_Down,
    Mouse_Up,
    Mouse_Move,
    Double_Click, ///< instead of the second Mouse_Down
    Key_Down,
    Key_Up,
    Clicked,        ///< a button, check box or option button was pressed (`checked` is its new state), or the
                    ///< space bar on a painted control; `key` is Esc where that stood for the button
    Text_Changed,   ///< the user changed a native text box or the text of a combo box to `text`
    Selected,       ///< the user chose item `selected` of a combo box, list box or tab strip (of one that was
                    ///< chosen already, too), or let a slider go at that value
    Scrolled,       ///< the user is moving a slider, which is at the value `selected`
    Item_Activated, ///< a double click on the chosen item of a list box
    Default_Action, ///< assistive technology asks for the control's default action
    Close,          ///< the close box or Alt+F4
    Window_Lost,    ///< the native window is gone, by whatever hand
    Focus_Changed,  ///< the form got (`checked`) or lost the keyboard
    Capture_Lost,   ///< the mouse went elsewhere while a button was held: its release will not come
    Dots_Changed,   ///< the screen's dots per inch changed
    Window_Moved,   ///< the window of a dialog is at `point` on the screen now
};

/// One user action. Fields that do not belong to the kind stay at their defaults.
struct Input_Event {
    Input_Kind kind;
    /// Index of the control of a dialog that the event is about, with keys the focused one; in painted forms
    /// the control that assistive technology means.
    int control = -1;
    Point point{}; ///< mouse, twips on the form; where `control` names one, on that; of Window_Moved on the
                   ///< screen
    Mouse_Button button = Mouse_Button::None; ///< the button that changed; in a move the one that is held
    int key = 0;                              ///< virtual key code
    bool repeated = false;                    ///< a Key_Down of a key that was down before
    bool shift = false;
    bool control_key = false;
    bool alt = false;
    bool checked = false;
    int selected = -1;
    std::string text{};
};

/// The state of a form. `input` and `paint` are filled by the toolkit and never throw.
struct Form_Model {
    Form_Kind kind = Form_Kind::Dialog;
    std::string name; ///< the native window's class is "Vellatro_" and this name
    std::string title;
    std::string description; ///< what assistive technology tells of it beside the title
    Rect bounds;             ///< on the screen, twips; of a dialog the client area's size counts
    bool visible = false;
    bool enabled = true; ///< without this the window of a dialog takes no mouse and no keys
    Colour back_colour = System_Colour(15);
    Pointer_Shape pointer = Pointer_Shape::Arrow;
    std::vector<Control_State *> controls; ///< in paint and tab order
    int focused = -1;                      ///< index of the control with the keyboard focus, -1: none

    Callback<void(const Input_Event &)> input;
    /// Paints all that lies in `clip` (twips).
    Callback<void(Canvas &canvas, const Rect &clip)> paint;
};

/// What of a form or control is no longer what the mirror shows.
enum class Aspect : std::uint8_t {
    Bounds,
    Visible,
    Enabled,
    Caption,
    Tooltip,
    Look,
    Access,
    Checked,
    Items,    ///< `items`, and with them `selected`; the range of sliders and progress bars
    Selected, ///< `selected` or `value`
    Pointer,
    Focus
};

/// The control's place on the form: its frames' places are added.
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

/// Whether the control and all its frames are visible.
inline bool Is_Shown(const Form_Model &model, const Control_State &control) {
    return control.visible && (control.container == -1 ||
                               Is_Shown(model, *model.controls[static_cast<std::size_t>(control.container)]));
}

/// Whether the control and all its frames are enabled.
inline bool Is_Usable(const Form_Model &model, const Control_State &control) {
    return control.enabled &&
           (control.container == -1 ||
            Is_Usable(model, *model.controls[static_cast<std::size_t>(control.container)]));
}

/// Makes the native window of a form, hidden or visible as the model says, with all its controls.
/// Throws Error with the system's reason when it cannot be made, and then there is none.
void Create_Mirror(const Form_Model &model);

/// Takes the native window down. Does nothing when there is none.
void Destroy_Mirror(const Form_Model &model);

/// Tells the mirror that the form's own state changed. Does nothing without a native window.
void Form_Changed(const Form_Model &model, Aspect aspect);

/// Tells the mirror that a control's state changed, which for the place, Visible and Enabled of a frame
/// concerns all that it holds; `before` is the control's rectangle before a change of
/// Bounds.
void Control_Changed(const Form_Model &model, const Control_State &control, Aspect aspect,
                     const Rect &before);

/// Clips the form's window to these rectangles (twips on the form). Equal rectangles change nothing.
void Clip_Window(const Form_Model &model, const std::vector<Rect> &rects);

/// Clips the form's window to a polygon (twips on the form).
void Shape_Window(const Form_Model &model, const std::vector<Point> &corners);

/// Returns where the left top corner of the form's window is on the screen, in pixels, also when another
/// program has moved the window or the one that it is in. Nothing without a native window or while it is
/// minimised.
std::optional<Point> Window_Corner(const Form_Model &model);

/// Shows the form in front of the other windows and gives it the keyboard.
void Bring_To_Front(const Form_Model &model);

} // namespace platform

// The faked windows, canvas, timers, screen, menus and shell. They record what the program tells its windows,
// and tests move the time and the mouse by hand. fakes.h has the rest of the faked system.
#pragma once

#include "platform/drawing.h"
#include "platform/forms.h"
#include "platform/menu.h"
#include "platform/message_loop.h"
#include "platform/screen.h"
#include "platform/shell.h"
#include "tests/fakes/fakes.h"

class Control;
class Form;

/// One drawing operation. Fields that its kind does not use stay empty.
struct Canvas_Operation {
    enum class Kind { Fill, Frame, Polygon, Text, Picture };
    Kind kind;
    Rect rect{};
    Colour colour = 0;
    std::string text{};
    platform::Text_Align align = platform::Text_Align::Left;
    bool right_to_left = false;
    std::vector<Point> corners{};
};

struct platform::Canvas {
    std::vector<Canvas_Operation> operations;
};

/// A change that the program reported to a window.
struct Announced_Change {
    std::string control; ///< its name; empty for the form itself
    platform::Aspect aspect;
    friend bool operator==(const Announced_Change &, const Announced_Change &) = default;
};

/// The native window of a form.
struct Fake_Mirror {
    bool shown = false; ///< as the program last set it
    std::vector<Rect> clip;
    bool shown_unclipped = false; ///< it was once visible without a clip or shape
    std::vector<Point> shape;
    Point displaced{};  ///< how far something else moved it since the program placed it, in pixels
    bool stuck = false; ///< the program cannot move it back
};

/// A popup menu that a test expects next.
struct Expected_Menu {
    std::string texts; ///< of the items, separated by "|"; disabled ones in parentheses
    int answer = 0;
    std::function<void()> meanwhile{}; ///< runs while the menu is open; timers wait
};

struct Fake_Timer {
    unsigned interval = 0, due = 0;
    std::function<void()> tick;
};

struct Fake_Desktop {
    int dots_per_inch = 96;
    Rect work_area{0, 0, 1024, 740};
    Rect second_area{}; ///< of a second monitor; empty if there is none
    bool button_held = false;
    bool high_contrast = false;
    bool refuses_windows = false; ///< creating a native window fails
    int char_width = 100;         ///< width of each character in twips

    std::map<const platform::Form_Model *, Fake_Mirror> mirrors;
    std::vector<Announced_Change> announced;
    const platform::Form_Model *front = nullptr; ///< the form last brought to the front

    std::map<platform::Timer_Id, Fake_Timer> timers;
    unsigned time = 0;
    Callback<bool(platform::Broadcast)> listener;
    std::string refusal; ///< the reason given against the end of the session
    bool loop_ended = false;
    std::deque<std::function<void()>> messages; ///< one runs at each call of Process_Waiting_Messages

    std::deque<Expected_Menu> expected_menus;
    bool menu_open = false;
    std::optional<Point> menu_at; ///< the position asked for the last menu
    int measured = 0;             ///< calls of Text_Width

    std::function<int(const std::vector<platform::Menu_Item> &)>
        answer_menu;               ///< answers menus that no test expects
    std::function<void()> in_loop; ///< runs repeatedly until the message loop ends

    /// Lets time pass and runs the timers that fall due, in order.
    void Advance(unsigned milliseconds);
    bool Say(platform::Broadcast broadcast) { return !listener || listener(broadcast); }
};

/// Returns the only faked desktop.
Fake_Desktop &Desktop();

/// The faked shell: its windows, the answers of its icon list, and the form attached to it.
struct Fake_Shell {
    platform::Shell_Window desktop = 0, view = 0, list = 0; ///< missing unless a test sets them
    platform::Shell_Window worker = 0;                      ///< the view's parent; 0 if that is the desktop
    std::optional<platform::Label_Colours> colours;         ///< none if the shell hangs
    unsigned patience = 0;                                  ///< of the last question for them
    int dots_inside = 0; ///< DPI of a window inside the desktop; 0: the same as outside

    const platform::Form_Model *attached = nullptr;
    platform::Shell_Window attached_to = 0;
    bool attached_hidden = false; ///< it was hidden when it was attached
    bool covered = false;         ///< the view has been raised above it
};

/// Returns the only faked shell.
Fake_Shell &Shell();

/// Resets the desktop and the shell.
void Reset_Desktop();

/// Returns what the form paints within the clip.
platform::Canvas Painted(const Form &form, const Rect &clip);

/// Sends the form a user's input, for the control if there is one. Disabled and hidden controls ignore it.
void Input(Form &form, platform::Input_Event event, const Control *control = nullptr);

// These send mouse input to the middle of the control, and a key to the form.
void Press(Form &form, const Control &control, platform::Mouse_Button button = platform::Mouse_Button::Left);
void Release(Form &form, const Control &control,
             platform::Mouse_Button button = platform::Mouse_Button::Left);
void Click(Form &form, const Control &control, platform::Mouse_Button button = platform::Mouse_Button::Left);
void Double_Click(Form &form, const Control &control);
inline void Press_Key(Form &form, int key) {
    for (const auto kind : {platform::Input_Kind::Key_Down, platform::Input_Kind::Key_Up})
        Input(form, {.kind = kind, .key = key});
}

// These send what a native control of a dialog reports.
inline void Push(Form &form, const Control &control, bool checked = false) {
    Input(form, {.kind = platform::Input_Kind::Clicked, .checked = checked}, &control);
}
inline void Enter_Text(Form &form, const Control &control, const std::string &text) {
    Input(form, {.kind = platform::Input_Kind::Text_Changed, .text = text}, &control);
}
/// Selects an item, or sets a slider to a value: with the kind Scrolled, the slider is still moving.
inline void Choose(Form &form, const Control &control, int item,
                   platform::Input_Kind kind = platform::Input_Kind::Selected) {
    Input(form, {.kind = kind, .selected = item}, &control);
}

// The faked windows, canvas, timers, screen, menus and shell: what the program told the mirrors is recorded,
// and a test moves the time and the mouse by hand. The rest of the faked system is in fakes.h.
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

/// One drawing operation. Fields that do not belong to it stay empty.
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

/// A change that a mirror was told of.
struct Told_Change {
    std::string control; ///< name; empty: the form itself
    platform::Aspect aspect;
    friend bool operator==(const Told_Change &, const Told_Change &) = default;
};

/// The native window of a form.
struct Fake_Mirror {
    bool shown = false; ///< as of the last thing told
    std::vector<Rect> clip;
    bool shown_unclipped = false; ///< it was visible before it had a clip
    std::vector<Point> shape;
    Point displaced{};  ///< how far others have moved it since it was put where it belongs, pixels
    bool stuck = false; ///< and it stays there
};

/// A popup menu that a test expects, in its turn.
struct Expected_Menu {
    std::string texts; ///< parted by "|", greyed ones in brackets
    int answer = 0;
    std::function<void()> meanwhile{}; ///< what happens while the menu is open; timers wait
};

struct Fake_Timer {
    unsigned interval = 0, due = 0;
    std::function<void()> tick;
};

struct Fake_Desktop {
    int dots_per_inch = 96;
    Rect work_area{0, 0, 1024, 740};
    Rect second_area{}; ///< of another monitor; empty: there is none
    bool button_held = false;
    bool high_contrast = false;
    bool refuses_windows = false; ///< no form gets a native window
    int char_width = 100;         ///< twips of every character

    std::map<const platform::Form_Model *, Fake_Mirror> mirrors;
    std::vector<Told_Change> told;
    const platform::Form_Model *front = nullptr; ///< brought there last

    std::map<platform::Timer_Id, Fake_Timer> timers;
    unsigned time = 0;
    Callback<bool(platform::Broadcast)> listener;
    std::string refusal; ///< why the session may not end
    bool loop_ended = false;
    std::deque<std::function<void()>> messages; ///< processed one by one while the program waits

    std::deque<Expected_Menu> expected_menus;
    bool menu_open = false;
    std::optional<Point> menu_at; ///< where the last menu was to open
    int measured = 0;             ///< calls of Text_Width

    std::function<int(const std::vector<platform::Menu_Item> &)>
        answer_menu;               ///< for menus that no test expects
    std::function<void()> in_loop; ///< again and again, until the message loop is ended

    /// Lets the time pass, with the timers' ticks in their order.
    void Advance(unsigned milliseconds);
    bool Say(platform::Broadcast broadcast) { return !listener || listener(broadcast); }
};

/// The one faked desktop.
Fake_Desktop &Desktop();

/// The faked shell: which of its windows there are, what its icon list answers, and what was attached to it.
struct Fake_Shell {
    platform::Shell_Window desktop = 0, view = 0, list = 0; ///< none is there unless a test says so
    platform::Shell_Window worker = 0;                      ///< that holds the view; 0: the desktop does
    std::optional<platform::Label_Colours> colours;         ///< nothing: the shell hangs
    std::vector<std::string> web_pages;                     ///< that were opened
    int dots_inside = 0; ///< dots per inch that a window has inside the desktop; 0: the same as outside

    const platform::Form_Model *attached = nullptr;
    platform::Shell_Window attached_to = 0;
    bool attached_hidden = false; ///< it was not to be seen when it was attached
    bool covered = false;         ///< by the view, which somebody has raised
};

/// The one faked shell.
Fake_Shell &Shell();

/// Makes the desktop and the shell new.
void Reset_Desktop();

/// Paints the form as its window would.
platform::Canvas Painted(const Form &form, const Rect &clip);

/// What a user does; with a control the event is about that one. A disabled or hidden one takes nothing.
void Input(Form &form, platform::Input_Event event, const Control *control = nullptr);

// In the middle of the control.
void Press(Form &form, const Control &control, platform::Mouse_Button button = platform::Mouse_Button::Left);
void Release(Form &form, const Control &control,
             platform::Mouse_Button button = platform::Mouse_Button::Left);
void Click(Form &form, const Control &control, platform::Mouse_Button button = platform::Mouse_Button::Left);
void Double_Click(Form &form, const Control &control);
void Press_Key(Form &form, int key);

// The same for the native controls of dialogs.
void Push(Form &form, const Control &control, bool checked = false);
void Enter_Text(Form &form, const Control &control, const std::string &text);
/// Of a slider the value; kind Scrolled while it is moved.
void Choose(Form &form, const Control &control, int item,
            platform::Input_Kind kind = platform::Input_Kind::Selected);

// The fuzz target of the whole program on the fakes: the input bytes choose the actions of the user, the
// clock, other programs and the session. After each action the data file holds the same as a plain model
// (program_model.h), the editor and the month show it, only registry values that the action may write have
// changed, and each failure message has a cause. --tell prints the actions.
#include "app/program.h"

#include "fuzz/program_answers.h"

namespace {

using platform::Control_Kind;
using platform::Input_Kind;
using platform::Mouse_Button;

class Run : private Answers {
public:
    explicit Run(Bytes &in) : Answers(in) {}
    void Whole_Program();

private:
    void Act();
    void Use_Calendar();
    void Use_Day(Form_Model &calendar);
    void Use_Title(Form_Model &calendar);
    void Use_Key(Form_Model &calendar);
    void Use_Editor(Form_Model &editor);
    void Use_Dialog(Form_Model &dialog);
    void Use_Control(Form_Model &dialog, const Control_State &control);
    void Use_Surroundings();
    void Use_Files();
    void Check_Month();
    static void Look();

    int fail_in_ = 0;   ///< file calls up to the next one that fails; 0: none fails
    int exhausted_ = 0; ///< requests to close after the last byte
};

/// Redraws the month and checks that each day shows its event.
void Run::Check_Month() {
    Form_Model *calendar = Window("Calendar");
    if (calendar == nullptr || Window("Settings_Frm") != nullptr ||
        !Control(*calendar, "Prev_Month_Lbl").visible)
        return;
    action_ = "F5, and the month is compared";
    Begin_Action();
    places_ = true; // a move by the arrow keys may end here
    Send(*calendar, {.kind = Input_Kind::Key_Down, .key = Key_F5});
    Send(*calendar, {.kind = Input_Kind::Key_Up, .key = Key_F5});
    End_Action();
    calendar = Window("Calendar");
    if (calendar == nullptr || loading_failed_ || !Control(*calendar, "Prev_Month_Lbl").visible)
        return;
    int days = 0;
    Model_Day last;
    for (const Control_State *box : calendar->controls) {
        if (!box->visible || box->access.role != platform::Access_Role::Cell || box->caption.empty())
            continue;
        const Model_Day day = Day_Of(box->access.name);
        Demand(box->access.value == model_.Message(day).first,
               "the box of " + day.Key() + " shows \"" + box->access.value + "\"");
        last = day;
        ++days;
    }
    Demand(!strict || days == Days_In_Month(last.year, last.month),
           "the month has " + std::to_string(days) + " boxes");
}

void Run::Look() {
    for (const auto &[model, mirror] : std::map(Desktop().mirrors)) {
        platform::Canvas canvas;
        if (model->paint)
            model->paint(canvas, {0, 0, model->bounds.width, model->bounds.height});
        for (const Control_State *control : model->controls)
            if (control->painted && control->paint)
                control->paint(canvas, {0, 0, control->bounds.width, control->bounds.height});
    }
}

void Run::Use_Day(Form_Model &calendar) {
    std::vector<const Control_State *> boxes;
    for (const Control_State *control : calendar.controls)
        if (control->visible && control->access.role == platform::Access_Role::Cell &&
            !control->caption.empty())
            boxes.push_back(control);
    if (boxes.empty())
        return;
    constexpr int likely[] = {0, 4, 5, 27}; // the days of Random_Day
    const int count = static_cast<int>(boxes.size());
    const int which = std::min(in_.Pick(2) == 0 ? likely[in_.Pick(4)] : in_.Pick(count), count - 1);
    const Control_State &box = *boxes[static_cast<std::size_t>(which)];
    menu_box_ = &box;
    const int way = in_.Pick(5);
    action_ = "the box of " + Day_Of(box.access.name).Key() + " is used in way " + std::to_string(way);
    if (way == 0) {
        Click_Painted(calendar, box, Mouse_Button::Right);
    } else if (way == 1) {
        Send(calendar, {.kind = Input_Kind::Default_Action, .control = box.index});
    } else if (way == 2) {
        Click_Painted(calendar, box, Mouse_Button::Left);
    } else {
        Click_Painted(calendar, box, Mouse_Button::Left);
        if (Window("Calendar") == &calendar)
            Mouse(calendar, box, Input_Kind::Double_Click, Mouse_Button::Left);
        if (Window("Calendar") == &calendar)
            Mouse(calendar, box, Input_Kind::Mouse_Up, Mouse_Button::Left);
    }
}

void Run::Use_Title(Form_Model &calendar) {
    const Control_State &title = Control(calendar, "Which_Month_Lbl");
    places_ = true;
    const int way = in_.Pick(6);
    action_ = "the title is used in way " + std::to_string(way);
    const auto here = [&] { return Window("Calendar") == &calendar; };
    if (way == 0) {
        const int side = in_.Pick(2) == 0 ? title.bounds.width / 4 : title.bounds.width * 3 / 4;
        Send(calendar, {.kind = Input_Kind::Mouse_Down,
                        .point = {title.bounds.left + side, title.bounds.top + 30},
                        .button = Mouse_Button::Right});
        if (here())
            Mouse(calendar, title, Input_Kind::Mouse_Up, Mouse_Button::Right);
    } else if (way == 1) {
        Click_Painted(calendar, title, Mouse_Button::Left);
        if (here())
            Mouse(calendar, title, Input_Kind::Double_Click, Mouse_Button::Left);
        if (here())
            Mouse(calendar, title, Input_Kind::Mouse_Up, Mouse_Button::Left);
    } else if (way == 2) {
        Mouse(calendar, title, Input_Kind::Mouse_Move, Mouse_Button::None);
    } else if (way < 5) {
        Mouse(calendar, title, Input_Kind::Mouse_Down, Mouse_Button::Left);
        for (int moves = in_.Pick(3); moves >= 0 && here(); --moves)
            Send(calendar, {.kind = Input_Kind::Mouse_Move,
                            .point = {title.bounds.left + (in_.Pick(9) - 4) * 300,
                                      title.bounds.top + (in_.Pick(9) - 4) * 300},
                            .button = Mouse_Button::Left});
        if (here() && in_.Pick(4) == 0)
            Send(calendar, {.kind = Input_Kind::Capture_Lost});
        if (here())
            Mouse(calendar, title, Input_Kind::Mouse_Up, Mouse_Button::Left);
    } else {
        const Control_State &arrow =
            Control(calendar, in_.Pick(2) == 0 ? "Prev_Month_Lbl" : "Next_Month_Lbl");
        if (arrow.visible)
            Click_Painted(calendar, arrow, Mouse_Button::Left);
    }
}

void Run::Use_Key(Form_Model &calendar) {
    constexpr int keys[] = {Key_F1,        Key_F2,   Key_F3,     Key_F4,     Key_F5,     Key_F8,
                            Key_F9,        Key_F12,  Key_Left,   Key_Up,     Key_Right,  Key_Down,
                            Key_M,         Key_Y,    Key_Menu,   Key_Return, Key_Delete, Key_Page_Up,
                            Key_Page_Down, Key_Home, Key_Delete, Key_Z,      Key_Z};
    platform::Input_Event event{.kind = Input_Kind::Key_Down};
    event.key = keys[in_.Pick(23)];
    event.control_key = in_.Pick(6) == 1 || event.key == Key_Z;
    event.shift = in_.Pick(6) == 1;
    event.alt = in_.Pick(16) == 1;
    action_ = "key " + std::to_string(event.key) + (event.control_key ? " with Ctrl" : "") +
              (event.alt ? " and Alt" : "");
    places_ = true;
    styles_ = event.key == Key_F8 || event.key == Key_F9;
    Send(calendar, {.kind = Input_Kind::Focus_Changed, .checked = true});
    const bool acts = event.key == Key_Delete && !event.control_key && !event.alt &&
                      Window("Settings_Frm") == nullptr && Control(calendar, "Prev_Month_Lbl").visible;
    if (event.key == Key_Z && !event.alt && !event.shift && Window("Settings_Frm") == nullptr)
        Want_Undo();
    Send(calendar, event);
    for (const Control_State *box : calendar.controls) {
        if (acts && box->marked)
            Clear(*box);
    }
    event.kind = Input_Kind::Key_Up;
    event.control_key = event.control_key && in_.Pick(3) == 1;
    if (Window("Calendar") == &calendar)
        Send(calendar, event);
}

void Run::Use_Editor(Form_Model &editor) {
    typed_ = true;
    const Control_State &ok = Control(editor, in_.Pick(2) == 0 ? "Ok_Btn" : "Apply_Btn");
    switch (in_.Pick(8)) {
    case 0:
    case 1:
    case 2: {
        const std::string text = Random_Text(in_, in_.Pick(12) == 1);
        action_ = "\"" + text + "\" is typed";
        return Send(editor, {.kind = Input_Kind::Text_Changed,
                             .control = Control(editor, "Message_Txt").index,
                             .text = text});
    }
    case 3:
        action_ = "the tick is set or taken away";
        return Send(editor, {.kind = Input_Kind::Clicked,
                             .control = Control(editor, "Every_Year_Chk").index,
                             .checked = !Control(editor, "Every_Year_Chk").checked});
    case 4:
    case 5:
    case 6: {
        action_ = ok.name + " is pressed";
        Model_Editor from = *editor_;
        typed_ = false;
        if (ok.enabled && from.text.find('"') == std::string::npos)
            pending_.push_back({[from](const Model &model) {
                                    return from.blind ? Outcomes{}
                                                      : After_Save(model, from.day, from.text, from.yearly);
                                },
                                from.maybe_blind || from.blind, "Edit"});
        const bool asked = !pending_.empty();
        const std::size_t boxes = Fakes().boxes.size();
        Send(editor, {.kind = Input_Kind::Clicked, .control = ok.index});
        const bool failed = Box_Shown_Since(boxes, "Error saving data file.");
        if (asked && failed && strict && !Desktop().loop_ended)
            Demand(Window("Edit_Frm") != nullptr &&
                       Control(*Window("Edit_Frm"), "Message_Txt").caption == from.text &&
                       Control(*Window("Edit_Frm"), "Apply_Btn").enabled,
                   "a save that failed has closed the editor, or its text is not unsaved");
        if ((failed || loading_failed_) && strict)
            typed_ = true; // the text may have become unsaved
        return;
    }
    default:
        action_ = "the editor is closed";
        if (in_.Pick(4) == 0) {
            Desktop().mirrors.erase(&editor);
            return Send(editor, {.kind = Input_Kind::Window_Lost});
        }
        return Send(editor, {.kind = Input_Kind::Close});
    }
}

void Run::Use_Control(Form_Model &dialog, const Control_State &control) {
    const int index = control.index;
    action_ = control.name + " (" + control.caption + ") is used";
    const bool plain = control.name == "TabStrip1" || control.name == "Ok_Btn" ||
                       control.name == "Apply_Btn" || control.name == "Cancel_Btn";
    touched_ = touched_ || !plain;
    const int count = static_cast<int>(control.items.size());
    switch (control.kind) {
    case Control_Kind::Button:
    case Control_Kind::Option_Button:
        return Send(dialog, {.kind = Input_Kind::Clicked, .control = index, .checked = true});
    case Control_Kind::Check_Box:
        return Send(dialog, {.kind = Input_Kind::Clicked, .control = index, .checked = !control.checked});
    case Control_Kind::Tab_Strip:
        return Send(dialog, {.kind = Input_Kind::Selected, .control = index, .selected = in_.Pick(count)});
    case Control_Kind::Combo_Box: {
        constexpr const char *texts[] = {"d/m/yyyy", "", "H:mm:ss", "Month \"x\"", "zzz"};
        if (control.editable && in_.Pick(3) == 0)
            return Send(dialog,
                        {.kind = Input_Kind::Text_Changed, .control = index, .text = texts[in_.Pick(5)]});
        return Send(dialog,
                    {.kind = Input_Kind::Selected, .control = index, .selected = in_.Pick(count + 1)});
    }
    case Control_Kind::List_Box: {
        if (count == 0)
            return;
        Send(dialog, {.kind = Input_Kind::Selected, .control = index, .selected = in_.Pick(count)});
        if (in_.Pick(3) == 0)
            return Send(dialog, {.kind = Input_Kind::Key_Down, .control = index, .key = Key_Delete});
        return Send(dialog, {.kind = Input_Kind::Item_Activated, .control = index});
    }
    case Control_Kind::Slider:
        return Send(dialog, {.kind = in_.Pick(2) == 0 ? Input_Kind::Selected : Input_Kind::Scrolled,
                             .control = index,
                             .selected = in_.Pick(14)});
    default:
        break;
    }
    if (!control.painted)
        return;
    const Point point{control.bounds.width * (in_.Pick(9) + 1) / 10,
                      control.bounds.height * (in_.Pick(9) + 1) / 10};
    if (control.tab_stop && in_.Pick(3) == 0) {
        constexpr int keys[] = {Key_Left, Key_Right, Key_Up, Key_Down, Key_Return};
        return Send(dialog, {.kind = Input_Kind::Key_Down, .control = index, .key = keys[in_.Pick(5)]});
    }
    for (const Input_Kind kind : {Input_Kind::Mouse_Down, Input_Kind::Mouse_Up})
        if (Window("Settings_Frm") == &dialog)
            Send(dialog, {.kind = kind, .control = index, .point = point, .button = Mouse_Button::Left});
}

void Run::Use_Dialog(Form_Model &dialog) {
    if (in_.Pick(40) == 1) {
        action_ = "the settings are closed";
        return Send(dialog, {.kind = Input_Kind::Close});
    }
    std::vector<const Control_State *> controls;
    for (const Control_State *control : dialog.controls)
        if (platform::Is_Shown(dialog, *control) && platform::Is_Usable(dialog, *control) &&
            control->kind != Control_Kind::Frame &&
            (control->kind != Control_Kind::Label || control->painted))
            controls.push_back(control);
    const int tabs = in_.Pick(6);
    if (tabs == 0)
        return Use_Control(dialog, Control(dialog, "TabStrip1"));
    Use_Control(dialog, *controls[static_cast<std::size_t>(in_.Pick(static_cast<int>(controls.size())))]);
}

/// Changes, deletes or locks files, as another program would.
void Run::Use_Files() {
    const int way = in_.Pick(8);
    action_ = "files are changed in way " + std::to_string(way);
    switch (way) {
    case 0:
    case 1:
        model_.file = Random_Data(in_);
        Fakes().files[Data_Path] = model_.file->bytes;
        break;
    case 2:
        if (!model_.scratch)
            break;
        Fakes().files.erase(Data_Path);
        model_.file.reset();
        break;
    case 3:
        Fakes().unreadable.insert(in_.Pick(2) == 0 ? Data_Path : Backup_Path);
        break;
    case 4:
        Fakes().unwritable.insert(in_.Pick(2) == 0 ? Data_Path : Backup_Path);
        break;
    case 5:
        Fakes().unreadable.clear();
        Fakes().unwritable.clear();
        break;
    case 6:
        files_.Renew();
        break;
    default:
        Fakes().registry_refuses_writes = !Fakes().registry_refuses_writes;
        refused_ = true;
        break;
    }
}

void Run::Use_Surroundings() {
    const int way = in_.Pick(9);
    action_ = "the surroundings change in way " + std::to_string(way);
    places_ = true;
    switch (way) {
    case 0:
    case 1:
        return Step_Clock();
    case 2:
        return Pass_Time();
    case 3: {
        constexpr Broadcast all[] = {Broadcast::Settings_Changed, Broadcast::Display_Changed,
                                     Broadcast::Colours_Changed, Broadcast::Session_Ends,
                                     Broadcast::Close_Request};
        Desktop().Say(all[in_.Pick(5)]);
        return;
    }
    case 4:
        Fakes().first_weekday = in_.Pick(7);
        Desktop().Say(Broadcast::Settings_Changed);
        return;
    case 5:
        Desktop().high_contrast = !Desktop().high_contrast;
        Desktop().Say(Broadcast::Colours_Changed);
        return;
    case 6:
        Desktop().work_area = {0, 0, 640 + 200 * in_.Pick(5), 460 + 200 * in_.Pick(5)};
        Desktop().Say(Broadcast::Display_Changed);
        return;
    case 7:
        if (Form_Model *calendar = Window("Calendar"); calendar != nullptr && in_.Pick(6) == 1) {
            Desktop().mirrors.erase(calendar);
            Send(*calendar, {.kind = Input_Kind::Window_Lost});
        }
        return;
    default:
        if (in_.Pick(6) == 1)
            Desktop().Say(Broadcast::Session_Over);
    }
}

void Run::Use_Calendar() {
    Form_Model *calendar = Window("Calendar");
    if (calendar == nullptr)
        return Use_Surroundings();
    switch (in_.Pick(4)) {
    case 0:
        return Use_Title(*calendar);
    case 1:
        return Use_Key(*calendar);
    default: // mostly
        return Use_Day(*calendar);
    }
}

void Run::Act() {
    action_ = "nothing";
    if (in_.Out()) {
        action_ = "the program is to be closed";
        fail_in_ = 0;
        Demand(++exhausted_ < 20, "the program does not end");
        Begin_Action();
        Desktop().Say(Broadcast::Close_Request);
        End_Action();
        return;
    }
    Begin_Action();
    if (in_.Pick(8) == 1)
        fail_in_ = in_.Pick(6) + 1;
    if (Window("Settings_Frm") == nullptr)
        touched_ = staged_ = false;
    Form_Model *editor = Window("Edit_Frm"), *dialog = Window("Settings_Frm");
    const int what = in_.Pick(12);
    if (what == 0)
        Use_Surroundings();
    else if (what == 1)
        Use_Files();
    else if (what == 2)
        Look();
    else if (what < 9 && dialog != nullptr)
        Use_Dialog(*dialog);
    else if (what < 9 && editor != nullptr && editor_ && dialog == nullptr)
        Use_Editor(*editor);
    else
        Use_Calendar();
    fail_in_ = 0;
    dialog_ = dialog_ || Window("Settings_Frm") != nullptr;
    End_Action();
    if (in_.Pick(16) == 1)
        Check_Month();
}

void Run::Whole_Program() {
    Reset_Fakes();
    Reset_Desktop();
    Fakes().any_box = true;
    Fakes().on_failure = [this](const std::string &message) { Demand(false, message); };
    Fakes().answer_box = [this](const Shown_Box &box) { return Answer_Box(box); };
    Fakes().answer_dialog = [this](const platform::File_Dialog &dialog) { return Answer_Dialog(dialog); };
    Fakes().file_fails = [this](const std::string &path) {
        const bool ours =
            Name_Is(path, Data_Path) || Name_Is(path, Backup_Path) || path.starts_with("C:\\in\\");
        const bool fails = ours && fail_in_ > 0 && --fail_in_ == 0;
        fails_ += fails ? 1 : 0;
        return fails;
    };
    Fakes().painting = [] { Look(); };
    Desktop().answer_menu = [this](const auto &items) { return Answer_Menu(items); };
    Desktop().in_loop = [this] { Act(); };
    constexpr const char *patterns[] = {"d/m/yyyy", "yyyy-mm-dd", "m/d/yyyy", "dd.mm.yyyy"};
    Fakes().short_date_pattern = patterns[in_.Pick(4)];
    if (in_.Pick(2) == 1)
        Fakes().clock_step = 2000; // every long task shows its progress
    if (in_.Pick(2) == 1)
        Make_Pack();
    if (in_.Pick(4) != 0) {
        model_.file = Random_Data(in_);
        Fakes().files[Data_Path] = model_.file->bytes;
    }
    files_.Renew();
    for (int start = 0; start < 3 && (start == 0 || !in_.Out()); ++start) {
        action_ = "the program starts";
        Begin_Action();
        exhausted_ = 0;
        refused_ = Fakes().registry_refuses_writes;
        model_.scratch = Records{};
        model_.steps.clear();
        editor_.reset();
        Demand(Run_Program() == 0, "the program does not start");
        action_ = "the program ends";
        configures_ = true;
        Commit(true);
        Demand(Desktop().mirrors.empty() && Desktop().timers.empty(), "a window or a timer is left over");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(const int *argc, char ***argv) {
    for (int i = 1; i < *argc; ++i)
        tells = tells || std::string_view((*argv)[i]) == "--tell";
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Bytes in(data, size);
    Run(in).Whole_Program();
    return 0;
}

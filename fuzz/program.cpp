// The whole program on the fakes: the bytes choose what the user, the clock, the files and the session do.
// After each action the data file is what a plain model of the rules (program_model.h) holds, the editor and
// the month show it, no key of the store has changed that the action may not write, and nothing is told to
// have failed without a cause. VELLATRO_FUZZ_TELL in the environment prints the actions.
#include "app/program.h"

#include "fuzz/program_files.h"
#include "fuzz/program_model.h"
#include "fuzz/program_windows.h"
#include "tests/fakes/fake_forms.h"

#include <cstdio>
#include <cstdlib>

namespace {

using platform::Box_Answer;
using platform::Broadcast;
using platform::Control_Kind;
using platform::Control_State;
using platform::Form_Model;
using platform::Input_Kind;
using platform::Mouse_Button;

/// What the user has before the eyes in the editor.
struct Model_Editor {
    Model_Day day;
    std::string text;
    bool yearly = false, unsaved = false;
    bool blind = false;       ///< its reading failed: nothing may be saved from it
    bool maybe_blind = false; ///< some reading failed when it was opened
};

/// A change of the data file that the user asked for and of which no end has been seen.
struct Pending {
    std::function<Outcomes(const Model &)> outcomes;
    bool may_stay = false; ///< its reading failed, which was told
};

class Run {
public:
    Run(const std::uint8_t *data, std::size_t size) : in_(data, size), files_(in_) {}
    void Whole_Program();

private:
    // The program's questions.
    Box_Answer Answer_Box(const Shown_Box &box);
    int Answer_Menu(const std::vector<platform::Menu_Item> &items);
    std::string Answer_Dialog(const platform::File_Dialog &dialog);
    void Interrupt();

    // Actions.
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
    void Step_Clock();
    void Pass_Time();
    void Look();

    // The oracle.
    void Begin_Action();
    void End_Action();
    void Demand(bool holds, const std::string &what);
    std::optional<std::string> Disk() const;
    void Commit(bool at_end);
    void Fail_Pending();
    void Forget();
    bool Has_Cause() const;
    void Follow_Editor();
    void Check_Store();
    void Check_Month();
    std::string Line_Of(const std::string &record) const;

    Bytes in_;
    Made_Files files_;
    Model model_;
    std::optional<Model_Editor> editor_;
    std::vector<Pending> pending_;
    Model_Day menu_day_; ///< of the box that was clicked for its menu
    std::string action_; ///< what the user does now
    int actions_ = 0, depth_ = 0;
    int fail_in_ = 0, fails_ = 0; ///< calls for files until one fails, and how many did in this action
    bool typed_ = false, saved_ = false, loading_failed_ = false, staged_ = false;
    bool places_ = false, styles_ = false, dialog_ = false,
         configures_ = false; ///< what the action may store
    bool refused_ = false;    ///< the store has not taken all that the program holds
    bool touched_ = false;    ///< something was chosen in the settings dialog that is open
    std::map<std::string, std::string, Name_Less> store_; ///< before the action
    int exhausted_ = 0;
};

void Run::Demand(bool holds, const std::string &what) {
    if (holds)
        return;
    std::fprintf(stderr, "action %d, %s: %s\n", actions_, action_.c_str(), what.c_str());
    const auto show = [](const char *name, const std::optional<std::string> &bytes) {
        std::fprintf(stderr, "%s: %s\n", name, bytes ? bytes->c_str() : "no file");
    };
    show("disk", Disk());
    show("model", model_.file ? std::optional(model_.file->bytes) : std::nullopt);
    for (const Pending &each : pending_)
        for (const Outcome &outcome : each.outcomes(model_))
            show("wanted", outcome.file ? std::optional(outcome.file->bytes) : std::nullopt);
    std::abort();
}

std::optional<std::string> Run::Disk() const {
    const auto file = Fakes().files.find(Data_Path);
    return file == Fakes().files.end() ? std::nullopt : std::optional(file->second);
}

bool Run::Has_Cause() const {
    const bool held = !Fakes().unreadable.empty() || !Fakes().unwritable.empty();
    return fails_ > 0 || held || (model_.file && !model_.file->whole);
}

/// Takes what is on the disk for the end of what was asked for, where it is. At the end of an action it must
/// be.
void Run::Commit(bool at_end) {
    const std::optional<std::string> disk = Disk();
    if (!model_.file && !model_.scratch && disk) { // nobody can say what was saved
        model_.file = Read_Plain(*disk);
        pending_.clear();
    }
    while (!pending_.empty()) {
        const Pending pending = pending_.back();
        const Outcomes outcomes = pending.outcomes(model_);
        const auto done = std::find_if(outcomes.begin(), outcomes.end(), [&](const Outcome &outcome) {
            return outcome.file.has_value() == disk.has_value() && (!disk || outcome.file->bytes == *disk);
        });
        const bool stays = model_.Is_Now(disk);
        if (!at_end && stays)
            return; // still to come
        const bool whole = !model_.file || model_.file->whole;
        if (done == outcomes.end()) {
            Demand(stays && (pending.may_stay || !whole), "the data file is not what the user made of it");
            Forget();
        } else {
            model_.file = done->file;
            model_.scratch = done->scratch;
            if (pending.may_stay)
                Forget();
        }
        pending_.pop_back();
    }
    Demand(model_.Is_Now(disk), "the data file is another one than the user's");
}

/// What was asked for last failed, and was told: the file is as it was.
void Run::Fail_Pending() {
    const std::optional<std::string> disk = Disk();
    Demand(model_.Is_Now(disk), "a failure has changed the data file");
    if (pending_.empty())
        return;
    pending_.pop_back();
    Forget();
}

/// After a failure the memory may hold what was read before it.
void Run::Forget() {
    if (model_.file || !strict)
        model_.scratch.reset();
}

void Run::Begin_Action() {
    ++actions_;
    fails_ = 0;
    typed_ = saved_ = loading_failed_ = false;
    places_ = styles_ = configures_ = false;
    dialog_ = Window("Settings_Frm") != nullptr;
    store_ = Fakes().registry;
}

void Run::End_Action() {
    Commit(true);
    Follow_Editor();
    Check_Store();
    if (std::getenv("VELLATRO_FUZZ_TELL") != nullptr)
        std::fprintf(stderr, "%d: %s\n", actions_, action_.c_str());
}

/// The editor shows what it showed, or it was opened and shows the day's event.
void Run::Follow_Editor() {
    Form_Model *window = Window("Edit_Frm");
    if (window == nullptr) {
        editor_.reset();
        return;
    }
    Model_Editor now;
    now.day = Day_Of(Control(*window, "Date_Lbl").caption);
    now.text = Control(*window, "Message_Txt").caption;
    now.yearly = Control(*window, "Every_Year_Chk").checked;
    now.unsaved = Control(*window, "Apply_Btn").enabled;
    if (editor_) {
        now.blind = editor_->blind;
        now.maybe_blind = editor_->maybe_blind;
        if (typed_ || (now.day == editor_->day && now.text == editor_->text &&
                       now.yearly == editor_->yearly && now.unsaved == editor_->unsaved)) {
            editor_ = now;
            return;
        }
    }
    const auto [text, yearly] = model_.Message(now.day);
    const bool whole = !model_.file || model_.file->whole;
    now.maybe_blind = loading_failed_;
    now.blind = strict && (!whole || Fakes().unreadable.contains(Data_Path));
    if (!loading_failed_) {
        Demand(now.text == text, "the editor shows \"" + now.text + "\", not \"" + text + "\"");
        Demand(now.yearly == (yearly || (editor_ && !saved_ && editor_->yearly)),
               "the editor's tick is wrong");
    }
    Demand(!now.unsaved, "an editor that was just opened has unsaved text");
    editor_ = now;
}

void Run::Check_Store() {
    const std::string general = "Software\\Vellatro\\Settings\\", colours = "Software\\Vellatro\\Colours\\";
    const auto may = [&](const std::string &key) {
        const auto is = [&](std::initializer_list<const char *> names) {
            return std::any_of(names.begin(), names.end(),
                               [&](const char *name) { return key == general + name; });
        };
        return key.starts_with("Control Panel\\Desktop\\") || is({"Use Themes", "Bar Date Format"}) ||
               configures_ || (places_ && is({"Manual_PosX", "Manual_PosY", "Alignment", "Use Theme Pos"})) ||
               (styles_ && is({"Style", "Use Theme Style"})) ||
               (dialog_ && (is({"Settings Tab"}) || !is({"Manual_PosX", "Manual_PosY"})));
    };
    for (const auto &[key, text] : Fakes().registry) {
        const auto before = store_.find(key);
        if (before != store_.end() && before->second == text)
            continue;
        Demand(!Fakes().registry_refuses_writes || key.starts_with("Control Panel"),
               "a store that refuses has taken " + key);
        const std::string from = before == store_.end() ? "nothing" : "\"" + before->second + "\"";
        Demand(may(key), "the store's key " + key + " has changed from " + from + " to \"" + text + "\"");
        const bool same = before == store_.end() || touched_ || refused_ || !dialog_ || configures_ ||
                          !(key.starts_with(general) || key.starts_with(colours));
        const bool one_value = key == general + "Bar Time"; // 1 and True
        Demand(same || one_value || key == general + "Settings Tab" || key == general + "Use Themes",
               "a dialog in which nothing was chosen has changed " + key + " from " + from + " to \"" + text +
                   "\"");
    }
    Demand(Fakes().registry.size() >= store_.size(), "a key of the store has gone");
}

std::string Run::Line_Of(const std::string &record) const {
    const std::optional<Model_Day> day = Day_Of_Key(Key_Of(record));
    if (!day)
        return {};
    const bool yearly = day->year == 9999;
    const int year = yearly ? Fakes().now.year : day->year;
    const int last = Days_In_Month(year, day->month);
    return platform::Short_Date(year, day->month, std::min(day->day, last)) +
           (yearly ? " (every year)  -  " : "  -  ") + Text_Of(record);
}

/// Has the month drawn anew: each day shows its event.
void Run::Check_Month() {
    Form_Model *calendar = Window("Calendar");
    if (calendar == nullptr || Window("Settings_Frm") != nullptr ||
        !Control(*calendar, "Prev_Month_Lbl").visible)
        return;
    action_ = "F5, and the month is compared";
    Begin_Action();
    places_ = true; // a move by the keys may end
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
    Demand(!strict || days == Days_In_Month(last.year, last.month), "the month has " + std::to_string(days) + " boxes");
}

// The program's questions.

void Run::Interrupt() {
    if (depth_ > 3)
        return;
    switch (in_.Pick(24)) {
    case 1:
        return Pass_Time();
    case 2:
        return Step_Clock();
    case 3:
        Desktop().Say(Broadcast::Session_Ends);
        return;
    case 4:
        if (in_.Pick(4) == 0)
            Desktop().Say(Broadcast::Session_Over);
        return;
    case 5:
        Desktop().Say(Broadcast::Settings_Changed);
        return;
    default:
        return;
    }
}

Box_Answer Run::Answer_Box(const Shown_Box &box) {
    const auto begins = [&box](const char *text) { return box.text.starts_with(text); };
    if (std::getenv("VELLATRO_FUZZ_TELL") != nullptr)
        std::fprintf(stderr, "   box: %s\n", box.text.c_str());
    ++depth_;
    Commit(false);
    if (begins("Error loading in data file.")) {
        loading_failed_ = true;
        Demand(Has_Cause() || (model_.file && !All_Keyed(model_.file->records)),
               "a reading that went well has failed");
        for (Pending &each : pending_)
            each.may_stay = true;
    } else if (begins("Error saving data file.")) {
        const bool unwritable = !All_Writable(model_.Base());
        const bool blind = editor_ && (editor_->blind || editor_->maybe_blind);
        Demand(Has_Cause() || unwritable || blind, "a save without a cause to fail has failed");
        Fail_Pending();
    } else if (begins("Error when importing from CSV file.")) {
        const bool expected = !pending_.empty() && pending_.back().outcomes(model_).empty();
        Demand(Has_Cause() || expected, "an import without a cause to fail has failed");
        Fail_Pending();
    } else if (begins("Error when importing data file.")) {
        Demand(Has_Cause(), "an import without a cause to fail has failed");
        Fail_Pending();
    }
    Interrupt();
    Box_Answer answer = Box_Answer::Ok;
    if (box.buttons != platform::Box_Buttons::Ok) {
        const int last = box.buttons == platform::Box_Buttons::Yes_No ? 2 : 3;
        constexpr Box_Answer answers[] = {Box_Answer::No, Box_Answer::Yes, Box_Answer::Cancel};
        answer = in_.Out() ? Box_Answer::No : answers[in_.Pick(last)];
    }
    const bool yes = answer == Box_Answer::Yes;
    if (yes && begins("Save changes for the ") && editor_ && editor_->text.find('"') == std::string::npos) {
        const Model_Editor from = *editor_;
        saved_ = true; // and closed, so that another day's editor starts afresh
        pending_.push_back({[from](const Model &model) {
                                return from.blind ? Outcomes{}
                                                  : After_Save(model, from.day, from.text, from.yearly);
                            },
                            from.maybe_blind});
    } else if (yes && begins("Do you really want to remove the event..")) {
        const std::string line = box.text.substr(box.text.find("\r\n\r\n") + 4);
        const bool staged = staged_;
        pending_.push_back({[this, line, staged](const Model &model) {
            Outcomes outcomes = After_Removal(model, line, staged,
                                              [this](const std::string &record) { return Line_Of(record); });
            if (strict || (model.file && !model.file->whole))
                return outcomes;
            for (std::size_t i = 0; i < model.Base().size(); ++i) {
                Records records = model.Base();
                records.erase(records.begin() + static_cast<std::ptrdiff_t>(i));
                outcomes.push_back({Written(records), {}});
            }
            return outcomes;
        }});
    } else if (yes && begins("You already have a working data file.")) {
        const Model_File chosen = files_.Data(files_.chosen);
        pending_.push_back({[chosen](const Model &) { return Outcomes{{chosen, {}}}; }});
    } else if (yes && begins("Manual Positioning is not selected.")) {
        places_ = true;
    }
    --depth_;
    if (std::getenv("VELLATRO_FUZZ_TELL") != nullptr)
        std::fprintf(stderr, "   answer %d\n", static_cast<int>(answer));
    return answer;
}

int Run::Answer_Menu(const std::vector<platform::Menu_Item> &items) {
    if (in_.Out())
        return 0;
    int chosen = in_.Pick(static_cast<int>(items.size()) + 1);
    if (items.front().text == "Clear" && in_.Pick(2) == 0)
        chosen = 3; // the settings
    if (chosen == 0)
        return 0;
    const platform::Menu_Item &item = items[static_cast<std::size_t>(chosen - 1)];
    if (item.text == "Exit" && in_.Pick(3) != 0)
        return 0;
    if (std::getenv("VELLATRO_FUZZ_TELL") != nullptr)
        std::fprintf(stderr, "   menu: %s\n", item.text.c_str());
    if (!item.enabled)
        return 0;
    if (item.text == "Clear") {
        Model_Day day = menu_day_;
        if (Form_Model *calendar = Window("Calendar"); calendar != nullptr && Desktop().menu_at)
            day = Day_Of(Control_At(*calendar, *Desktop().menu_at)->access.name);
        pending_.push_back({[day](const Model &model) { return After_Save(model, day, {}, false); }});
    }
    return item.id;
}

std::string Run::Answer_Dialog(const platform::File_Dialog &dialog) {
    ++depth_;
    Commit(false);
    Interrupt();
    --depth_;
    const std::string path = in_.Out() ? std::string() : files_.Choose(dialog.title);
    if (std::getenv("VELLATRO_FUZZ_TELL") != nullptr)
        std::fprintf(stderr, "   %s: %s\n", dialog.title.c_str(), path.c_str());
    if (path.empty() || dialog.saves || !Fakes().files.contains(path))
        return path;
    if (dialog.title == "Import Data File" && !Name_Is(path, Data_Path) && !model_.file) {
        const Model_File chosen = files_.Data(path);
        pending_.push_back({[chosen](const Model &) { return Outcomes{{chosen, {}}}; }});
    } else if (dialog.title == "Import Events from CSV File") {
        const Model_CSV csv = files_.CSV(path);
        staged_ = true;
        pending_.push_back({[csv](const Model &model) { return After_Import(model, csv); }});
    } else if (dialog.title == "Import Configuration File") {
        configures_ = touched_ = true;
    }
    return path;
}

// Actions.

void Run::Step_Clock() {
    platform::Date_Time &now = Fakes().now;
    constexpr int years[] = {2001, 2002, 2003, 2004, 1900, 9998, 2002, 2002};
    constexpr int months[] = {3, 1, 2, 12, 3, 6, 7, 9};
    now = {years[in_.Pick(8)], months[in_.Pick(8)], 1, 0, 0, 0, 0};
    constexpr int days[] = {5, 1, 28, 29, 31, 31, 31};
    now.day = std::min(days[in_.Pick(7)], Days_In_Month(now.year, now.month));
    if (in_.Pick(2) == 1)
        now.hour = 23, now.minute = 59, now.second = 59, now.millisecond = 900;
    if (in_.Pick(2) == 1)
        Desktop().Say(Broadcast::Time_Changed);
    Desktop().Advance(1100);
}

void Run::Pass_Time() {
    constexpr unsigned spans[] = {1000, 300, 61000, 5000};
    const unsigned span = spans[in_.Pick(4)];
    for (unsigned left = span; left > 0; left -= std::min(left, 1000U)) {
        platform::Date_Time &now = Fakes().now;
        if (++now.second > 59)
            now.second = 0, ++now.minute;
        if (now.minute > 59)
            now.minute = 0, now.hour = std::min(now.hour + 1, 23);
        Desktop().Advance(std::min(left, 1000U));
    }
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
    constexpr int likely[] = {0, 4, 5, 27}; // Made_Day has those
    const int count = static_cast<int>(boxes.size());
    const int which = std::min(in_.Pick(2) == 0 ? likely[in_.Pick(4)] : in_.Pick(count), count - 1);
    const Control_State &box = *boxes[static_cast<std::size_t>(which)];
    menu_day_ = Day_Of(box.access.name);
    const int way = in_.Pick(5);
    action_ = "the box of " + menu_day_.Key() + " is used in way " + std::to_string(way);
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
    constexpr int keys[] = {Key_F1,        Key_F2,   Key_F3,    Key_F4,     Key_F5,     Key_F8,
                            Key_F9,        Key_F12,  Key_Left,  Key_Up,     Key_Right,  Key_Down,
                            Key_M,         Key_Y,    Key_Menu,  Key_Return, Key_Delete, Key_Page_Up,
                            Key_Page_Down, Key_Home, Key_Delete};
    platform::Input_Event event{.kind = Input_Kind::Key_Down};
    event.key = keys[in_.Pick(21)];
    event.control_key = in_.Pick(6) == 1;
    event.shift = in_.Pick(6) == 1;
    event.alt = in_.Pick(16) == 1;
    action_ = "key " + std::to_string(event.key) + (event.control_key ? " with Ctrl" : "") +
              (event.alt ? " and Alt" : "");
    places_ = true;
    styles_ = event.key == Key_F8 || event.key == Key_F9;
    Send(calendar, {.kind = Input_Kind::Focus_Changed, .checked = true});
    const bool acts = event.key == Key_Delete && !event.control_key && !event.alt &&
                      Window("Settings_Frm") == nullptr && Control(calendar, "Prev_Month_Lbl").visible;
    Send(calendar, event);
    for (const Control_State *box : calendar.controls) {
        if (!acts || !box->marked)
            continue;
        const Model_Day day = Day_Of(box->access.name);
        pending_.push_back({[day](const Model &model) { return After_Save(model, day, {}, false); }});
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
        const std::string text = Made_Text(in_, in_.Pick(12) == 1);
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
                                from.maybe_blind || from.blind});
        const bool asked = !pending_.empty();
        const std::size_t boxes = Fakes().boxes.size();
        Send(editor, {.kind = Input_Kind::Clicked, .control = ok.index});
        const bool failed = Told_Since(boxes, "Error saving data file.");
        if (strict && asked && failed && !Desktop().loop_ended)
            Demand(Window("Edit_Frm") != nullptr &&
                       Control(*Window("Edit_Frm"), "Message_Txt").caption == from.text &&
                       Control(*Window("Edit_Frm"), "Apply_Btn").enabled,
                   "a save that failed has closed the editor, or its text is not unsaved");
        if (strict && failed)
            typed_ = true; // a text that was not unsaved is so now
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
    const platform::Point point{control.bounds.width * (in_.Pick(9) + 1) / 10,
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

/// Another hand changes, takes away or holds files.
void Run::Use_Files() {
    const int way = in_.Pick(8);
    action_ = "files are changed in way " + std::to_string(way);
    switch (way) {
    case 0:
    case 1:
        model_.file = Made_Data(in_);
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
    Fakes().painting = [this] { Look(); };
    Desktop().answer_menu = [this](const auto &items) { return Answer_Menu(items); };
    Desktop().in_loop = [this] { Act(); };
    constexpr const char *patterns[] = {"d/m/yyyy", "yyyy-mm-dd", "m/d/yyyy", "dd.mm.yyyy"};
    Fakes().short_date_pattern = patterns[in_.Pick(4)];
    if (in_.Pick(2) == 1)
        Fakes().clock_step = 2000; // all that can be long is
    if (in_.Pick(2) == 1)
        Make_Pack();
    if (in_.Pick(4) != 0) {
        model_.file = Made_Data(in_);
        Fakes().files[Data_Path] = model_.file->bytes;
    }
    files_.Renew();
    for (int start = 0; start < 3 && (start == 0 || !in_.Out()); ++start) {
        action_ = "the program starts";
        Begin_Action();
        exhausted_ = 0;
        refused_ = Fakes().registry_refuses_writes;
        model_.scratch = Records{};
        editor_.reset();
        Demand(Run_Program() == 0, "the program does not start");
        action_ = "the program ends";
        configures_ = true;
        Commit(true);
        Demand(Desktop().mirrors.empty() && Desktop().timers.empty(), "a window or a timer is left over");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Run(data, size).Whole_Program();
    return 0;
}

// The checks after each action of the whole program: of the data file against the model, of the editor and of
// the registry.
#pragma once

#include "base/joined.h"
#include "fuzz/program_files.h"
#include "fuzz/program_model.h"
#include "fuzz/program_windows.h"
#include "tests/fakes/fake_forms.h"

#include <cstdio>
#include <cstdlib>

using platform::Control_State;
using platform::Form_Model;

/// Whether each action, message box and answer is printed.
inline bool tells = false;

/// Counts the actions of all inputs and prints the count at the end of the process.
struct Action_Count {
    unsigned long long actions = 0;
    ~Action_Count() { static_cast<void>(std::printf("%llu actions\n", actions)); }
};
inline Action_Count action_count;

/// The content of the editor.
struct Model_Editor {
    Model_Day day;
    std::string text;
    bool yearly = false, unsaved = false;
    bool blind = false;       ///< its reading failed, so that it must refuse to save
    bool maybe_blind = false; ///< a reading failed when the editor opened, possibly one for another window
};

/// A change of the data file that the user has begun and whose outcome the oracle has not seen yet.
struct Pending {
    std::function<Outcomes(const Model &)> outcomes;
    bool may_stay = false; ///< a reading failed with a message, so that the file may be unchanged
    std::string name = {}; ///< of the Undo step
    /// The files between two writes of one change; none if the program writes once.
    std::function<Outcomes(const Model &)> parts = {};
    std::optional<Model_Step> begun = {}; ///< the part that was in the file while a box was open
};

class Oracle {
protected:
    /// Aborts if `holds` is false, after printing the state of the program and of the model.
    void Demand(bool holds, const std::string &what);
    /// Prints the text if --tell was given.
    static void Tell(const std::string &text) {
        if (tells)
            static_cast<void>(std::puts(text.c_str()));
    }
    void Begin_Action();
    void End_Action();
    void Commit(bool at_end);
    void Fail_Pending();
    void Want_Undo();
    void Check_Undo_Item(const std::string &text);
    bool Has_Cause() const;
    std::optional<std::string> Disk() const;
    std::string Line_Of(const std::string &record) const;

    Model model_;
    std::optional<Model_Editor> editor_;
    std::vector<Pending> pending_;
    std::string action_; ///< the current action, in words
    int actions_ = 0;
    int fails_ = 0; ///< file calls that failed in this action
    bool typed_ = false, saved_ = false, loading_failed_ = false;
    /// Which registry values the action may write.
    bool places_ = false, styles_ = false, dialog_ = false, configures_ = false;
    bool refused_ = false; ///< the registry has refused a write, so that it lags behind the program
    bool touched_ = false; ///< the user has changed a control of the open settings dialog

private:
    void Forget();
    bool Begin_Part(const std::optional<std::string> &disk);
    void Follow_Restore(const std::optional<std::string> &disk);
    void Keep_Part(Model_Step part);
    void Follow_Editor();
    void Check_Store();

    std::map<std::string, std::string, Name_Less> store_; ///< before the action
};

inline void Oracle::Demand(bool holds, const std::string &what) {
    if (holds)
        return;
    tells = true;
    Tell(Joined({"action ", std::to_string(actions_), ", ", action_, ": ", what}));
    const auto show = [](const char *name, const std::optional<std::string> &bytes) {
        Tell(Joined({name, ": ", bytes ? *bytes : "no file"}));
    };
    show("disk", Disk());
    show("model", model_.file ? std::optional(model_.file->bytes) : std::nullopt);
    for (const Pending &each : pending_)
        for (const Outcome &outcome : each.outcomes(model_))
            show("wanted", outcome.file ? std::optional(outcome.file->bytes) : std::nullopt);
    static_cast<void>(std::fflush(stdout));
    std::abort();
}

inline std::optional<std::string> Oracle::Disk() const {
    const auto file = Fakes().files.find(Data_Path);
    return file == Fakes().files.end() ? std::nullopt : std::optional(file->second);
}

inline bool Oracle::Has_Cause() const {
    const bool held = !Fakes().unreadable.empty() || !Fakes().unwritable.empty();
    return fails_ > 0 || held || (model_.file && !model_.file->whole);
}

/// Matches the disk with the outcomes of the pending changes. At the end of an action they must match.
inline void Oracle::Commit(bool at_end) {
    const std::optional<std::string> disk = Disk();
    if (!model_.file && !model_.scratch && disk) { // the saved records were not known
        model_.Add_Step({"", model_.file, Read_Plain(*disk), false});
        model_.file = model_.steps.back().after;
        pending_.clear();
    }
    while (!pending_.empty()) {
        Follow_Restore(disk);
        const Pending pending = pending_.back();
        const Outcomes outcomes = pending.outcomes(model_);
        const auto done = std::find_if(outcomes.begin(), outcomes.end(), [&](const Outcome &outcome) {
            return outcome.file.has_value() == disk.has_value() && (!disk || outcome.file->bytes == *disk);
        });
        const bool stays = model_.Is_Now(disk);
        if (!at_end && stays)
            return; // still to come
        const bool whole = !model_.file || model_.file->whole;
        if (done == outcomes.end() && !at_end && Begin_Part(disk))
            return;
        if (done == outcomes.end()) {
            Demand(stays && (pending.may_stay || !whole), "the data file is not what the user made of it");
            Forget();
        } else {
            const bool readable = fails_ == 0 && !Fakes().unreadable.contains(Data_Path);
            if (done->undone > 0)
                model_.Drop_Steps(done->undone);
            else if (!Same_Bytes(model_.file, done->file) && !pending_.front().begun)
                // a change inside another has the outer name
                model_.Add_Step(
                    {pending_.size() == 1 ? pending.name : "", model_.file, done->file, readable});
            model_.file = done->file;
            model_.scratch = done->scratch;
            if (pending.may_stay)
                Forget();
        }
        pending_.pop_back();
    }
    Demand(model_.Is_Now(disk), "the data file is another one than the user's");
}

/// Follows a part of the newest pending change that the disk holds, and returns whether there is one. The
/// change can then only fail.
inline bool Oracle::Begin_Part(const std::optional<std::string> &disk) {
    Pending &pending = pending_.back();
    for (const Outcome &part : pending.parts ? pending.parts(model_) : Outcomes{}) {
        if (!part.file || disk != part.file->bytes)
            continue;
        pending.begun = Model_Step{pending.name, model_.file, part.file, false};
        pending.outcomes = [](const Model &) { return Outcomes{}; };
        pending.parts = {};
        model_.file = part.file;
        return true;
    }
    return false;
}

/// Follows the removal of the part of a change that has failed. The program may not remove a part that a save
/// has followed.
inline void Oracle::Follow_Restore(const std::optional<std::string> &disk) {
    std::optional<Model_Step> &begun = pending_.back().begun;
    Model before;
    if (begun)
        before.file = begun->before;
    if (!begun || !before.Is_Now(disk) || !Same_Bytes(begun->after, model_.file))
        return;
    model_.file = before.file;
    begun.reset();
}

/// Follows the failure of a change of which a part stays in the file: a save followed that part, or the
/// safety copy cannot be read.
inline void Oracle::Keep_Part(Model_Step part) {
    const bool held = part.before && Fakes().unreadable.contains(Backup_Path);
    Demand(held || !Same_Bytes(part.after, model_.file), "a failed import has left a part of its events");
    part.after = model_.file;
    model_.Add_Step(std::move(part));
}

/// Drops the newest pending change, for which a failure was shown. The file must be unchanged.
inline void Oracle::Fail_Pending() {
    const std::optional<std::string> disk = Disk();
    if (!pending_.empty() && pending_.back().begun)
        Keep_Part(*pending_.back().begun);
    Demand(model_.Is_Now(disk), "a failure has changed the data file");
    if (pending_.empty())
        return;
    pending_.pop_back();
    Forget();
}

/// Adds an Undo by the user to the pending changes.
inline void Oracle::Want_Undo() {
    pending_.push_back({After_Undo});
}

/// Checks the Undo item of the menu of a day. `text` is empty if the menu has none.
inline void Oracle::Check_Undo_Item(const std::string &text) {
    if (model_.steps.empty())
        return Demand(text.empty(), "the menu has \"" + text + "\" without a change");
    const Model_Step &step = model_.steps.back();
    Demand(!step.sure || text.starts_with("Undo: " + step.name), "the menu has \"" + text + "\"");
}

/// Marks the records in memory as not known: a failed action may have read the file before it failed.
inline void Oracle::Forget() {
    if (model_.file || !strict)
        model_.scratch.reset();
}

inline void Oracle::Begin_Action() {
    ++actions_;
    ++action_count.actions;
    fails_ = 0;
    typed_ = saved_ = loading_failed_ = false;
    places_ = styles_ = configures_ = false;
    dialog_ = Window("Settings_Frm") != nullptr;
    store_ = Fakes().registry;
}

inline void Oracle::End_Action() {
    Commit(true);
    Follow_Editor();
    Check_Store();
    Tell(std::to_string(actions_) + ": " + action_);
}

/// Checks that the editor is unchanged or, if it was just opened, shows the event of its day.
inline void Oracle::Follow_Editor() {
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
    const bool readable = !model_.file || (model_.file->whole && !Fakes().unreadable.contains(Data_Path));
    if (editor_) {
        const bool same = now.day == editor_->day && now.text == editor_->text &&
                          now.yearly == editor_->yearly && now.unsaved == editor_->unsaved;
        // The user may have reopened the editor for the same day.
        now.blind = editor_->blind && (typed_ || !readable);
        now.maybe_blind = editor_->maybe_blind || editor_->blind || (!typed_ && loading_failed_);
        if (typed_ || same) {
            editor_ = now;
            return;
        }
    }
    const auto [text, yearly] = model_.Message(now.day);
    now.maybe_blind = loading_failed_;
    now.blind = strict && !readable;
    if (!loading_failed_) {
        Demand(now.text == text, "the editor shows \"" + now.text + "\", not \"" + text + "\"");
        Demand(now.yearly == (yearly || (editor_ && !saved_ && editor_->yearly)),
               "the editor's tick is wrong");
    }
    Demand(!now.unsaved, "an editor that was just opened has unsaved text");
    editor_ = now;
}

inline void Oracle::Check_Store() {
    const std::string general = "Software\\Vellatro\\Settings\\", colours = "Software\\Vellatro\\Colours\\";
    const auto may = [&](const std::string &key) {
        const auto is = [&](std::initializer_list<const char *> names) {
            return std::any_of(names.begin(), names.end(),
                               [&](const char *name) { return key == general + name; });
        };
        return key.starts_with("Control Panel\\Desktop\\") ||
               key.starts_with("Software\\Vellatro\\Preview\\") || is({"Use Themes", "Bar Date Format"}) ||
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
        const std::string from = before == store_.end() ? "nothing" : Joined({"\"", before->second, "\""});
        const std::string change = Joined({key, " has changed from ", from, " to \"", text, "\""});
        Demand(may(key), "the store's key " + change);
        // The program stores a move by the arrow keys when Ctrl comes up, which a menu can delay.
        const bool same = before == store_.end() || touched_ || refused_ || !dialog_ || configures_ ||
                          places_ || !(key.starts_with(general) || key.starts_with(colours));
        // 1 and True are equal. The title stores another pattern for an unknown one, which the dialog shows.
        const bool alike = key == general + "Bar Time" || key == general + "Bar Date Format";
        Demand(same || alike || key == general + "Settings Tab" || key == general + "Use Themes",
               "a dialog in which nothing was chosen: " + change);
    }
    Demand(Fakes().registry.size() >= store_.size(), "a key of the store has gone");
}

inline std::string Oracle::Line_Of(const std::string &record) const {
    const std::optional<Model_Day> day = Day_Of_Key(Key_Of(record));
    if (!day)
        return {};
    const bool yearly = day->year == 9999;
    const int year = yearly ? Fakes().now.year : day->year;
    const int last = Days_In_Month(year, day->month);
    return platform::Short_Date(year, day->month, std::min(day->day, last)) +
           (yearly ? " (every year)  -  " : "  -  ") + Text_Of(record);
}

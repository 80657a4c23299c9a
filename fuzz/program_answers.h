// The answers to message boxes, menus and file dialogs. An answer that changes the data file becomes a
// pending change of the oracle. Time passes and the session may end while a box or dialog is open.
#pragma once

#include "fuzz/program_oracle.h"

using platform::Box_Answer;
using platform::Broadcast;

class Answers : protected Oracle {
protected:
    explicit Answers(Bytes &in) : in_(in), files_(in) {}

    Box_Answer Answer_Box(const Shown_Box &box);
    int Answer_Menu(const std::vector<platform::Menu_Item> &items);
    std::string Answer_Dialog(const platform::File_Dialog &dialog);
    /// Adds the removal of the event of the box's day to the pending changes. An event that the box does not
    /// show, because a reading failed, may stay.
    void Clear(const Control_State &box);
    void Step_Clock();
    void Pass_Time();

    Bytes &in_;
    Random_Files files_;
    const Control_State *menu_box_ = nullptr; ///< the box that was clicked for its menu
    bool staged_ = false;                     ///< the list may show imported events

private:
    void Interrupt();
    void Happen();
    void Check_Failure(const Shown_Box &box);
    void Agree(const std::string &question);

    int depth_ = 0;
};

inline void Answers::Step_Clock() {
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

inline void Answers::Pass_Time() {
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

/// Lets something else happen while a box or a file dialog is open, perhaps a save at the session's end.
inline void Answers::Interrupt() {
    if (depth_ > 3)
        return;
    Happen();
    Commit(false);
}

inline void Answers::Happen() {
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

/// Checks that a failure message has a cause and that the failure left the data file unchanged.
inline void Answers::Check_Failure(const Shown_Box &box) {
    const auto begins = [&box](const char *text) { return box.text.starts_with(text); };
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
    } else if (begins("Error when importing from CSV file.") ||
               begins("Error when importing from iCalendar file.")) {
        const bool expected = !pending_.empty() && pending_.back().outcomes(model_).empty();
        Demand(Has_Cause() || expected, "an import without a cause to fail has failed");
        Fail_Pending();
    } else if (begins("The data file has changed since then")) {
        Demand(!pending_.empty(), "an Undo that the user did not ask for has failed");
        pending_.pop_back();
    } else if (begins("Error when importing data file.")) {
        Demand(Has_Cause(), "an import without a cause to fail has failed");
        Fail_Pending();
    }
}

/// Adds the change for which the user answered Yes to the pending changes.
inline void Answers::Agree(const std::string &question) {
    const auto begins = [&question](const char *text) { return question.starts_with(text); };
    if (begins("Save changes for the ") && editor_ && editor_->text.find('"') == std::string::npos) {
        const Model_Editor from = *editor_;
        saved_ = true; // the editor closes now, so the next one does not keep the state of "every year"
        pending_.push_back({[from](const Model &model) {
                                return from.blind ? Outcomes{}
                                                  : After_Save(model, from.day, from.text, from.yearly);
                            },
                            from.maybe_blind, "Edit"});
    } else if (begins("Do you really want to remove the event..")) {
        const std::string line = question.substr(question.find("\r\n\r\n") + 4);
        const bool staged = staged_;
        const auto outcomes_of = [this, line, staged](const Model &model) {
            bool unsure = false;
            const auto line_of = [&](const std::string &record) {
                // Since the list was made, the clock's year may have changed.
                const bool maybe = Key_Of(record).ends_with("/9999") &&
                                   line.ends_with(" (every year)  -  " + Text_Of(record));
                unsure = unsure || maybe;
                return maybe ? line : Line_Of(record);
            };
            Outcomes outcomes = After_Removal(model, line, staged, line_of);
            if (unsure)
                outcomes.push_back({model.file, {}});
            if (strict || (model.file && !model.file->whole))
                return outcomes;
            for (std::size_t i = 0; i < model.Base().size(); ++i) {
                Records records = model.Base();
                records.erase(records.begin() + static_cast<std::ptrdiff_t>(i));
                outcomes.push_back({Written(records), {}});
            }
            return outcomes;
        };
        pending_.push_back({outcomes_of, false, "Remove"});
    } else if (begins("You already have a working data file.")) {
        const Model_File chosen = files_.Data(files_.chosen);
        pending_.push_back({[chosen](const Model &) { return Outcomes{{chosen, {}}}; }, false, "Import"});
    } else if (begins("Manual Positioning is not selected.")) {
        places_ = true;
    }
}

inline Box_Answer Answers::Answer_Box(const Shown_Box &box) {
    Tell("   box: " + box.text);
    ++depth_;
    Commit(false);
    Check_Failure(box);
    if (box.text.starts_with("Successfully exported ") && box.text.ends_with(Exported_Path))
        files_.Note_Export(model_.file ? model_.file->records : Records{});
    Interrupt();
    Box_Answer answer = Box_Answer::Ok;
    if (box.buttons != platform::Box_Buttons::Ok) {
        const int last = box.buttons == platform::Box_Buttons::Yes_No ? 2 : 3;
        constexpr Box_Answer answers[] = {Box_Answer::No, Box_Answer::Yes, Box_Answer::Cancel};
        answer = in_.Out() ? Box_Answer::No : answers[in_.Pick(last)];
    }
    if (answer == Box_Answer::Yes)
        Agree(box.text);
    --depth_;
    Tell("   answer " + std::to_string(static_cast<int>(answer)));
    return answer;
}

inline void Answers::Clear(const Control_State &box) {
    const Model_Day day = Day_Of(box.access.name);
    pending_.push_back({[day](const Model &model) { return After_Save(model, day, {}, false); },
                        strict && box.access.value.empty(), "Clear"});
}

inline int Answers::Answer_Menu(const std::vector<platform::Menu_Item> &items) {
    if (in_.Out())
        return 0;
    int chosen = in_.Pick(static_cast<int>(items.size()) + 1);
    if (items.front().text == "Clear") {
        Check_Undo_Item(items.back().text.starts_with("Undo") ? items.back().text : "");
        if (in_.Pick(2) == 0)
            chosen = 3; // the settings
    }
    if (chosen == 0)
        return 0;
    const platform::Menu_Item &item = items[static_cast<std::size_t>(chosen - 1)];
    if (item.text == "Exit" && in_.Pick(3) != 0)
        return 0;
    Tell("   menu: " + item.text);
    if (!item.enabled)
        return 0;
    if (item.text.starts_with("Undo"))
        Want_Undo();
    if (item.text == "Clear") {
        const Form_Model *calendar = Window("Calendar");
        const bool at_box = calendar != nullptr && Desktop().menu_at;
        Clear(at_box ? Box_At(*calendar, *Desktop().menu_at) : *menu_box_);
    }
    return item.id;
}

inline std::string Answers::Answer_Dialog(const platform::File_Dialog &dialog) {
    ++depth_;
    Commit(false);
    Interrupt();
    --depth_;
    std::string path = in_.Out() ? std::string() : files_.Choose(dialog.title);
    Tell("   " + dialog.title + ": " + path);
    if (path.empty() || dialog.saves || !Fakes().files.contains(path))
        return path;
    if (dialog.title == "Import Data File" && !Name_Is(path, Data_Path) && !model_.file) {
        const Model_File chosen = files_.Data(path);
        pending_.push_back({[chosen](const Model &) { return Outcomes{{chosen, {}}}; }, false, "Import"});
    } else if (dialog.title == "Import Events from CSV File") {
        const Model_CSV csv = files_.CSV(path);
        staged_ = true;
        pending_.push_back({[csv](const Model &model) { return After_Import(model, csv); }, false, "Import",
                            [csv](const Model &model) { return Import_Parts(model, csv); }});
    } else if (dialog.title == "Import Events from iCalendar File") {
        const Model_ICalendar calendar = files_.ICalendar(path);
        pending_.push_back(
            {[this, calendar](const Model &model) { return After_ICalendar(model, calendar, Disk()); }, false,
             "Import"});
    } else if (dialog.title == "Import Configuration File") {
        configures_ = touched_ = true;
    }
    return path;
}

// The state behind the faked clock, regional settings, files, pictures, registry, wallpaper and message
// boxes, which tests set and read. Forms, drawing, timers, screen, menus and shell have a header of their
// own. No test framework is needed here: benchmarks and fuzz targets link the same fakes.
#pragma once

#include "platform/clock.h"
#include "platform/file_dialog.h"
#include "platform/message_box.h"
#include "platform/pictures.h"
#include "platform/registry.h"

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

/// Orders names as Windows does: ASCII letters count alike in both cases.
struct Name_Less {
    bool operator()(const std::string &a, const std::string &b) const;
};

/// A message box that a test expects, in its turn.
struct Expected_Box {
    std::string text;
    platform::Box_Answer answer = platform::Box_Answer::Ok;
    std::function<void()> meanwhile; ///< what happens while the box is open, as timers go on then
};

/// A message box that was shown.
struct Shown_Box {
    std::string text, title;
    platform::Box_Icon icon;
    platform::Box_Buttons buttons;
};

/// A file dialog that a test expects, in its turn.
struct Expected_Dialog {
    std::string title;
    std::string answer;                                          ///< the chosen path; empty: the user cancels
    std::function<void(platform::File_Dialog &)> look = nullptr; ///< sees the record, and may answer more
};

struct Fake_System {
    /// A Tuesday.
    platform::Date_Time now{2002, 3, 5, 10, 30, 0, 0};
    int zone_minutes = 0; ///< how far local time is ahead of Coordinated Universal Time

    int first_weekday = 0;
    std::array<std::string, 12> months{"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
    /// Of d, dd, m, mm, yy and yyyy; all else stands for itself.
    std::string short_date_pattern = "d/m/yyyy";

    std::map<std::string, std::string, Name_Less> files; ///< path to bytes
    /// When files were written; of one that a test put here it was on 1 February 2002, 9:05.
    std::map<std::string, platform::Date_Time, Name_Less> written;
    std::set<std::string, Name_Less> folders;
    std::set<std::string, Name_Less> unreadable; ///< files that others have locked against reading
    std::set<std::string, Name_Less> unwritable; ///< names under which nothing can be put
    int reads = 0;                               ///< calls of Read_File, failed ones too
    int writes = 0;                              ///< calls of Replace_File, failed ones too

    std::map<std::string, Picture, Name_Less> pictures; ///< path to what is loaded from it
    int loads = 0;                                      ///< calls of Load_Picture
    std::vector<std::string> wallpapers;                ///< all that were set
    std::string monitors;                               ///< what hangs on them
    bool wallpaper_ordered = false; ///< the last one does not hang yet, and would not if the program ended

    /// Key, "\" and value name to text; of HKEY_LOCAL_MACHINE with "HKLM\" before.
    std::map<std::string, std::string, Name_Less> registry;
    bool registry_refuses_writes = false;
    int registry_writes = 0; ///< calls of Write_User_Value, failed ones too

    bool claimable = true; ///< no other copy of the program runs
    int restart_count = 0; ///< of this process
    int started_again = 0; ///< the count of the next one
    bool in_temporary_folder = false;

    std::deque<Expected_Box> expected_boxes;
    std::vector<Shown_Box> boxes; ///< all that were shown
    bool any_box = false;         ///< unexpected boxes are no failure; they get the answer that changes least

    int open_boxes = 0; ///< message boxes and file dialogs

    std::deque<Expected_Dialog> expected_dialogs;
    unsigned milliseconds = 0;      ///< of the clock that only counts
    unsigned clock_step = 0;        ///< what each look at that clock adds to it
    std::function<void()> painting; ///< what happens when a long piece of work lets windows be painted

    std::function<void(const std::string &message)> on_failure; ///< takes what the fakes find wrong

    // What no test expects, where these are filled: how a box is answered, which path a file dialog gives,
    // and whether a call for a file fails.
    std::function<platform::Box_Answer(const Shown_Box &)> answer_box;
    std::function<std::string(const platform::File_Dialog &)> answer_dialog;
    std::function<bool(const std::string &path)> file_fails;

    /// Says that the next message box after those expected already shows `text`, and how it is answered.
    void Expect_Box(std::string text, platform::Box_Answer answer = platform::Box_Answer::Ok,
                    std::function<void()> meanwhile = nullptr) {
        expected_boxes.push_back({std::move(text), answer, std::move(meanwhile)});
    }
    /// Says the same of a file dialog and its title.
    void Expect_Dialog(std::string title, std::string answer) {
        expected_dialogs.push_back({std::move(title), std::move(answer)});
    }
};

/// The one faked system.
Fake_System &Fakes();

/// Makes it new: an empty disk, an empty registry, the told values above.
void Reset_Fakes();

/// For fakes: a requirement that is not met goes to `on_failure`; where nobody takes it, it ends the process.
void Require(bool met, const std::string &message);

// The state of the faked clock, regional settings, files, pictures, registry, wallpaper, message boxes and
// file dialogs, for tests to set and read. fake_forms.h has the rest. Benchmarks and fuzz targets link these
// fakes, so they need no test framework.
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

/// Orders names, ignoring the case of ASCII letters.
struct Name_Less {
    bool operator()(const std::string &a, const std::string &b) const;
};

/// A message box that a test expects next.
struct Expected_Box {
    std::string text;
    platform::Box_Answer answer = platform::Box_Answer::Ok;
    std::function<void()> meanwhile; ///< runs while the box is open
};

/// A message box that the program showed.
struct Shown_Box {
    std::string text, title;
    platform::Box_Icon icon;
    platform::Box_Buttons buttons;
};

/// A file dialog that a test expects next.
struct Expected_Dialog {
    std::string title;
    std::string answer; ///< the chosen path; empty if the user cancels
    std::function<void(platform::File_Dialog &)> look = nullptr; ///< reads and may change the dialog's record
};

struct Fake_System {
    /// Local time, a Tuesday.
    platform::Date_Time now{2002, 3, 5, 10, 30, 0, 0};
    int zone_minutes = 0; ///< minutes from Coordinated Universal Time to local time

    int first_weekday = 0;
    std::array<std::string, 12> months{"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
    /// d, dd, m, mm, yy and yyyy stand for parts of the date, other characters for themselves.
    std::string short_date_pattern = "d/m/yyyy";

    std::map<std::string, std::string, Name_Less> files; ///< contents by path
    /// The time of each file's last write; 1 February 2002, 9:05, if missing.
    std::map<std::string, platform::Date_Time, Name_Less> written;
    std::set<std::string, Name_Less> folders;
    std::set<std::string, Name_Less> unreadable; ///< files that another program has locked
    std::set<std::string, Name_Less> unwritable; ///< paths that cannot be written or deleted
    int reads = 0;                               ///< calls of Read_File, including failures
    int writes = 0;                              ///< calls of Replace_File, including failures

    std::map<std::string, Picture, Name_Less> pictures; ///< by the path they load from
    int loads = 0;                                      ///< calls of Load_Picture
    std::vector<std::string> wallpapers;                ///< all paths set, each with its monitors' text
    std::string monitors;                               ///< the text that describes their wallpapers
    bool wallpaper_ordered = false;                     ///< the last one still waits for Wait_For_Wallpaper

    /// Texts by key, "\" and value name, with "HKLM\" in front for HKEY_LOCAL_MACHINE.
    std::map<std::string, std::string, Name_Less> registry;
    bool registry_refuses_writes = false;
    int registry_writes = 0; ///< calls of Write_User_Value, including failures

    int restart_count = 0; ///< how many restarts led to this process
    int started_again = 0; ///< the restart count given to the next process
    bool in_temporary_folder = false;

    std::deque<Expected_Box> expected_boxes;
    std::vector<Shown_Box> boxes; ///< all shown so far
    bool any_box = false;         ///< an unexpected box is no failure and gets the safest answer

    int open_boxes = 0; ///< message boxes and file dialogs open now

    std::deque<Expected_Dialog> expected_dialogs;
    unsigned milliseconds = 0;      ///< the value of Milliseconds
    unsigned clock_step = 0;        ///< added at each call of Milliseconds
    std::function<void()> painting; ///< runs when long work lets windows paint

    std::function<void(const std::string &message)> on_failure; ///< receives the fakes' complaints

    // If set, these answer boxes and file dialogs that no test expects, and decide whether a file call fails.
    std::function<platform::Box_Answer(const Shown_Box &)> answer_box;
    std::function<std::string(const platform::File_Dialog &)> answer_dialog;
    std::function<bool(const std::string &path)> file_fails;

    /// Expects a message box with this text after those expected already, and answers it.
    void Expect_Box(std::string text, platform::Box_Answer answer = platform::Box_Answer::Ok,
                    std::function<void()> meanwhile = nullptr) {
        expected_boxes.push_back({std::move(text), answer, std::move(meanwhile)});
    }
    /// Expects a file dialog with this title after those expected already.
    void Expect_Dialog(std::string title, std::string answer) {
        expected_dialogs.push_back({std::move(title), std::move(answer)});
    }
};

/// Returns the only faked system.
Fake_System &Fakes();

/// Resets the faked system: an empty disk, an empty registry, and the defaults above.
void Reset_Fakes();

/// Returns the time that many minutes later, or earlier if negative.
platform::Date_Time Later(const platform::Date_Time &time, int minutes);

/// Reports an unmet requirement to `on_failure`, or ends the process if that is not set. For fakes.
void Require(bool met, const std::string &message);

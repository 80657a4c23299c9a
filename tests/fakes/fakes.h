// The state behind the faked clock, regional settings, files, registry and message boxes, which tests set and
// read. Forms, drawing, timers, screen and menus have a header of their own. No test framework is needed
// here: benchmarks and fuzz targets link the same fakes.
#pragma once

#include "platform/clock.h"
#include "platform/message_box.h"

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Orders names as Windows does: ASCII letters count alike in both cases.
struct Name_Less {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

/// A message box that a test expects, in its turn.
struct Expected_Box {
    std::string text;
    platform::Box_Answer answer = platform::Box_Answer::Ok;
    std::function<void()> meanwhile; ///< what happens while the box is open, as timers go on then
};

/// A message box that was shown.
struct Shown_Box {
    std::string text;
    std::string title;
    platform::Box_Icon icon = platform::Box_Icon::None;
    platform::Box_Buttons buttons = platform::Box_Buttons::Ok;
};

struct Fake_System {
    /// A Tuesday.
    platform::Date_Time now{2002, 3, 5, 10, 30, 0, 0};

    int first_weekday = 0;
    std::array<std::string, 12> months{"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
    std::array<std::string, 7> weekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                        "Thursday", "Friday", "Saturday"};
    std::array<std::string, 7> short_weekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    /// Of d, dd, m, mm and yyyy; all else stands for itself.
    std::string short_date_pattern = "d/m/yyyy";

    std::string program_folder = "C:\\Vellatro";
    std::map<std::string, std::string, Name_Less> files; ///< path to bytes
    std::set<std::string, Name_Less> folders;
    std::set<std::string, Name_Less> unreadable; ///< files that others have locked against reading
    std::set<std::string, Name_Less> unwritable; ///< names under which nothing can be put
    int reads = 0;                               ///< calls of Read_File, failed ones too
    int writes = 0;                              ///< calls of Replace_File, failed ones too

    /// Key, "\" and value name to text.
    std::map<std::string, std::string, Name_Less> registry;
    bool registry_refuses_writes = false;
    int registry_writes = 0; ///< calls of Write_User_Value, failed ones too

    std::deque<Expected_Box> expected_boxes;
    std::vector<Shown_Box> boxes; ///< all that were shown
    bool any_box = false;         ///< unexpected boxes are no failure; they get the answer that changes least

    /// Says that the next message box after those expected already shows `text`, and how it is answered.
    void Expect_Box(std::string text, platform::Box_Answer answer = platform::Box_Answer::Ok,
                    std::function<void()> meanwhile = nullptr);
};

/// The one faked system.
Fake_System &Fakes();

/// Makes it new: an empty disk, an empty registry, the told values above.
void Reset_Fakes();

/// Takes the failures that fakes find. Without a hook a failure ends the process.
using Failure_Hook = void (*)(const std::string &message);
void Set_Failure_Hook(Failure_Hook hook);

/// For fakes: reports a failure.
void Fail(const std::string &message);

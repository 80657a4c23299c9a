// The splash window, which appears briefly after the start and shows where the calendar is on the desktop.
#pragma once

#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/timer.h"

#include <string_view>

/// The first steps for a user without events, one line each.
inline constexpr std::string_view First_Steps[] = {"Double-click a day to write on it.",
                                                   "Right-click it for settings and exit."};

class Splash_Frm : public Form {
public:
    Splash_Frm();

    /// Shows the window over the calendar, in front of all windows, without taking the focus. It closes by
    /// itself after 1500 ms. `calendar` is the calendar's place on the screen, and `box_36_top` the top of
    /// its last day box within the calendar, both in twips. If `new_here` is set, shows the first steps.
    void Show_Over(const Rect &calendar, int box_36_top, bool new_here);

    Label Frame_Lbl{*this, "Frame_Lbl"};
    Control_Array<Label, 2> Ring_Lbl{*this, "Ring_Lbl"}; ///< the rings of the calendar leaf
    Label Weekday_Lbl{*this, "Weekday_Lbl"};             ///< head of the leaf
    Label Day_Lbl{*this, "Day_Lbl"};                     ///< body of the leaf
    Label Name_Lbl{*this, "Name_Lbl"};
    Label Line_Lbl{*this, "Line_Lbl"}; ///< below the name
    Timer Start_Timer{1500};

private:
    void Start_Timer_Timer();
};

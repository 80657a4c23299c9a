// The splash window: for a moment after the start it shows where on the desktop the calendar has appeared.
#pragma once

#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/timer.h"

#include <string_view>

/// How a user begins who has no events yet: a line for each sentence.
inline constexpr std::string_view First_Steps[] = {"Double-click a day to write on it.",
                                                   "Right-click it for settings and exit."};

class Splash_Frm : public Form {
public:
    Splash_Frm();

    /// Appears over the calendar, in front of all windows, without taking the keyboard, and goes by itself
    /// after 1500 ms. `calendar` is the calendar's place on the screen, `box_36_top` the upper edge of its
    /// last day box; twips. A user who is `new_here` is told how to begin.
    void Show_Over(const Rect &calendar, int box_36_top, bool new_here);

    Label Frame_Lbl{*this, "Frame_Lbl"};
    Control_Array<Label, 2> Ring_Lbl{*this, "Ring_Lbl"}; ///< that the calendar leaf hangs by
    Label Weekday_Lbl{*this, "Weekday_Lbl"};             ///< the leaf's head
    Label Day_Lbl{*this, "Day_Lbl"};                     ///< the leaf
    Label Name_Lbl{*this, "Name_Lbl"};
    Label Line_Lbl{*this, "Line_Lbl"}; ///< the line below the name
    Timer Start_Timer{1500};

private:
    void Start_Timer_Timer();
};

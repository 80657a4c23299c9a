// The splash window: for a moment after the start it shows where on the desktop the calendar has appeared.
#pragma once

#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/timer.h"

class Splash_Frm : public Form {
public:
    Splash_Frm();

    /// Appears over the calendar, in front of all windows, without taking the keyboard, and goes by itself
    /// after 1500 ms. `calendar` is the calendar's place on the screen, `box_36_top` the upper edge of its
    /// last day box; twips.
    void Show_Over(const Rect &calendar, int box_36_top);

    Label Frame_Lbl;
    Control_Array<Label, 2> Ring_Lbl; ///< that the calendar leaf hangs by
    Label Weekday_Lbl;                ///< the leaf's head
    Label Day_Lbl;                    ///< the leaf
    Label Name_Lbl;
    Label Line_Lbl; ///< the line below the name
    Timer Start_Timer;

private:
    void Start_Timer_Timer();
};

// The balloon that appears while the user holds a mouse button: the wait before it, the balloon, and the poll
// for a missed release. The caller decides on the balloon's contents and place.
#pragma once

#include "base/callback.h"
#include "core/date.h"
#include "toolkit/timer.h"
#include "ui/balloon.h"

#include <string_view>

class Held_Balloon {
public:
    Held_Balloon();

    bool Showing() const { return Window.Visible(); }
    bool Mouse_Released() const { return released_; }
    /// Waits 300 ms after the press of a mouse button, and calls `show` if the user still holds the button.
    /// The balloon will point to `at` (twips on the screen), wherever the mouse has moved. Does nothing if a
    /// balloon is up. A press during the wait restarts the wait, with the `show` and `at` of that press.
    void Hold(Point at, Callback<void()> show);
    /// Dispatches messages for `milliseconds`. Returns early at midnight, and when the program ends.
    void TimeOut(int milliseconds);
    /// Shows a day's event at the point of the last Hold.
    void Show(const Date &date, std::string_view message);
    /// Ends the press of the button: removes the balloon, or cancels the wait for it.
    void Hide();
    /// Ends the current wait and every later one, because the program ends.
    void End() { ended_ = true; }

    frmBalloon Window;
    /// Polls while the balloon is up, because the user may release the button outside our windows.
    Timer Timer2{1000};

private:
    Callback<void()> show_;    ///< from the last press
    Point at_;                 ///< from the last press
    unsigned press_count_ = 0; ///< lets Hold notice another press during its wait
    bool released_ = true;
    bool waiting_ = false;
    bool ended_ = false;
};

// The balloon that a held mouse button brings and its release takes away: the waiting for it, the one that
// is shown, and the watch for a release that nobody tells. Of what stands in it and where, the rest is the
// caller's.
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
    /// Calls `show` when the button, which went down now, is still held after a while. `at`, in twips on the
    /// screen, is where the balloon will point to, wherever the mouse has gone meanwhile. Does nothing when
    /// there is a balloon already. A press during the wait begins it anew for its own `show`.
    void Hold(Point at, Callback<void()> show);
    /// Waits while the window's messages are processed. Ends early at midnight and at the program's end.
    void TimeOut(int milliseconds);
    /// Shows an event of a day beside the place of the last Hold.
    void Show(const Date &date, std::string_view message);
    /// The button is not held any more: the balloon goes, or does not come.
    void Hide();
    /// Ends this and every later wait: the program ends.
    void End() { ended_ = true; }

    frmBalloon Window;
    /// Runs only while the balloon is there, which goes when the button was released where nobody told.
    Timer Timer2{1000};

private:
    Callback<void()> show_;    ///< of the last press
    Point at_;                 ///< likewise
    unsigned press_count_ = 0; ///< counts the presses
    bool released_ = true;
    bool waiting_ = false;
    bool ended_ = false;
};

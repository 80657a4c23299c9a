// A form's way into the shell's desktop: the waiting for a shell that is not ready or does not answer, and
// the following of the view of icons, which the shell moves from one of its windows to another.
#pragma once

#include "platform/shell.h"
#include "toolkit/form.h"

class Desktop_Attachment {
public:
    explicit Desktop_Attachment(Form &form) : form_(form) {}

    /// Puts the form into the window that holds the view of icons. What of the shell is missing is left out
    /// in silence, and looked for again by Follow.
    void Attach(platform::Shell_Window desktop);
    /// Has Follow look for the desktop of a shell that has just started, unless the form is inside one.
    void Await_Shell();
    /// Puts the form where the view is now, and above it. Called every second and whenever another window
    /// comes to the front. Does nothing before Attach or Await_Shell.
    void Follow();
    /// Whether the form is still to go inside.
    bool Waiting() const { return waiting_; }

    /// Takes note that the form's window is gone. Returns whether it went down with a window that is not the
    /// desktop itself: then Follow makes a new one.
    bool Handle_Window_Lost();

    /// The icon list and the colours of its labels, before the form goes inside.
    Handler<platform::Shell_Window, const platform::Label_Colours &> On_Colours;
    Handler<> On_Late_Entry;   ///< Follow has put the form inside
    Handler<> On_Desktop_Lost; ///< Follow finds no desktop for the new window

private:
    bool Try_Attach(platform::Shell_Window desktop, unsigned patience);
    bool Is_Early() const;

    Form &form_;
    platform::Shell_Window desktop_ = 0; ///< when the form went inside
    platform::Shell_Window holder_ = 0;  ///< of the view, which the form went into; 0: it is outside
    unsigned wait_start_ = 0;            ///< the time of Attach or Await_Shell
    bool waiting_ = false;
    bool window_lost_ = false; ///< the form has no window
    bool attaching_ = false;
};

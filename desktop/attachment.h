// Attaches a form to the shell's desktop. Waits for a shell that is not ready or does not answer, and follows
// the icon view, which the shell moves from one of its windows to another.
#pragma once

#include "platform/shell.h"
#include "toolkit/form.h"

class Desktop_Attachment {
public:
    explicit Desktop_Attachment(Form &form) : form_(form) {}

    /// Puts the form into the window that holds the icon view. Fails silently if the shell lacks a window;
    /// Follow then tries again.
    void Attach(platform::Shell_Window desktop);
    /// Makes Follow look for the desktop of a shell that has just started. Does nothing if the form is inside
    /// a desktop.
    void Await_Shell();
    /// Moves the form into the window that now holds the view, above the view. The calendar calls this every
    /// second and whenever another window comes to the front. Does nothing before Attach or Await_Shell.
    void Follow();
    /// Returns whether the form still waits for a desktop.
    bool Waiting() const { return waiting_; }

    /// Records that the form's window is gone. Returns whether the window was inside a holder other than the
    /// desktop window; Follow then creates a new window.
    bool Handle_Window_Lost();

    /// Called with the icon list and the colours of its labels, before the form moves into the desktop.
    Handler<platform::Shell_Window, const platform::Label_Colours &> On_Colours;
    Handler<> On_Late_Entry;   ///< called when Follow has moved the form into the desktop
    Handler<> On_Desktop_Lost; ///< called when Follow finds no desktop for the new window

private:
    bool Try_Attach(platform::Shell_Window desktop, unsigned patience);
    bool Is_Early() const;

    Form &form_;
    platform::Shell_Window desktop_ = 0; ///< the desktop that the form is in
    platform::Shell_Window holder_ = 0;  ///< the view's holder, which the form is in; 0: the form is outside
    unsigned wait_start_ = 0;            ///< when the last wait began, in milliseconds
    bool waiting_ = false;
    bool window_lost_ = false; ///< the form has no window
    bool attaching_ = false;
};

// A form's way into the shell's desktop, and the waiting for a shell that does not answer.
#pragma once

#include "platform/shell.h"
#include "toolkit/form.h"
#include "toolkit/timer.h"

class Desktop_Attachment {
public:
    explicit Desktop_Attachment(Form &form);

    /// Puts the form into the shell's desktop window. What of the shell is missing is left out in silence; a
    /// shell that does not answer is asked again every second.
    void Enter(platform::Shell_Window desktop);
    /// Whether the shell is still to answer.
    bool Waiting() const { return timer_.Enabled(); }

    /// The icon list and the colours of its labels, before the form goes inside.
    Handler<platform::Shell_Window, const platform::Label_Colours &> On_Colours;
    Handler<> On_Late_Entry; ///< the waiting is over

private:
    void Move_Into(platform::Shell_Window desktop, unsigned patience);
    void Try_Again();

    Form &form_;
    Timer timer_{1000};
};

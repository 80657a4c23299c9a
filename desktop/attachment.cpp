// The shell's windows:
//
//     the view's holder                 the desktop window, or one that covers it
//     +-- our form                      above the icons, once it is inside
//     +-- the icon view
//         +-- the list of icons         gives the colours of its labels
#include "desktop/attachment.h"

#include "base/scoped_value.h"
#include "platform/clock.h"

#include <utility>

namespace {

// Time limits for the shell's answers, in milliseconds: long at the start, when the user waits for the
// calendar anyway; short later, when a wait would make the calendar feel slow.
constexpr unsigned first_patience = 1000;
constexpr unsigned later_patience = 100;

/// The time that a shell may take to create its view, in milliseconds. At log-on the shell starts along with
/// the calendar.
constexpr unsigned longest_start = 120'000;

} // namespace

void Desktop_Attachment::Attach(platform::Shell_Window desktop) {
    Await_Shell();
    Try_Attach(desktop, first_patience);
}

void Desktop_Attachment::Await_Shell() {
    if (holder_ != 0)
        return;
    waiting_ = true;
    wait_start_ = platform::Milliseconds();
}

void Desktop_Attachment::Follow() {
    // While the form waits for an answer from the shell, Windows delivers messages that may call Follow
    // again.
    if ((!waiting_ && holder_ == 0) || attaching_)
        return;
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    if (desktop == 0) {
        waiting_ = waiting_ && !window_lost_ && Is_Early();
        if (std::exchange(window_lost_, false))
            Fire(On_Desktop_Lost);
        return;
    }
    if (window_lost_)
        form_.Create();
    if (Try_Attach(desktop, later_patience))
        Fire(On_Late_Entry);
    if (std::exchange(window_lost_, false))
        form_.Show();
}

bool Desktop_Attachment::Handle_Window_Lost() {
    // If the holder is the desktop window itself, the system is destroying that window, too: its children
    // go first.
    window_lost_ = waiting_ = std::exchange(holder_, 0) != std::exchange(desktop_, 0);
    wait_start_ = platform::Milliseconds();
    return window_lost_;
}

/// Returns whether the shell may still be creating its windows.
bool Desktop_Attachment::Is_Early() const {
    return platform::Milliseconds() - wait_start_ < longest_start;
}

/// Looks for the view and moves the form into its holder. Waits at most `patience` milliseconds for each
/// answer from the icon list. Returns whether the form has moved into another window.
bool Desktop_Attachment::Try_Attach(platform::Shell_Window desktop, unsigned patience) {
    const Scoped_Value looking(attaching_, true);
    const auto icons = platform::Find_Icon_View(desktop);
    if (!icons) {
        waiting_ = waiting_ && Is_Early();
        return false;
    }
    if (icons->holder == holder_) {
        platform::Keep_Over_View(form_.Model(), icons->view);
        return false;
    }
    // A shell that does not answer is hung or busy with its own start, and moving the form into it now might
    // hang the calendar too. Until the shell answers, the form keeps its place and colours.
    const auto colours = platform::Icon_Label_Colours(icons->list, patience);
    if (!colours)
        return false;
    Fire(On_Colours, icons->list, *colours);
    if (!platform::Attach_To_Desktop(form_.Model(), icons->holder))
        return false;
    desktop_ = desktop;
    holder_ = icons->holder;
    waiting_ = false;
    return true;
}

// The steps from the desktop window to the list of icons and inside. The shell's windows:
//
//     the desktop window                Find_Desktop_Window
//     +-- our form                      above the icons, once it is inside
//     +-- the view of the desktop       Find_Shell_View
//         +-- the list of icons         Find_Icon_List; tells the colours of its labels
#include "desktop/attachment.h"

namespace {

// For the shell's answer, in milliseconds: nobody waits long for a calendar to appear, and later it must not
// feel slow.
constexpr unsigned first_patience = 1000;
constexpr unsigned later_patience = 100;

} // namespace

Desktop_Attachment::Desktop_Attachment(Form &form) : form_(form) {
    timer_.On_Timer = [this] { Try_Again(); };
}

void Desktop_Attachment::Enter(platform::Shell_Window desktop) {
    Move_Into(desktop, first_patience);
}

/// Goes inside, with `patience` milliseconds for each of the shell's answers.
void Desktop_Attachment::Move_Into(platform::Shell_Window desktop, unsigned patience) {
    timer_.Set_Enabled(false);
    const platform::Shell_Window view = platform::Find_Shell_View(desktop);
    if (view == 0)
        return;
    const platform::Shell_Window list = platform::Find_Icon_List(view);
    if (list == 0)
        return;
    const auto colours = platform::Icon_Label_Colours(list, patience);
    if (!colours) {
        // The shell is hung, or busy with its own start, and a window that moves into it now may hang with
        // it. Until it answers the form is a window of its own, and keeps the colours it has.
        timer_.Set_Enabled(true);
        return;
    }
    Fire(On_Colours, list, *colours);
    platform::Attach_To_Desktop(form_.Model(), desktop);
}

void Desktop_Attachment::Try_Again() {
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    if (desktop == 0)
        return timer_.Set_Enabled(false);
    Move_Into(desktop, later_patience);
    if (!Waiting())
        Fire(On_Late_Entry);
}

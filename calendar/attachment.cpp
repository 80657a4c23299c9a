// The calendar's way into the shell's desktop.
#include "calendar/main_frm.h"
#include "platform/shell.h"

namespace {

// For the shell's answer, in milliseconds: nobody waits long for a calendar to appear, and later it must not
// feel slow.
constexpr unsigned first_patience = 1000;
constexpr unsigned later_patience = 100;

} // namespace

void Main_Frm::No_ShowDesktop_and_IconColours() {
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    if (desktop == 0)
        return;
    Splash.Show_Over(Model().bounds, Box_Lbl[36].Top());
    Move_Into(desktop, first_patience);
}

void Main_Frm::Move_Into(platform::Shell_Window desktop, unsigned patience) {
    Attach_Timer.Set_Enabled(false);
    const platform::Shell_Window view = platform::Find_Shell_View(desktop);
    if (view == 0)
        return;
    const platform::Shell_Window list = platform::Find_Icon_List(view);
    if (list == 0)
        return;
    const auto colours = platform::Icon_Label_Colours(list, patience);
    if (!colours) {
        // The shell is hung, or busy with its own start, and a window that moves into it now may hang with
        // it. Until it answers the calendar is a window of its own, and keeps the colours it has.
        Attach_Timer.Set_Enabled(true);
        return;
    }
    Set_Icon_Colours(list, colours->background, colours->text);
    platform::Attach_To_Desktop(Model(), desktop);
}

void Main_Frm::Attach_Timer_Timer() {
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    if (desktop == 0) {
        Attach_Timer.Set_Enabled(false);
        return;
    }
    Move_Into(desktop, later_patience);
    if (Attach_Timer.Enabled())
        return;
    Set_Colours();
    Mark_Today();
}

void Main_Frm::Set_Icon_Colours(platform::Shell_Window, Colour background, Colour text) {
    Icon_BackColour = background;
    Icon_TextColour = text;
}

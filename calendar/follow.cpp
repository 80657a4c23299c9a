// Updates the calendar window after its settings or the month of its theme pack have changed.
#include "calendar/main_frm.h"

void Main_Frm::Follow(const Settings &before, bool where_dropped) {
    const auto changed = [&](auto... members) {
        return ((before.*members != Shown_Settings->*members) || ...);
    };
    // The window's size may change. Place a window that is at its set position again, so that it neither runs
    // off the screen nor leaves a gap at the edge.
    const bool stays = where_dropped && (Compacted || !place_.Is_In_Position());
    const bool refit = style_ != Effective_Style();
    Which_Style(Effective_Style());
    if (changed(&Settings::Bar_Time, &Settings::Bar_Time_Format, &Settings::Bar_Date_Format))
        Update_Title();
    TransparentForm();
    if (!stays)
        Position_Form(Effective_Position());
    // The boxes now hold a different amount of text, or have different tooltips. Load_Dates may alert the
    // user of today's event.
    if (refit || changed(&Settings::Tooltips, &Settings::Show_Alerts))
        Load_Dates();
    if (changed(&Settings::Col_Today, &Settings::Col_Normal, &Settings::Col_Fore, &Settings::Col_Num,
                &Settings::Col_Text, &Settings::Col_Back, &Settings::Menu_Col_Sorce)) {
        Set_Colours();
        Mark_Today();
    }
}

// The calendar's position on the screen and inside the shell's desktop.
#include "calendar/main_frm.h"
#include "core/settings.h"

void Main_Frm::Position_Form(std::int16_t code) {
    const Label &lowest = Box_Lbl[35].Visible() ? Box_Lbl[35] : Box_Lbl[28];
    place_.Move_To(code, lowest.Bounds().Bottom(), {Cur_Settings.Manual_PosX, Cur_Settings.Manual_PosY});
}

void Main_Frm::RePosition() {
    if (!drag_.Dragging())
        Attachment.Follow();
    if (place_.Update_Work_Area_Height())
        Position_Form(Effective_Position());
    else if (!drag_.Dragging())
        place_.Restore_Position();
}

void Main_Frm::No_ShowDesktop_and_IconColours() {
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    if (desktop == 0)
        return;
    Splash.Show_Over(Model().bounds, Box_Lbl[36].Top(), !Model().description.empty());
    Attachment.Attach(desktop);
}

void Main_Frm::Set_Icon_Colours(platform::Shell_Window, Colour background, Colour text) {
    Icon_BackColour = background;
    Icon_TextColour = text;
}

// The calendar's place on the screen and inside the shell's desktop, and the shape of its window.
#include "calendar/main_frm.h"
#include "core/settings.h"

#include <utility>
#include <vector>

void Main_Frm::Position_Form(std::int16_t code) {
    const Label &lowest = Box_Lbl[35].Visible() ? Box_Lbl[35] : Box_Lbl[28];
    place_.Put(code, lowest.Bounds().Bottom(), {Cur_Settings.Manual_PosX, Cur_Settings.Manual_PosY});
}

void Main_Frm::RePosition() {
    if (place_.Take_Height())
        Position_Form(Effective_Position());
    else if (!drag_.Dragging())
        place_.Put_Back();
}

void Main_Frm::TransparentForm() {
    std::vector<Rect> seen;
    for (const platform::Control_State *control : Model().controls)
        if (control->visible)
            seen.push_back(control->bounds);
    Clip(std::move(seen));
}

void Main_Frm::No_ShowDesktop_and_IconColours() {
    const platform::Shell_Window desktop = platform::Find_Desktop_Window();
    if (desktop == 0)
        return;
    Splash.Show_Over(Model().bounds, Box_Lbl[36].Top(), !Model().description.empty());
    Attachment.Enter(desktop);
}

void Main_Frm::Set_Icon_Colours(platform::Shell_Window, Colour background, Colour text) {
    Icon_BackColour = background;
    Icon_TextColour = text;
}

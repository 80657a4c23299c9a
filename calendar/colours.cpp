// The colours of boxes, numbers, texts, title and headers.
#include "calendar/box_layout.h"
#include "calendar/main_frm.h"
#include "core/settings.h"

void Main_Frm::Set_Colours() {
    Colour_Boxes();
    Colour_Nums();
    Colour_Texts();
    Colour_Menus();
}

void Main_Frm::Colour_Boxes() {
    for (int i = 0; i < box_count; ++i) {
        Box_Lbl[i].Set_Back_Colour(Cur_Settings.Col_Normal);
        Undress_Today(Box_Lbl[i]);
    }
}

void Main_Frm::Colour_Nums() {
    for (Label &box : Box_Lbl)
        box.Set_Fore_Colour(Cur_Settings.Col_Num);
}

void Main_Frm::Colour_Texts() {
    for (Label &caption : Box_Caption_Lbl)
        caption.Set_Fore_Colour(Cur_Settings.Col_Text);
}

void Main_Frm::Colour_Menus() {
    platform::Colour text = Cur_Settings.Col_Fore;
    if (Cur_Settings.Menu_Col_Sorce != 0) {
        Set_Back_Colour(Cur_Settings.Col_Back);
    } else if (Icon_BackColour != -1) {
        // Assigned twice, here and below; the second time changes nothing.
        Set_Back_Colour(Icon_BackColour);
        Set_Back_Colour(Icon_BackColour);
        text = Icon_TextColour;
    } else {
        Set_Back_Colour(dark_grey);
        Set_Back_Colour(dark_grey);
        text = Icon_TextColour;
    }
    Prev_Month_Lbl.Set_Fore_Colour(text);
    Which_Month_Lbl.Set_Fore_Colour(text);
    Next_Month_Lbl.Set_Fore_Colour(text);
    for (Label &header : Day_Lbl)
        header.Set_Fore_Colour(text);
}

// The colours of boxes, today's box, numbers, texts, title and headers: those of the user, or those of
// Windows if high contrast is on. High contrast does not change the settings.
#include "calendar/box_layout.h"
#include "calendar/month_grid.h"
#include "core/settings.h"
#include "platform/screen.h"

namespace {

// System colours. High contrast makes them stand out from each other.
constexpr Colour window = System_Colour(5);
constexpr Colour window_text = System_Colour(8);
constexpr Colour highlight = System_Colour(13);
constexpr Colour highlight_text = System_Colour(14);
constexpr Colour shadow = System_Colour(16);

} // namespace

void Month_Grid::Set_Colours() {
    high_contrast_ = platform::High_Contrast();
    Colour_Boxes();
    Colour_Nums();
    Colour_Texts();
    Colour_Menus();
}

void Month_Grid::Colour_Boxes() {
    for (int i = 0; i < box_count; ++i) {
        Box_Lbl[i].Set_Back_Colour(high_contrast_ ? window : Cur_Settings.Col_Normal);
        Clear_Today_Style(Box_Lbl[i]);
        // Frame the boxes, because the desktop between them may have the same colour.
        if (high_contrast_)
            Box_Lbl[i].Set_Frame_Colour(shadow);
    }
}

void Month_Grid::Colour_Nums() {
    for (Label &box : Box_Lbl)
        box.Set_Fore_Colour(high_contrast_ ? window_text : Cur_Settings.Col_Num);
}

void Month_Grid::Colour_Texts() {
    for (Label &caption : Box_Caption_Lbl)
        caption.Set_Fore_Colour(high_contrast_ ? window_text : Cur_Settings.Col_Text);
}

void Month_Grid::Colour_Today(int index) {
    Label &box = Box_Lbl[index];
    Style_Today(box, high_contrast_ ? highlight : Cur_Settings.Col_Today);
    if (!high_contrast_)
        return;
    // Hide the frame of today's box, so that only the keyboard's mark appears as a frame, in the colour of
    // the number.
    box.Set_Frame_Colour(highlight);
    box.Set_Fore_Colour(highlight_text);
    Box_Caption_Lbl[index].Set_Fore_Colour(highlight_text);
}

void Month_Grid::Apply_Contrast() {
    if (high_contrast_ == platform::High_Contrast())
        return;
    Set_Colours();
    Mark_Today();
}

void Month_Grid::Colour_Menus() {
    Colour text = Cur_Settings.Col_Fore;
    if (high_contrast_) {
        Set_Back_Colour(window);
        text = window_text;
    } else if (Cur_Settings.Menu_Col_Sorce != 0) {
        Set_Back_Colour(Cur_Settings.Col_Back);
    } else if (Icon_BackColour != -1) {
        // The repeated call, here and below, has no effect.
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

// The procedures that the pages share.
#include "settings/page.h"

#include "calendar/box_layout.h"
#include "toolkit/units.h"

#include <utility>

void Name_Aloud(Control &control, const char *name) {
    platform::Access_State access;
    access.name = name;
    control.Set_Access(std::move(access));
}

Rect Moved(Rect pixels, const Rect &from, int left, int top) {
    pixels.left += Twips_To_Pixels(left) - from.left;
    pixels.top += Twips_To_Pixels(top) - from.top;
    return Pixels_To_Twips(pixels);
}

void Place_Example(const Box_Layout &style, Label &number, Label &text, int left, int top) {
    number.Move(Moved(style.Box(0), style.Box(0), left, top));
    text.Move(Moved(style.Text(0), style.Box(0), left, top));
    Dress_Number(number);
    Dress_Text(text);
    text.Set_Transparent(false);
}

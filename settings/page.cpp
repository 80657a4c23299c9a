// The procedures that the pages share.
#include "settings/page.h"

#include "calendar/box_layout.h"
#include "toolkit/units.h"

#include <utility>

namespace {

void Show_In(Control &control, const std::string &text) {
    static_cast<Combo_Box &>(control).Set_Text(text);
}

void Show_In(Control &control, int number) {
    if (control.State().kind == platform::Control_Kind::Combo_Box)
        static_cast<Combo_Box &>(control).Select(number);
    else
        static_cast<Check_Box &>(control).Set_Checked(number != 0);
}

void Take_From(const platform::Control_State &control, std::string &text) {
    text = control.caption;
}

template <typename Number>
void Take_From(const platform::Control_State &control, Number &number) {
    if (control.kind != platform::Control_Kind::Combo_Box)
        number = control.checked;
    else if (control.selected != -1)
        number = static_cast<Number>(control.selected);
}

} // namespace

void Page::Show(const Settings &settings) {
    for (const Choice &choice : choices_)
        std::visit([&](auto member) { Show_In(*choice.control, settings.*member); }, choice.setting);
}

void Page::Put(Settings &settings) const {
    for (const Choice &choice : choices_)
        std::visit([&](auto member) { Take_From(choice.control->State(), settings.*member); },
                   choice.setting);
}

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

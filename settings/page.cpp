#include "settings/page.h"

#include "calendar/box_layout.h"
#include "toolkit/units.h"

#include <utility>

namespace {

void Show_Value(Control &control, const std::string &text) {
    static_cast<Combo_Box &>(control).Set_Text(text);
}

void Show_Value(Control &control, int number) {
    if (control.State().kind == platform::Control_Kind::Combo_Box)
        static_cast<Combo_Box &>(control).Select(number);
    else
        static_cast<Check_Box &>(control).Set_Checked(number != 0);
}

void Read_Value(const platform::Control_State &control, std::string &text) {
    text = control.caption;
}

template <typename Number>
void Read_Value(const platform::Control_State &control, Number &number) {
    if (control.kind != platform::Control_Kind::Combo_Box)
        number = control.checked;
    else if (control.selected != -1)
        number = static_cast<Number>(control.selected);
}

} // namespace

void Page::Show(const Settings &settings) {
    for (const Choice &choice : choices_)
        std::visit([&](auto member) { Show_Value(*choice.control, settings.*member); }, choice.setting);
}

void Page::Write_To(Settings &settings) const {
    for (const Choice &choice : choices_)
        std::visit([&](auto member) { Read_Value(choice.control->State(), settings.*member); },
                   choice.setting);
}

void Set_Access_Name(Control &control, const char *name) {
    platform::Access_State access;
    access.name = name;
    control.Set_Access(std::move(access));
}

Rect Translate_Rect(Rect pixels, const Rect &from, int left, int top) {
    pixels.left += Twips_To_Pixels(left) - from.left;
    pixels.top += Twips_To_Pixels(top) - from.top;
    return Pixels_To_Twips(pixels);
}

void Place_Example(const Box_Layout &style, Label &number, Label &text, int left, int top) {
    number.Move(Translate_Rect(style.Box(0), style.Box(0), left, top));
    text.Move(Translate_Rect(style.Text(0), style.Box(0), left, top));
    Style_Number(number);
    Style_Text(text);
    text.Set_Transparent(false);
}

#include "toolkit/control.h"

#include "base/cut_text.h"
#include "toolkit/form.h"
#include "toolkit/handler.h"
#include "toolkit/keys.h"
#include "toolkit/list_controls.h"
#include "toolkit/painter.h"

#include <utility>

Container::Container(const Frame &in) : form(in.Owner()), frame(in.State().index) {
}

Control::Control(Container in, platform::Control_Kind kind, const char *name, const char *caption)
    : form_(in.form) {
    state_.container = in.frame;
    state_.kind = kind;
    state_.name = name;
    state_.caption = caption;
    form_.Register(*this, state_);
}

Control::~Control() {
    form_.Forget(*this);
}

void Control::Notify_Mirror(Aspect aspect) {
    if (!form_.created_)
        return;
    // A painted form draws its labels from their state, so a change to a hidden label needs no redraw.
    const bool drawn = aspect == Aspect::Caption || aspect == Aspect::Appearance;
    if (drawn && !state_.visible && form_.model_.kind != platform::Form_Kind::Dialog)
        return;
    platform::Control_Changed(form_.model_, state_, aspect, state_.bounds);
}

void Control::Move(const Rect &bounds) {
    if (state_.bounds == bounds)
        return;
    const Rect before = std::exchange(state_.bounds, bounds);
    if (form_.created_)
        platform::Control_Changed(form_.model_, state_, Aspect::Bounds, before);
}

void Control::Set_Align(platform::Text_Align align, bool centre_vertically) {
    if (state_.align == align && state_.centre_vertically == centre_vertically)
        return;
    state_.align = align;
    state_.centre_vertically = centre_vertically;
    Notify_Mirror(Aspect::Appearance);
}

void Control::Set_Access(platform::Access_State access) {
    Store(state_.access, std::move(access), Aspect::Access);
}

void Control::Handle_Event(const platform::Input_Event &event) {
    if (event.kind == platform::Input_Kind::Clicked)
        Fire(On_Click);
}

void Label::Set_Painted() {
    state_.painted = true;
    state_.paint = [this](platform::Canvas &canvas, const Rect &clip) {
        Paint_Single_Control(state_, canvas, clip);
    };
}

void Button::Handle_Event(const platform::Input_Event &event) {
    if (event.key == Key_Escape && On_Escape)
        return Fire(On_Escape);
    Control::Handle_Event(event);
}

void Check_Box::Handle_Event(const platform::Input_Event &event) {
    // The native control already shows the new state, so do not notify the mirror.
    if (event.kind == platform::Input_Kind::Clicked)
        state_.checked = event.checked;
    Control::Handle_Event(event);
}

void Text_Box::Set_Text(std::string text) {
    // Copy the handler, because it may destroy the form and this text box with it.
    const auto handler = On_Change;
    if (Store(state_.caption, Without_Line_Breaks(std::move(text)), Aspect::Caption) && handler)
        handler();
}

void Text_Box::Set_Display_Only() {
    state_.single_line = true;
    state_.read_only = true;
}

void Text_Box::Handle_Event(const platform::Input_Event &event) {
    if (event.kind != platform::Input_Kind::Text_Changed)
        return;
    std::string text = Without_Line_Breaks(event.text);
    if (state_.caption == text)
        return;
    state_.caption = std::move(text);
    Fire(On_Change);
}

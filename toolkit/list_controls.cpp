#include "toolkit/list_controls.h"

#include "toolkit/form.h"
#include "toolkit/handler.h"
#include "toolkit/keys.h"
#include "toolkit/painter.h"

#include <algorithm>
#include <cstdint>
#include <utility>

using platform::Control_Kind;
using platform::Input_Event;
using platform::Input_Kind;

void Option_Button::Set_Checked(bool checked) {
    if (checked)
        Uncheck_Others();
    Store(state_.checked, checked, Aspect::Checked);
}

void Option_Button::Uncheck_Others() {
    for (Control *control : form_.Controls()) {
        const platform::Control_State &other = control->State();
        if (control != this && other.kind == Control_Kind::Option_Button &&
            other.container == state_.container)
            static_cast<Option_Button *>(control)->Set_Checked(false);
    }
}

void Option_Button::Handle_Event(const Input_Event &event) {
    if (event.kind == Input_Kind::Clicked)
        Set_Checked(true);
    Control::Handle_Event(event);
}

void Item_Control::Set_Items(std::vector<std::string> items) {
    if (state_.items == items && state_.selected == -1)
        return;
    state_.items = std::move(items);
    state_.selected = -1;
    if (state_.kind == Control_Kind::Combo_Box && !state_.editable)
        state_.caption.clear();
    Notify_Mirror(Aspect::Items);
}

void Item_Control::Select(int index) {
    if (index < 0 || index >= static_cast<int>(state_.items.size()))
        index = -1;
    if (state_.kind == Control_Kind::Combo_Box)
        state_.caption = index == -1 ? std::string{} : state_.items[static_cast<std::size_t>(index)];
    // Notify the mirror of an editable combo box even if the index is the same: with a typed text the index
    // is -1, and selecting no item must clear the text.
    if (std::exchange(state_.selected, index) != index || state_.editable)
        Notify_Mirror(Aspect::Selected);
}

void Item_Control::Handle_Event(const Input_Event &event) {
    if (event.kind != Input_Kind::Selected || event.selected < 0 ||
        event.selected >= static_cast<int>(state_.items.size()))
        return;
    state_.selected = event.selected;
    if (state_.kind == Control_Kind::Combo_Box)
        state_.caption = state_.items[static_cast<std::size_t>(event.selected)];
    Fire(On_Click);
}

void Combo_Box::Set_Editable() {
    state_.editable = true;
}

void Combo_Box::Set_Text(const std::string &text) {
    const auto found = std::find(state_.items.begin(), state_.items.end(), text);
    if (found != state_.items.end())
        return Select(static_cast<int>(found - state_.items.begin()));
    if (!state_.editable || (state_.caption == text && state_.selected == -1))
        return;
    state_.selected = -1;
    state_.caption = text;
    Notify_Mirror(Aspect::Caption);
}

void Combo_Box::Handle_Event(const Input_Event &event) {
    if (event.kind != Input_Kind::Text_Changed)
        return Item_Control::Handle_Event(event);
    if (!state_.editable || state_.caption == event.text)
        return;
    state_.caption = event.text;
    state_.selected = -1;
    Fire(On_Change);
}

void List_Box::Remove_Item(int index) {
    if (index < 0 || index >= static_cast<int>(state_.items.size()))
        return;
    state_.items.erase(state_.items.begin() + index);
    state_.selected = -1;
    Notify_Mirror(Aspect::Items);
}

void List_Box::Handle_Event(const Input_Event &event) {
    if (event.kind == Input_Kind::Item_Activated)
        return Fire(On_Double_Click);
    Item_Control::Handle_Event(event);
}

Slider::Slider(Container in, const char *name, int minimum, int maximum)
    : Control(in, Control_Kind::Slider, name) {
    state_.minimum = minimum;
    state_.maximum = maximum;
    state_.value = minimum;
}

void Slider::Set_Value(int value) {
    Store(state_.value, std::clamp(value, state_.minimum, state_.maximum), Aspect::Selected);
}

void Slider::Handle_Event(const Input_Event &event) {
    if (event.kind != Input_Kind::Selected && event.kind != Input_Kind::Scrolled)
        return;
    state_.value = std::clamp(event.selected, state_.minimum, state_.maximum);
    Fire(event.kind == Input_Kind::Selected ? On_Change : On_Scroll);
}

Picture_Box::Picture_Box(Container in, const char *name) : Control(in, Control_Kind::Picture_Box, name) {
    state_.painted = true;
    state_.paint = [this](platform::Canvas &canvas, const Rect &clip) {
        Paint_Single_Control(state_, canvas, clip,
                             [this](platform::Canvas &content) { Paint_Content(content); });
    };
}

void Picture_Box::Set_Tab_Stop() {
    state_.tab_stop = true;
    On_Key_Down = [this](const Input_Event &event) {
        if (event.key == Key_Return && !event.repeated)
            Fire(On_Click);
    };
}

void Picture_Box::Set_Picture(Picture picture) {
    Store(picture_, std::move(picture), Aspect::Appearance);
}

void Picture_Box::Paint_Content(platform::Canvas &canvas) const {
    if (picture_.width > 0 && picture_.height > 0) {
        const Rect &box = state_.bounds;
        const std::int64_t width_for_height = std::int64_t{box.height} * picture_.width / picture_.height;
        const int width = static_cast<int>(std::min<std::int64_t>(box.width, width_for_height));
        const int height = width == box.width
                               ? static_cast<int>(std::int64_t{box.width} * picture_.height / picture_.width)
                               : box.height;
        platform::Draw_Picture(canvas, picture_,
                               {(box.width - width) / 2, (box.height - height) / 2, width, height});
    }
    Fire(On_Paint, canvas);
}

void Progress_Bar::Set_Value(int value) {
    Store(state_.value, std::clamp(value, state_.minimum, state_.maximum), Aspect::Selected);
}

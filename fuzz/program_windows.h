// Access to the program's windows as a user has it: by name, through their mirrors only.
#pragma once

#include "fuzz/program_model.h"
#include "tests/fakes/fake_forms.h"
#include "toolkit/keys.h"

#include <cstdint>
#include <string>

/// The input bytes that choose the actions. Zeros follow the last one.
class Bytes {
public:
    Bytes(const std::uint8_t *data, std::size_t size) : at_(data), end_(data + size) {}
    bool Out() const { return at_ == end_; }
    /// Returns a number from 0 to `count` - 1.
    int Pick(int count) { return at_ == end_ || count < 2 ? 0 : *at_++ % count; }

private:
    const std::uint8_t *at_, *end_;
};

/// Returns the window with this name, or null if it does not exist.
inline platform::Form_Model *Window(const std::string &name) {
    for (const auto &[model, mirror] : Desktop().mirrors)
        if (model->name == name)
            return const_cast<platform::Form_Model *>(model); // the program passed it without const
    return nullptr;
}

inline const platform::Control_State &Control(const platform::Form_Model &window, const std::string &name) {
    for (const platform::Control_State *control : window.controls)
        if (control->name == name)
            return *control;
    Require(false, "no control " + name);
    std::abort();
}

/// Returns the visible day box at the point. One must exist.
inline const platform::Control_State &Box_At(const platform::Form_Model &window, Point at) {
    const platform::Control_State *found = nullptr;
    for (const platform::Control_State *control : window.controls)
        if (control->visible && control->access.role == platform::Access_Role::Cell &&
            control->bounds.Contains(at))
            found = control;
    Require(found != nullptr, "a menu opens over no day");
    if (found == nullptr)
        std::abort();
    return *found;
}

inline void Send(platform::Form_Model &window, const platform::Input_Event &event) {
    const auto input = window.input;
    input(event);
}

inline void Mouse(platform::Form_Model &window, const platform::Control_State &control,
                  platform::Input_Kind kind, platform::Mouse_Button button) {
    const Rect &at = control.bounds;
    Send(window, {.kind = kind, .point = {at.left + at.width / 2, at.top + at.height / 2}, .button = button});
}

inline void Click_Painted(platform::Form_Model &window, const platform::Control_State &control,
                          platform::Mouse_Button button) {
    Mouse(window, control, platform::Input_Kind::Mouse_Down, button);
    if (Desktop().mirrors.contains(&window))
        Mouse(window, control, platform::Input_Kind::Mouse_Up, button);
}

inline bool Box_Shown_Since(std::size_t boxes, const std::string &text) {
    for (std::size_t i = boxes; i < Fakes().boxes.size(); ++i)
        if (Fakes().boxes[i].text == text)
            return true;
    return false;
}

/// Returns the number that begins at `begin`, or 0 if there is none.
inline int Number_At(const std::string &text, std::size_t begin) {
    int number = 0;
    for (; begin < text.size() && text[begin] >= '0' && text[begin] <= '9' && number < 10000; ++begin)
        number = number * 10 + (text[begin] - '0');
    return number;
}

/// Returns the date of a text such as "Tuesday 5th March 2002", which a comma and more text may follow.
inline Model_Day Day_Of(const std::string &name) {
    Model_Day day;
    const std::size_t first = name.find(' ') + 1, second = name.find(' ', first) + 1;
    const std::size_t third = name.find(' ', second) + 1;
    day.day = Number_At(name, first);
    day.year = Number_At(name, third);
    for (std::size_t i = 0; i < 12; ++i)
        if (Fakes().months[i] == name.substr(second, third - second - 1))
            day.month = static_cast<int>(i) + 1;
    Require(day.month != 0 && day.day != 0 && day.year != 0, "no date: " + name);
    return day;
}

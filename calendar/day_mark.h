// The keyboard's mark on one day box. The mark appears when the user first presses a key that moves or uses
// it, and from then on whenever the window has the focus.
#pragma once

#include "core/date.h"
#include "toolkit/form.h"

#include <cstdint>
#include <optional>
#include <utility>

class Day_Mark {
public:
    explicit Day_Mark(Form &form) : form_(form) {}

    /// Returns the marked day of the shown month, or 0 if none is marked yet.
    std::int16_t Day() const { return day_; }
    void Set_Day(std::int16_t day) { day_ = day; }
    /// Makes the mark visible from now on. Returns false if it already was.
    bool Activate() { return !std::exchange(active_, true); }
    void Set_Focus(bool has_focus) { has_focus_ = has_focus; }
    /// Moves the mark to the box of a day, or removes it if `box` is null. If the mark is active and the day
    /// is a different one, gives the focus to the box, or to `title` if `box` is null.
    void Move_To(Label *box, const Date &date, const Label &title);

private:
    Form &form_;
    std::int16_t day_ = 0;
    bool active_ = false;
    bool has_focus_ = false;
    Label *box_ = nullptr;
    std::optional<Date> announced_; ///< the last day announced to assistive technology
};

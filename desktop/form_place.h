// The place of a form on the screen: where a position code put it last, where the user put it, and the work
// area that this was made for. The arithmetic of the codes is in position.h.
#pragma once

#include "base/geometry.h"
#include "toolkit/form.h"

#include <cstdint>

class Form_Place {
public:
    explicit Form_Place(Form &form) : form_(form) {}

    /// Moves the form to a position code (position.h); a number that is none leaves it. `kept` is the user's
    /// own place as the settings hold it.
    void Put(std::int16_t code, int lowest_box_bottom, Point kept);
    /// Whether the form is where Put has put it.
    bool Stands() const { return placed_ == form_.Put_At(); }
    /// Brings a form that something else has moved back, unless the monitor of its place is gone.
    void Put_Back();
    /// Remembers where the user put the form, of which the settings hold what fits 16 bits.
    void Set_Manual(Point place) { manual_ = place; }
    /// Remembers the work area's height; true when it is another one than the last time.
    bool Take_Height();

private:
    Form &form_;
    Point placed_;
    Point manual_;
    int desktop_height_ = 0; ///< of the work area at the last placement, twips
};

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
    void Move_To(std::int16_t code, int lowest_box_bottom, Point kept);
    /// Whether the form's place is where Move_To has put it.
    bool Is_In_Position() const { return placed_ == home_ && shown_ == form_.Requested_Position(); }
    /// Brings a form that something else has moved back to its place, or as near to that as there is a
    /// monitor.
    void Restore_Position();
    /// Whether the form is seen beside its place, the monitor of which is gone, and has been left there.
    bool Is_Displaced() const { return shown_ != home_ && shown_ == form_.Requested_Position(); }
    /// Remembers where the user put the form, of which the settings hold what fits 16 bits.
    void Set_Manual(Point place) { manual_ = place; }
    /// Remembers the work area's height; true when it is another one than the last time.
    bool Update_Work_Area_Height();

private:
    Point Visible_Place() const;

    Form &form_;
    Point placed_; ///< where Move_To has put it
    Point home_;   ///< its place: that, or where the user moved it since
    Point shown_;  ///< where it is seen instead as long as no monitor shows its place
    Point manual_;
    int desktop_height_ = 0; ///< of the work area at the last placement, twips
};

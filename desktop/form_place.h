// The place of a form on the screen: where a position code or the user put it, and the substitute place if no
// monitor shows that place. position.h computes the places of the codes.
#pragma once

#include "base/geometry.h"
#include "toolkit/form.h"

#include <cstdint>

class Form_Place {
public:
    explicit Form_Place(Form &form) : form_(form) {}

    /// Moves the form to the place of a position code (position.h). An invalid code leaves the form where it
    /// is. `kept` is the manual position in the settings. If `kept` is the place of the last Set_Manual,
    /// clamped to 16 bits, the unclamped place counts.
    void Move_To(std::int16_t code, int lowest_box_bottom, Point kept);
    /// Returns whether the form is where Move_To put it.
    bool Is_In_Position() const { return placed_ == home_ && shown_ == form_.Requested_Position(); }
    /// Moves the form back to its place if another program has moved it, or to the nearest place on a monitor
    /// if no monitor shows its own.
    void Restore_Position();
    /// Returns whether the form stands at a substitute place, because no monitor shows its own, and nothing
    /// has moved it since.
    bool Is_Displaced() const { return shown_ != home_ && shown_ == form_.Requested_Position(); }
    /// Remembers where the user put the form, in twips. The settings clamp these coordinates to 16 bits.
    void Set_Manual(Point place) { manual_ = place; }
    /// Remembers the work area's height. Returns whether it differs from the last one.
    bool Update_Work_Area_Height();

private:
    Point Visible_Place() const;

    Form &form_;
    Point placed_; ///< where Move_To put the form
    Point home_;   ///< the form's own place, set by Move_To or by the user since
    Point shown_;  ///< where the form is shown: home_, or the nearest place that a monitor shows
    Point manual_;
    int desktop_height_ = 0; ///< the work area's height at the last Update_Work_Area_Height, in twips
};

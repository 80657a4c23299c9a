// The place of a form on the screen: where a position code or the user put it, and where it is shown if no
// monitor covers that. position.h computes the places of the codes.
#pragma once

#include "base/geometry.h"
#include "toolkit/form.h"

#include <cstdint>

class Form_Place {
public:
    explicit Form_Place(Form &form) : form_(form) {}

    /// Moves the form to the place of a position code (position.h). An invalid code leaves the form where it
    /// is. `kept` is the manual position in the settings.
    void Move_To(std::int16_t code, int lowest_box_bottom, Point kept);
    /// Returns whether the form is where Move_To has put it.
    bool Is_In_Position() const { return placed_ == home_ && shown_ == form_.Requested_Position(); }
    /// If something else has moved the form, moves it back to its place, or to the nearest one on a monitor.
    void Restore_Position();
    /// Returns whether the form stands at a substitute place, because no monitor shows its own, and nothing
    /// has moved it since.
    bool Is_Displaced() const { return shown_ != home_ && shown_ == form_.Requested_Position(); }
    /// Remembers where the user put the form. The settings hold only what fits 16 bits.
    void Set_Manual(Point place) { manual_ = place; }
    /// Remembers the work area's height. Returns whether it differs from the last one.
    bool Update_Work_Area_Height();

private:
    Point Visible_Place() const;

    Form &form_;
    Point placed_; ///< where Move_To has put the form
    Point home_;   ///< the form's place: where Move_To put it, or the user since
    Point shown_;  ///< where the form is shown: home_, or the nearest place that a monitor shows
    Point manual_;
    int desktop_height_ = 0; ///< of the work area at the last Update_Work_Area_Height, twips
};

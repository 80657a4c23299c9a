// Moves the calendar while the user drags its title, and by a step at each press of an arrow key. The owner
// stores the new place.
#pragma once

#include "base/geometry.h"
#include "toolkit/form.h"
#include "toolkit/guard.h"

#include <optional>

class Form_Drag {
public:
    /// Keeps the new place after a drag, a click or a series of steps. `from` is the form's place before the
    /// move, or nothing if no drag was running.
    using Keep = Callback<void(const std::optional<Point> &from)>;
    Form_Drag(Form &form, const Keep &keep) : form_(form), keep_(keep) {}

    bool Dragging() const { return drag_.has_value(); }
    // Mouse events over the title. `mouse` is a point in the title, in twips.
    void Begin(platform::Mouse_Button button, Point mouse);
    void Continue(platform::Mouse_Button held, Point mouse);
    void Drop(platform::Mouse_Button button);
    void End();

    /// Moves the form one step in the direction of an arrow key: one pixel if `fine` is set, otherwise ten.
    /// Returns false if the user may not move the form or the key is not an arrow key. End_Nudge stores the
    /// place.
    bool Nudge(int key, bool fine);
    void End_Nudge();

private:
    /// The beginning of a drag: the place of the mouse in the title, and of the form on the screen, in twips.
    /// The coordinates are wider than the 16 bits that the settings store, so that the user can drag a
    /// calendar back from beyond that range.
    struct Drag {
        Point mouse;
        Point form;
    };

    Form &form_;
    Keep keep_;
    Repeated_Guard guard_;
    std::optional<Drag> drag_;
    std::optional<Point> nudged_from_; ///< the form's place before the first step
};

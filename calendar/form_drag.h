// Moving the calendar by hand: the drag by the title, and steps by the arrow keys. Keeping the place that
// comes of it is not here.
#pragma once

#include "base/geometry.h"
#include "toolkit/form.h"
#include "toolkit/guard.h"

#include <optional>

class Form_Drag {
public:
    /// `keep` gets, after a move, where the form was before; nothing after a click that moved nothing.
    using Keep = Callback<void(const std::optional<Point> &from)>;
    Form_Drag(Form &form, const Keep &keep) : form_(form), keep_(keep) {}

    bool Dragging() const { return drag_.has_value(); }
    // The mouse on the title, at a point in it.
    void Begin(platform::Mouse_Button button, Point mouse);
    void Continue(platform::Mouse_Button held, Point mouse);
    void Drop(platform::Mouse_Button button);
    void End();

    /// Moves the form by one arrow key, `fine` by a pixel; false where it may not be moved or the key is
    /// none. The keys' last place is kept with End_Nudge.
    bool Nudge(int key, bool fine);
    void End_Nudge();

private:
    /// Where the mouse was in the title, and the form on the screen. Wider than the 16 bits that a place is
    /// kept in, so that a calendar beyond them can be dragged back.
    struct Drag {
        Point mouse;
        Point form;
    };

    Form &form_;
    Keep keep_;
    Repeated_Guard guard_;
    std::optional<Drag> drag_;
    std::optional<Point> nudged_from_; ///< where the arrow keys took it up
};

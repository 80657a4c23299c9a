// The balloon that shows a day's event while the user holds the mouse button. calendar/held_balloon.h decides
// when the balloon appears and disappears.
#pragma once

#include "toolkit/form.h"
#include "ui/balloon_shape.h"

#include <string>
#include <string_view>

class frmBalloon : public Form {
public:
    frmBalloon();

    /// Prepares the balloon next to the point `at` (twips on the screen). Show then shows it above all
    /// windows without taking the focus. If `icon` is "i", the balloon has the information icon, and
    /// otherwise none. `font` has no effect: all text uses the system's message font, which is Tahoma on
    /// older systems. `width` and `height` are those of the window including its tail, in twips. A longer
    /// text makes the balloon taller, up to the height of the work area, then wider, up to the width of the
    /// work area, and finally ends with "...".
    void SetBalloon(const std::string &title, std::string_view text, std::string_view icon,
                    std::string_view font, int width, int height, Point at);

    /// Closes the balloon. Does nothing if it is closed.
    void HideBalloon() { Close(); }

    Label Icon_Lbl{*this, "Icon_Lbl"};
    Label Title_Lbl{*this, "Title_Lbl"};
    Label Message_Lbl{*this, "Message_Lbl"};

private:
    void Paint(platform::Canvas &canvas, const Rect &clip) const override;

    Balloon_Place place_; ///< in the form's coordinates
};

// The balloon that shows a day's event while the mouse button is held. When it comes and goes is the
// calendar's affair.
#pragma once

#include "toolkit/form.h"
#include "ui/balloon_shape.h"

#include <string>
#include <string_view>

class frmBalloon : public Form {
public:
    frmBalloon();

    /// Prepares the balloon beside the point `at` (twips on the screen); Show shows it, above all windows and
    /// without the keyboard. `icon` is "i" for information; any other code shows none. `font` asks for a
    /// face: there is one face in the program, the system's for messages, which is Tahoma where the system's
    /// own texts are in it and what has taken its place elsewhere; so every request gets that one. `width`
    /// and `height` are the window's with its tail, in twips; a text that needs more height gets it, up to
    /// the height of the work area. One that needs still more makes the balloon wider, up to the width of the
    /// work area, and ends with "..." there.
    void SetBalloon(const std::string &title, std::string_view text, std::string_view icon,
                    std::string_view font, int width, int height, Point at);

    /// Takes the balloon down. Does nothing when there is none.
    void HideBalloon() { Close(); }

    Label Icon_Lbl{*this, "Icon_Lbl"};
    Label Title_Lbl{*this, "Title_Lbl"};
    Label Message_Lbl{*this, "Message_Lbl"};

private:
    void Paint(platform::Canvas &canvas, const Rect &clip) const override;

    Balloon_Place place_; ///< on the form
};

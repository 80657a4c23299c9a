// The page "Tooltips" of the settings dialog: the choice between the kinds of tooltips, with examples of
// them.
#pragma once

#include "settings/page.h"
#include "toolkit/control_array.h"

#include <cstdint>

class Tooltips_Page {
public:
    [[gnu::noinline]] Tooltips_Page(Form &dialog, Frame &frame, Held_Balloon &balloon);
    /// Places the controls, also after a change of the dots per inch.
    void Lay_Out();

    /// Selects a kind: 0 none, 1 standard, 2 balloons. Another number is the standard kind.
    void Select(std::int16_t kind);
    std::int16_t Selected() const;
    /// Shows today's box among the examples as the calendar draws it now.
    void Dress_Examples();
    /// The button is not held any more, by whatever way: an example balloon goes, or does not come.
    void Release() { balloon_.Hide(); }

    Control_Array<Option_Button, 3> Tips_Opt;
    Label TipsNotes_Lbl;
    Frame Preview_Fra;
    Label TipsTrigger_Lbl;
    Label TipExample_Lbl;
    Label TipBoxExample_Lbl;

private:
    void Tips_Opt_Click(int index);
    void Example_Tooltip();

    Form &dialog_;
    Held_Balloon &balloon_;
};

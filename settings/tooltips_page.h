// The "Tooltips" page of the settings dialog: the choice between the kinds of tooltips, with examples.
#pragma once

#include "settings/page.h"
#include "toolkit/control_array.h"

class Tooltips_Page final : public Page {
public:
    Tooltips_Page(Frame &frame, Held_Balloon &balloon);
    /// Selects the kind: 0 none, 1 standard, 2 balloons. Any other number selects the standard kind.
    void Show(const Settings &settings) override;
    void Write_To(Settings &settings) const override;
    void Lay_Out() override;

    /// Gives the example of today's box the current day and colours.
    void Style_Examples();
    /// Removes the example balloon, or cancels the wait for it. Call this when the user releases the mouse
    /// button, and when the dialog loses the mouse capture or closes.
    void Release() { balloon_.Hide(); }

    Control_Array<Option_Button, 3> Tips_Opt{frame_, "Tips_Opt"};
    Label TipsNotes_Lbl{frame_, "TipsNotes_Lbl"};
    Frame Preview_Fra{frame_, "Preview_Fra", "Preview"};
    Label TipsTrigger_Lbl{Preview_Fra, "TipsTrigger_Lbl"};
    Label TipExample_Lbl{Preview_Fra, "TipExample_Lbl", "Example"};
    Label TipBoxExample_Lbl{Preview_Fra, "TipBoxExample_Lbl"};

private:
    void Tips_Opt_Click(int index);
    void Example_Tooltip();

    Held_Balloon &balloon_;
};

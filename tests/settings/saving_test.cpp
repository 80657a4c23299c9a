// What Apply writes and changes, and what it leaves alone.
#include "tests/settings/settings_test.h"

namespace {

class Saving : public Settings_Dialog {
protected:
    /// The keys, of both sections, that something is written under meanwhile.
    std::string Written(const std::function<void()> &action) {
        auto &registry = Fakes().registry;
        registry.clear();
        action();
        std::string keys;
        for (const auto &[key, text] : registry)
            keys += key.substr(key.rfind('\\') + 1) + "=" + text + "|";
        return keys;
    }
};

TEST_F(Saving, writes_what_differs_and_what_is_always_written) {
    const std::string always = "Bar Date Format=d Month - yyyy|Bar Time=False|Bar Time Format=H:mm|";
    Cur_Settings = Settings{};
    Open(Settings_Frm::general_fra);
    const auto apply = [this] { Push(*dialog, dialog->Apply_Btn); };
    EXPECT_EQ(Written(apply), always);
    General_Page &page = dialog->General;
    Push(*dialog, page.Alert_Chk, false);
    Push(*dialog, page.Allow_Dragging_Chk, false);
    Push(*dialog, page.Auto_Compact_Chk, true);
    EXPECT_EQ(Written(apply), "Allow Dragging=0|Auto Compact=1|" + always + "Show Alerts=0|");
    EXPECT_TRUE(form.Compact_Timer.Enabled());
    Push(*dialog, page.Auto_Compact_Chk, false);
    Enter_Text(*dialog, page.Bar_Date_Cbo, "typed");
    Push(*dialog, page.Bar_Time_Chk, true);
    EXPECT_EQ(Written(apply), "Auto Compact=0|Bar Date Format=typed|Bar Time=True|Bar Time Format=H:mm|");
    EXPECT_FALSE(form.Compact_Timer.Enabled());
    EXPECT_TRUE(form.Settings_Visible());
    Push(*dialog, page.Alert_Chk, true);
    EXPECT_EQ(Written([this] { Push(*dialog, dialog->Cancel_Btn); }), "Settings Tab=3|");
    EXPECT_EQ(Cur_Settings.Show_Alerts, 0);
}

TEST_F(Saving, a_store_that_refuses_is_not_told_and_the_settings_hold) {
    Open(Settings_Frm::general_fra);
    Push(*dialog, dialog->General.Allow_Dragging_Chk, false);
    Push(*dialog, dialog->General.Bar_Time_Chk, true);
    Fakes().registry_refuses_writes = true;
    Push(*dialog, dialog->Ok_Btn);
    EXPECT_TRUE(Cur_Settings.Allow_Dragging == 0 && Cur_Settings.Bar_Time && Cur_Settings.Settings_Tab == 3);
    EXPECT_FALSE(form.Settings_Visible());
}

TEST_F(Saving, the_start_up_entry_is_emptied_and_not_deleted) {
    auto &values = Fakes().other_values;
    const std::string entry = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run\\Vellatro";
    Check_Box General_Page::*const box = &General_Page::Startup_Chk;
    EXPECT_FALSE((Open(Settings_Frm::general_fra).General.*box).Checked());
    for (const bool ticked : {false, true, false}) {
        Push(*dialog, dialog->General.*box, ticked);
        Push(*dialog, dialog->Apply_Btn);
        EXPECT_EQ(values[entry], platform::Registry_Value(ticked ? "C:\\Vellatro\\vellatro.exe" : ""));
        EXPECT_TRUE((Open(Settings_Frm::general_fra).General.*box).Checked());
    }
}

TEST_F(Saving, the_boxes_get_the_chosen_kind_of_tooltip) {
    Events({"6/3/2002=Dentist"});
    form.Redraw();
    for (const int kind : {2, 1, 0}) {
        Open(Settings_Frm::tooltips_fra);
        Push(*dialog, dialog->Tooltips.Tips_Opt[kind], true);
        Push(*dialog, dialog->Ok_Btn);
        EXPECT_EQ(Stored("Tooltips"), std::to_string(kind));
        EXPECT_EQ(Box_Of(6).Tooltip(), kind == 1 ? "Dentist" : "");
    }
}

} // namespace

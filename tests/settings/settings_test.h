// The fixture of the settings dialog's tests: a running calendar and its dialog.
#pragma once

#include "app/program.h"
#include "settings/settings_frm.h"
#include "tests/calendar/calendar_test.h"

#include <memory>

class Settings_Dialog : public Calendar_Test {
protected:
    Settings_Dialog() {
        Stored("Show Alerts") = "0";
        Connect_Settings(form, dialog);
        Start();
    }
    /// Closes an open dialog, and opens one on the page.
    Settings_Frm &Open(Settings_Frm::Page_Index page) {
        form.Close_Settings();
        Cur_Settings.Settings_Tab = static_cast<std::int16_t>(page + 1);
        form.Open_Settings();
        return *dialog;
    }
    std::unique_ptr<Settings_Frm> dialog;
};

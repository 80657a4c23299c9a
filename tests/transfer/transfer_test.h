// The fixture of the tests of import and export: the dialog is open on its page, and buttons are pressed.
#pragma once

#include "tests/settings/settings_test.h"

class Transfer_Test : public Settings_Dialog {
protected:
    Transfer_Test() { Open(Settings_Frm::transfer_fra); }

    static std::string &File(const std::string &path) { return Fakes().files[path]; }
    static std::string &Backup() { return File("C:\\Vellatro\\data.bak"); }
    static bool Has_Backup() { return Fakes().files.contains("C:\\Vellatro\\data.bak"); }

    void Export(int index, const std::string &answer, const std::string &message) {
        constexpr const char *titles[] = {"Export Data File", "Export Configuration File",
                                          "Export Events to Text File", "Export Events as CSV File",
                                          "Export Events as iCalendar File"};
        Press(dialog->Transfer.Export_Btn[index], titles[index], answer, message);
    }
    void Import(int index, const std::string &answer, const std::string &message) {
        constexpr const char *titles[] = {"Import Data File", "Import Configuration File",
                                          "Import Events from CSV File", "Import Events from iCalendar File"};
        Press(dialog->Transfer.Import_Btn[index], titles[index], answer, message);
    }

private:
    void Press(Button &button, const char *title, const std::string &answer, const std::string &message) {
        Fakes().Expect_Dialog(title, answer);
        if (!message.empty())
            Fakes().Expect_Box(message);
        Push(*dialog, button);
        // The last box tells of success, with another icon than all others.
        const bool good = message.starts_with("Successfully") || message.starts_with("Loaded");
        EXPECT_TRUE(message.empty() ||
                    (Fakes().boxes.back().icon == platform::Box_Icon::Information) == good);
    }
};

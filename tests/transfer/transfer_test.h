// The fixture of the import and export tests: the dialog is open on its transfer page.
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
        Transfer_Page &page = dialog->Transfer;
        Press(index < 4 ? page.Export_Btn[index] : page.Export_ICalendar_Btn, titles[index], answer, message);
    }
    void Import(int index, const std::string &answer, const std::string &message) {
        constexpr const char *titles[] = {"Import Data File", "Import Configuration File",
                                          "Import Events from CSV File", "Import Events from iCalendar File"};
        Transfer_Page &page = dialog->Transfer;
        Press(index < 3 ? page.Import_Btn[index] : page.Import_ICalendar_Btn, titles[index], answer, message);
    }

private:
    void Press(Button &button, const char *title, const std::string &answer, const std::string &message) {
        Fakes().Expect_Dialog(title, answer);
        if (!message.empty())
            Fakes().Expect_Box(message);
        Push(*dialog, button);
        // Only a box about success has the information icon.
        const bool good = message.starts_with("Successfully") || message.starts_with("Loaded");
        EXPECT_TRUE(message.empty() ||
                    (Fakes().boxes.back().icon == platform::Box_Icon::Information) == good);
    }
};

// The file dialog control: what it passes to the system's dialogs, and how it takes their answers.
#include "tests/fakes/fake_test.h"
#include "ui/open_save_dialog.h"

namespace {

using namespace std::string_literals;

class File_Dialogs : public Fake_Test {
protected:
    OpenSaveDialog dialog{nullptr};

    /// Shows a dialog that answers `answer` and sets the filter index to 2. Returns what it received, then
    /// the results.
    std::string Ask(void (OpenSaveDialog::*show)(), const std::string &answer) {
        std::string asked;
        Fakes().expected_dialogs.push_back(
            {"Pick", answer, [&asked](platform::File_Dialog &record) {
                 asked = (record.saves ? "save " : "open ") + record.filter + record.folder;
                 asked += " " + std::to_string(record.filter_index) + " " + std::to_string(record.flags) +
                          " " + std::to_string(record.file_room) + " " + std::to_string(record.title_room);
                 record.filter_index = 2;
             }});
        dialog.DialogTitle = "Pick";
        (dialog.*show)();
        return asked + "; " + dialog.FileName + ", " + dialog.FileTitle + " " +
               std::to_string(dialog.FilterIndex);
    }
};

TEST_F(File_Dialogs, hand_the_properties_over_and_take_the_answers) {
    dialog.InitDir = "D:\\in";
    dialog.MaxFileSize = 20;
    dialog.FileName = "no suggestion";
    EXPECT_EQ(Ask(&OpenSaveDialog::ShowOpen, "C:\\a.dat\0rest"s),
              "open D:\\in 0 0 260 20; C:\\a.dat, a.dat 2");
    dialog.Filter = "Text|*.txt|";
    dialog.FilterIndex = 0;
    dialog.Flags = platform::Multiple_Files;
    const std::string several = "C:\\x\0a\0b\0\0"s;
    EXPECT_EQ(Ask(&OpenSaveDialog::ShowOpen, several),
              "open Text\0*.txt\0\0\0D:\\in 1 512 8192 8192; "s + several + ", a.dat 2");
    EXPECT_EQ(Ask(&OpenSaveDialog::ShowSave, "C:\\b"),
              "save Text\0*.txt\0\0\0D:\\in 2 512 260 20; C:\\b, b 2"s);
    dialog.FilterIndex = 1;
    EXPECT_TRUE(Ask(&OpenSaveDialog::ShowOpen, "").ends_with("; C:\\b, b 1"));
    dialog.FileName = "C:\\a\0b\0c"s;
    std::string folder;
    std::vector<std::string> names;
    std::int16_t count = 0;
    dialog.ParseMultiFileName(folder, names, count);
    EXPECT_EQ(folder + "|" + names.at(0) + "|" + names.at(1) + std::to_string(count), "C:\\a|b|c2");
}

} // namespace

// The file dialog control: what it hands to the system's dialogs, and what it makes of their answers.
#include "tests/fakes/fake_test.h"
#include "ui/open_save_dialog.h"

namespace {

using namespace std::string_literals;

class File_Dialogs : public Fake_Test {
protected:
    void Answer(const std::string &path, std::function<void(platform::File_Dialog &)> look = nullptr) {
        Fakes().expected_dialogs.push_back({dialog.DialogTitle, path, std::move(look)});
    }
    OpenSaveDialog dialog{nullptr};
};

TEST_F(File_Dialogs, hand_the_properties_over_and_take_the_answers) {
    EXPECT_EQ(System_Filter(""), "");
    EXPECT_EQ(System_Filter("Text|*.txt|All|*.*"), "Text\0*.txt\0All\0*.*\0\0"s);
    EXPECT_EQ(System_Filter("Text|*.txt|"), "Text\0*.txt\0\0\0"s);
    dialog.DialogTitle = "Pick";
    dialog.InitDir = "C:\\Here";
    dialog.MaxFileSize = 20;
    Answer("C:\\Here\\a.dat", [](platform::File_Dialog &asked) {
        EXPECT_EQ(asked.filter + asked.folder + asked.file, "C:\\HereC:\\Here\\a.dat");
        EXPECT_TRUE(!asked.saves && asked.filter_index == 0 && asked.flags == 0);
        EXPECT_EQ(asked.file_room * 1000 + asked.title_room, 260'020U);
        asked.file += "\0rest"s;
        asked.flags = 1;
    });
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName + "|" + dialog.FileTitle, "C:\\Here\\a.dat|a.dat");
    EXPECT_TRUE(dialog.Flags == 1 && dialog.FilterIndex == 0);
    dialog.Filter = "Data File (calendar.dat)|*.dat";
    dialog.Flags = platform::Multiple_Files;
    Answer("C:\\Here\0a\0b\0\0"s, [](platform::File_Dialog &asked) {
        EXPECT_EQ(asked.filter_index, 1);
        EXPECT_EQ(asked.file_room + asked.title_room, 16384U);
        asked.filter_index = 2;
    });
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName + "|" + dialog.FileTitle, "C:\\Here\0a\0b\0\0|a.dat"s);
    EXPECT_EQ(dialog.FilterIndex, 2);
    // Saving knows no several files.
    Answer("D:\\x\0y"s, [](platform::File_Dialog &asked) {
        EXPECT_TRUE(asked.saves && asked.file_room == 260 && asked.title_room == 20);
    });
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName + "|" + dialog.FileTitle, "D:\\x|x");
}

TEST_F(File_Dialogs, leave_all_as_it_is_when_cancelled) {
    dialog.FileName = "before";
    Answer("");
    dialog.ShowOpen();
    dialog.CancelError = true;
    Answer("");
    try {
        dialog.ShowSave();
        ADD_FAILURE() << "no error";
    } catch (const Dialog_Cancelled &error) {
        EXPECT_STREQ(error.what(), "Cancel was selected.");
        EXPECT_EQ(error.Number, 32755);
    }
    EXPECT_EQ(dialog.FileName, "before");
}

TEST_F(File_Dialogs, part_names) {
    const struct {
        std::string name, expected;
    } cases[] = {{"C:\\a\\b.txt", "C:\\a:b.txt:1"},
                 {"\\b", ":b:1"},
                 {"b", ":b:1"},
                 {"", "::1"},
                 {"C:\\a\0b\0c"s, "C:\\a:b:c:2"},
                 {"C:\\a\0b\0"s, "C:\\a:b::2"}};
    for (const auto &[name, expected] : cases) {
        dialog.FileName = name;
        std::string folder, found;
        std::vector<std::string> names;
        std::int16_t count = 0;
        dialog.ParseMultiFileName(folder, names, count);
        for (const std::string &part : names)
            found += part + ":";
        EXPECT_EQ(folder + ":" + found + std::to_string(count), expected);
    }
}

} // namespace

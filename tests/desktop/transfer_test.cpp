// Import and export as a user does them: through the dialog's page and the system's file dialogs.
#include "tests/desktop/driver.h"

namespace {

class Transfer : public Desktop_Test {
protected:
    /// The settings dialog, on its page of import and export.
    void Open() {
        Set_Setting("Settings", "Settings Tab", "7");
        Set_Setting("Settings", "Show Alerts", "0");
        program_ = &Start_Calendar();
        program_->Click(program_->Named("Wednesday 12th May 2027, today").place, MOUSEEVENTF_RIGHTDOWN);
        ASSERT_TRUE(Wait_Until([&] { return program_->Window("#32768") != nullptr; }));
        program_->Choose({VK_UP, VK_UP, VK_RETURN});
        ASSERT_TRUE(Wait_Until([&] { return program_->Window("Vellatro_Settings_Frm") != nullptr; }));
    }

    /// Presses the button of an access key, names a file in the dialog of that title, and waits for the box
    /// that follows.
    void Transfer_File(WORD access_key, const char *title, const std::string &path, const std::string &box) {
        const auto dialog = [&] { return FindWindowA("#32770", title); };
        for (int i = 0; i < 3 && dialog() == nullptr; ++i) { // a key is lost while X changes the focus
            Send_Key(access_key, true);
            Wait_Until([&] { return dialog() != nullptr; }, 2000);
        }
        constexpr int file_name = 0x47C;
        ASSERT_TRUE(Wait_Until([&] { return GetDlgItem(dialog(), file_name) != nullptr; }));
        SendMessageA(GetDlgItem(dialog(), file_name), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
        PostMessageA(dialog(), WM_COMMAND, IDOK, 0);
        ASSERT_TRUE(Becomes(
            "[Vellatro] " + box + path, [&] { return program_->Box(); }, 15000));
        program_->Answer();
    }

    Program *program_ = nullptr;
};

TEST_F(Transfer, Events_Go_Out_And_Come_Back) {
    Write_Data("\"12/5/9999=Every, year\"\r\n\"6/5/2027=Once\"\r\n");
    Open();
    Save_Picture("transfer-page");
    std::string path;
    for (const wchar_t character : Data_Path().substr(0, Data_Path().rfind(L'\\')))
        path += static_cast<char>(character);
    path += "\\out.csv";
    DeleteFileA(path.c_str()); // of an earlier run
    Transfer_File('V', "Export Events as CSV File", path,
                  "Successfully exported 2 events to the CSV file...\r\n");
    DeleteFileW(Data_Path().c_str());
    Write_Data("\"6/5/9999=Always\"\r\n");
    Transfer_File('L', "Import Events from CSV File", path,
                  "Successfully imported 2 events from the CSV file...\r\n\r\n");
    EXPECT_EQ(Data(), "\"6/5/9999=Always + Once\"\r\n\"12/5/2027=Every, year\"\r\n");
    EXPECT_EQ(program_->Named("Wednesday 12th May 2027, today").value, "Every, year");
}

} // namespace

// The fixture of tests that import and export through the settings dialog.
#pragma once

#include "tests/desktop/driver.h"

class Transfer : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        const std::wstring folder = Path_Of(L"");
        folder_.assign(folder.begin(), folder.end());
    }

    /// Starts the calendar and opens the settings dialog on its page of import and export.
    void Open() {
        Set_Setting("Settings", "Settings Tab", "7");
        Set_Setting("Settings", "Show Alerts", "0");
        program_ = &Start_Calendar();
        program_->Open_Settings();
    }

    /// Presses a button by its access key, and enters a file name in the dialog with that title. An empty
    /// name cancels the dialog.
    void Choose_File(WORD access_key, const char *title, const std::string &name) const {
        const auto dialog = [&] { return FindWindowA("#32770", title); };
        for (int i = 0; i < 3 && dialog() == nullptr; ++i) { // X loses a key while it changes the focus
            Send_Key(access_key, true);
            Wait_Until([&] { return dialog() != nullptr; }, 2000);
        }
        Give_Name(title, name.empty() ? name : folder_ + name);
    }
    /// Waits for the file dialog and enters the path, or cancels the dialog if the path is empty.
    static void Give_Name(const char *title, const std::string &path) {
        constexpr int file_name = 0x47C;
        HWND dialog = nullptr;
        ASSERT_TRUE(Wait_Until([&] {
            dialog = FindWindowA("#32770", title);
            SetDlgItemTextA(dialog, file_name, path.c_str());
            return dialog && IsWindowVisible(dialog) && Text_Of(GetDlgItem(dialog, file_name)) == path;
        })) << title;
        PostMessageA(dialog, WM_COMMAND, path.empty() ? IDCANCEL : IDOK, 0);
        ASSERT_TRUE(Wait_Until([&] { return !IsWindow(dialog); })) << title;
    }
    /// Waits for a message box whose text starts with `box`, and answers it.
    void Answer(const std::string &box, WORD button = IDOK) const {
        ASSERT_TRUE(Becomes(
            box, [&] { return program_->Box().substr(0, box.size()); }, 120'000));
        program_->Answer(button);
    }
    /// Expects the page to be usable again, with no message box.
    void Expect_Quiet() const {
        const HWND page = program_->Window("Vellatro_Settings_Frm");
        EXPECT_TRUE(
            Wait_Until([&] { return page && IsWindowEnabled(page) && GetForegroundWindow() == page; }));
        EXPECT_EQ(program_->Box(), "");
    }
    const Program *program_ = nullptr;
    std::string folder_; ///< of the program, with a backslash at the end
};

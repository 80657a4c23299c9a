// The way to imports and exports through the settings dialog, for the tests that take it. It judges nothing
// but the way itself.
#pragma once

#include "tests/desktop/driver.h"

class Transfer : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        const std::wstring folder = Path_Of(L"");
        folder_.assign(folder.begin(), folder.end());
        for (const wchar_t *name : {L"out.csv", L"out.dat", L"out.ini", L"data.bak"}) // of an earlier run
            DeleteFileW(Path_Of(name).c_str());
    }

    /// The settings dialog, on its page of import and export.
    void Open() {
        Set_Setting("Settings", "Settings Tab", "7");
        Set_Setting("Settings", "Show Alerts", "0");
        program_ = &Start_Calendar();
        program_->Open_Settings();
    }

    /// Presses the button of an access key, and names a file in the dialog of that title; without a name it
    /// cancels.
    void Choose_File(WORD access_key, const char *title, const std::string &name) const {
        const auto dialog = [&] { return FindWindowA("#32770", title); };
        for (int i = 0; i < 3 && dialog() == nullptr; ++i) { // a key is lost while X changes the focus
            Send_Key(access_key, true);
            Wait_Until([&] { return dialog() != nullptr; }, 2000);
        }
        Give_Name(title, name.empty() ? name : folder_ + name);
    }
    /// Names a file in a dialog that is there or comes, or cancels it.
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
    /// Answers the box whose text begins so.
    void Answer(const std::string &box, WORD button = IDOK) const {
        ASSERT_TRUE(Becomes(
            box, [&] { return program_->Box().substr(0, box.size()); }, 120'000));
        program_->Answer(button);
    }
    /// No box follows, and the page can be used again.
    void Expect_Quiet() const {
        const HWND page = program_->Window("Vellatro_Settings_Frm");
        EXPECT_TRUE(
            Wait_Until([&] { return page && IsWindowEnabled(page) && GetForegroundWindow() == page; }));
        EXPECT_EQ(program_->Box(), "");
    }
    void Set_Read_Only(const std::string &name, bool on) const {
        EXPECT_TRUE(SetFileAttributesA((folder_ + name).c_str(),
                                       on ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL));
    }
    const Program *program_ = nullptr;
    std::string folder_; ///< the program's, with the separator
};

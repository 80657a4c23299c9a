// Theme packs as a user has them: the month's picture on the desktop, and the preview of all months.
#include "tests/contract/small_jpeg.h"
#include "tests/desktop/driver.h"

namespace {

class Themed : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        folder_ = Path_Of(L"Default");
        Set_Setting("Settings", "Use Themes", "1");
        SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, const_cast<wchar_t *>(L""), SPIF_UPDATEINIFILE);
        CreateDirectoryW(folder_.c_str(), nullptr);
        Put(L"settings.ini", "5=0-6-1\r\n6=1-6-0\r\n");
        for (int month = 5; month <= 6; ++month)
            Put(std::to_wstring(month) + L".jpg", Small_Jpeg(month));
    }

    void Put(const std::wstring &name, std::string_view bytes) const {
        Write_File(L"Default\\" + name, bytes);
    }

    /// The size of a file of the pack, 0 for none.
    DWORD Size(const wchar_t *name) const {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        GetFileAttributesExW((folder_ + L"\\" + name).c_str(), GetFileExInfoStandard, &data);
        return data.nFileSizeLow;
    }

    /// The system's three values, the wallpaper without the pack's folder.
    std::wstring Wallpaper() const {
        std::wstring values;
        for (const wchar_t *name : {L"TileWallpaper", L"WallpaperStyle", L"Wallpaper"}) {
            wchar_t value[MAX_PATH + 1] = L"";
            DWORD size = sizeof value;
            RegGetValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", name, RRF_RT_REG_SZ, nullptr, value,
                         &size);
            values += (values.empty() ? L"" : L" ") + std::wstring(value);
        }
        const std::size_t place = values.find(folder_);
        return place == std::wstring::npos ? values : values.erase(place, folder_.size());
    }

    const std::wstring &Folder() const { return folder_; }

private:
    std::wstring folder_;
};

TEST_F(Themed, The_Months_Picture_Is_The_Wallpaper) {
    const Program &program = Start_Calendar();
    const auto wallpaper = [&] { return Wallpaper(); };
    EXPECT_TRUE(Becomes(std::wstring(L"1 0 \\5.bmp"), wallpaper));
    EXPECT_EQ(Size(L"5.bmp"), 54U + 6 * 32);
    EXPECT_EQ(program.Items().at(0).place.left, 0);
    const auto in_the_middle = [] {
        return Picture().At(GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) / 2);
    };
    const HWND shell = FindWindowA("Progman", nullptr);
    Set_Clock(2027, 6, 1, 10, 30, 0);
    EXPECT_TRUE(Becomes(std::wstring(L"0 0 \\6.bmp"), wallpaper));
    EXPECT_EQ(Size(L"5.bmp"), 0U);
    ShowWindow(shell, SW_HIDE); // the stand-in has a wallpaper of its own
    EXPECT_TRUE(Becomes(DWORD{0xB0B0B0}, in_the_middle));
    ShowWindow(shell, SW_SHOWNA);
}

// The controls of the dialog's page, from its first one.
constexpr int use_chk = 0, preview_btn = 9;

class Wallpaper_Page : public Themed {
protected:
    void SetUp() override {
        Themed::SetUp();
        for (const wchar_t *pack : {L"", L"\\..\\Lacking"}) // also of an earlier run
            DeleteFileW((Folder() + pack + L"\\settings.ini").c_str());
        for (const auto &[name, value] : {std::pair(L"TileWallpaper", L"1"), {L"WallpaperStyle", L"0"}})
            RegSetKeyValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", name, REG_SZ, value, 4);
        Set_Setting("Settings", "Settings Tab", "6");
        Set_Setting("Settings", "Use Themes", "0");
    }
    void Put_Pack(const std::wstring &name, int pictures) const {
        const std::wstring pack = L"..\\" + name + L"\\";
        CreateDirectoryW((Folder() + L"\\" + pack).c_str(), nullptr);
        Put(pack + L"settings.ini", "1=0-3-2\r\n2=1-0-2\r\n3=0-6-2\r\n4=0-6-2\r\n5=1-0-1\r\n6=0-7-2\r\n");
        for (int month = 1; month <= pictures; ++month)
            Put(pack + std::to_wstring(month) + L".jpg", Small_Jpeg(month));
    }
    HWND Part(int control) const {
        const HWND first = FindWindowExA(dialog_, nullptr, nullptr, "Use &themes");
        return GetDlgItem(dialog_, GetDlgCtrlID(first) + control);
    }
    bool Ticked() const { return SendMessageA(Part(use_chk), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    Program *program_ = nullptr;
    HWND dialog_ = nullptr;
};

TEST_F(Wallpaper_Page, An_Abandoned_Preview_Leaves_No_Trace) {
    Put_Pack(L"Default", 12);
    std::wstring own = Folder() + L"\\..\\own.bmp";
    Picture().Save(own);
    SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, own.data(), SPIF_UPDATEINIFILE);
    for (const bool used : {false, true}) {
        SCOPED_TRACE(used);
        Set_Setting("Settings", "Use Themes", used ? "1" : "0");
        program_ = &Start_Calendar();
        const std::wstring before = Wallpaper();
        EXPECT_EQ(before, used ? L"1 0 \\5.bmp" : L"1 0 \\..\\own.bmp");
        const RECT place = program_->Items().at(0).place;
        dialog_ = program_->Open_Settings();
        if (!used)
            Click_On(Part(use_chk), [&] { return Ticked(); });
        ASSERT_TRUE(Wait_Until([&] { return IsWindowEnabled(Part(preview_btn)); }));
        Click_On(Part(preview_btn), [&] { return !IsWindowEnabled(Part(preview_btn)); });
        const DWORD begin = GetTickCount();
        const WORD day = used ? 14 : 13;
        Set_Clock(2027, 5, day, 10, 30, 0); // which shows when the preview is over
        for (const auto &[title, wallpaper] : {std::pair("Preview Mode - January", L"0 2 \\1.bmp"),
                                               {"Preview Mode - February", L"0 2 \\2.bmp"}}) {
            EXPECT_TRUE(Becomes(std::string(title), [&] { return program_->Title(); }));
            EXPECT_TRUE(Becomes(std::wstring(wallpaper), [&] { return Wallpaper(); }));
        }
        EXPECT_GE(GetTickCount() - begin, 2000U);
        Send_Key(VK_ESCAPE);
        EXPECT_TRUE(Becomes(before, [&] { return Wallpaper(); }));
        EXPECT_TRUE(Becomes(std::to_string(day) + "th May - 2027", [&] { return program_->Title(); }));
        EXPECT_TRUE(Wait_Until([&] { return IsWindowEnabled(Part(preview_btn)); })) << "the dialog stays";
        const RECT after = program_->Items().at(0).place;
        EXPECT_TRUE(EqualRect(&place, &after));
        for (const wchar_t *left : {L"1.bmp", L"2.bmp"})
            EXPECT_EQ(Size(left), 0U) << left;
        EXPECT_EQ(Size(L"5.bmp") > 0, used);
        EXPECT_EQ(Store().find("Use Themes=1") != std::string::npos, used);
        EXPECT_EQ(program_->Box(), "");
        if (!used) { // killed, it leaves the pack's picture to the next start
            Click_On(Part(preview_btn), [&] { return !IsWindowEnabled(Part(preview_btn)); });
            EXPECT_TRUE(Becomes(std::wstring(L"0 2 \\1.bmp"), [&] { return Wallpaper(); }));
            Stop_All();
            Start_Calendar();
            EXPECT_TRUE(Becomes(before, [&] { return Wallpaper(); }));
        }
        Stop_All();
    }
}

} // namespace

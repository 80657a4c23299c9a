// Theme packs: the month's picture on the desktop, and the preview of all months.
#include "tests/contract/small_jpeg.h"
#include "tests/desktop/driver.h"

namespace {

class Themed : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        folder_ = Path_Of(L"Default");
        SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, const_cast<wchar_t *>(L""), SPIF_UPDATEINIFILE);
        CreateDirectoryW(folder_.c_str(), nullptr);
        Write_File(L"Default\\settings.ini", "1=0-3-2\r\n2=1-0-2\r\n5=0-6-1\r\n6=1-6-0\r\n");
        for (int month = 1; month <= 12; ++month)
            Write_File(L"Default\\" + std::to_wstring(month) + L".jpg", Small_Jpeg(month));
    }

    /// Returns the size of a file of the pack, or 0 if it is missing.
    DWORD Size(const wchar_t *name) const {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        GetFileAttributesExW((folder_ + L"\\" + name).c_str(), GetFileExInfoStandard, &data);
        return data.nFileSizeLow;
    }

    /// Returns the registry values for tiling, style and wallpaper, without the pack's folder.
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

private:
    std::wstring folder_;
};

TEST_F(Themed, The_Months_Picture_Is_The_Wallpaper) {
    Set_Setting("Settings", "Use Themes", "1");
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
    ShowWindow(shell, SW_HIDE); // it covers the screen with a wallpaper of its own
    EXPECT_TRUE(Becomes(DWORD{0xB0B0B0}, in_the_middle));
    ShowWindow(shell, SW_SHOWNA);
}

TEST_F(Themed, An_Abandoned_Preview_Leaves_No_Trace) {
    std::wstring own = Path_Of(L"own.bmp");
    Picture().Save(own);
    SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, own.data(), SPIF_UPDATEINIFILE);
    for (const auto &[name, value] : {std::pair(L"TileWallpaper", L"1"), {L"WallpaperStyle", L"0"}})
        RegSetKeyValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", name, REG_SZ, value, 4);
    Set_Setting("Settings", "Settings Tab", "6");
    const Program &program = Start_Calendar();
    const std::wstring before = Wallpaper();
    EXPECT_EQ(before, L"1 0 " + own);
    const auto wallpaper = [&] { return Wallpaper(); };
    const auto title = [&] { return program.Title(); };
    const RECT place = program.Items().at(0).place;
    const HWND dialog = program.Open_Settings();
    const HWND use_chk = FindWindowExA(dialog, nullptr, "Button", "Use &themes");
    const HWND preview_btn = FindWindowExA(dialog, nullptr, "Button", "Pre&view all months");
    const auto can_begin = [&] { return IsWindowEnabled(preview_btn) != FALSE; };
    Click_On(use_chk, [&] { return SendMessageA(use_chk, BM_GETCHECK, 0, 0) == BST_CHECKED; });
    ASSERT_TRUE(Wait_Until(can_begin));
    const DWORD begin = GetTickCount();
    const auto preview = [&] {
        Click_On(preview_btn, [&] { return !can_begin(); });
        EXPECT_TRUE(Becomes(std::wstring(L"0 2 \\1.bmp"), wallpaper));
    };
    preview();
    EXPECT_EQ(program.Title(), "Preview Mode - January");
    Set_Clock(2027, 5, 13, 10, 30, 0); // the title shows it once the preview is over
    EXPECT_TRUE(Becomes(std::string("Preview Mode - February"), title));
    EXPECT_TRUE(Becomes(std::wstring(L"0 2 \\2.bmp"), wallpaper));
    EXPECT_GE(GetTickCount() - begin, 2000U);
    Send_Key(VK_ESCAPE);
    EXPECT_TRUE(Becomes(before, wallpaper));
    EXPECT_TRUE(Becomes(std::string("13th May - 2027"), title));
    EXPECT_TRUE(Wait_Until(can_begin)) << "the dialog stays";
    const RECT after = program.Items().at(0).place;
    EXPECT_TRUE(EqualRect(&place, &after) && Size(L"1.bmp") + Size(L"2.bmp") == 0);
    EXPECT_EQ(Store().find("Use Themes=1"), std::string::npos);
    EXPECT_EQ(program.Box(), "");
    preview();
    Stop_All(); // kills the program during the preview; the next start restores the wallpaper
    Start_Calendar();
    EXPECT_TRUE(Becomes(before, wallpaper));
}

} // namespace

// Theme packs as a user has them: the month's picture on the desktop, and packs with something missing.
#include "tests/contract/small_jpeg.h"
#include "tests/desktop/driver.h"

#include <cstdio>

namespace {

class Themed : public Desktop_Test {
protected:
    void SetUp() override {
        Desktop_Test::SetUp();
        folder_ = Data_Path().substr(0, Data_Path().rfind(L'\\')) + L"\\Default";
        Set_Setting("Settings", "Use Themes", "1");
        SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, const_cast<wchar_t *>(L""), SPIF_UPDATEINIFILE);
        CreateDirectoryW(folder_.c_str(), nullptr);
        Put(L"settings.ini", "5=0-6-1\r\n6=1-6-0\r\n");
        for (int month = 5; month <= 6; ++month)
            Put(std::to_wstring(month) + L".jpg", Small_Jpeg(month));
    }

    void Put(const std::wstring &name, std::string_view bytes) const {
        FILE *file = _wfopen((folder_ + L"\\" + name).c_str(), L"wb");
        ASSERT_TRUE(file && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size());
        std::fclose(file);
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

TEST_F(Themed, What_Is_Missing_Is_Told_And_The_Calendar_Appears) {
    const std::string told = "stop [Vellatro] ";
    const auto path = [&](const wchar_t *name) {
        const std::wstring wide = Folder() + name;
        return std::string(wide.begin(), wide.end());
    };
    const struct {
        const char *pack;
        std::wstring name;
        bool goes;
        std::string bytes, box;
    } cases[] = {
        {"Gone", L"", false, "", "Missing Theme Gone. Themes will now be disabled."},
        {"..", L"", false, "", "Missing Theme ... Themes will now be disabled."},
        {"Default", L"5.jpg", false, Small_Jpeg(5).substr(0, 100), path(L"\\5.jpg: This is no JPEG")},
        {"Default", L"5.jpg", false, "Only text.\r\n", path(L"\\5.jpg: This is no JPEG")},
        {"Default", L"5.jpg", true, "", path(L"\\5.jpg: ")},
        {"Default", L"settings.ini", true, "",
         "Error loading in Settings file...\r\n\r\n" + path(L"\\settings.ini")},
    };
    for (const auto &[pack, name, goes, bytes, box] : cases) {
        SCOPED_TRACE(box);
        Set_Setting("Settings", "Use Themes", "1");
        Set_Setting("Settings", "Pack Name", pack);
        if (goes)
            ASSERT_TRUE(DeleteFileW((Folder() + L"\\" + name).c_str()));
        else if (!name.empty())
            Put(name, bytes);
        const Program &program = Start();
        std::string seen;
        EXPECT_TRUE(Wait_Until([&] { return (seen = program.Box()).starts_with(told + box); }, 15000))
            << seen;
        program.Answer();
        EXPECT_TRUE(Wait_Until([&] { return !program.Items().empty(); }, 15000));
        EXPECT_EQ(Wallpaper(), L"0 2 ");
        EXPECT_EQ(Store().find("Use Themes=0") != std::string::npos, box[0] == 'M');
        EXPECT_EQ(Size(L"5.bmp"), 0U);
        Stop_All();
    }
}

} // namespace

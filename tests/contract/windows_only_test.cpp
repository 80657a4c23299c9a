// Tests without a counterpart on the fakes: file attributes and sharing, long names, types of registry
// values, pictures, the native message box, and dates compared with the system's.
#ifdef _WIN32
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "platform/pictures.h"
#include "platform/process.h"
#include "platform/registry.h"
#include "platform/wallpaper.h"
#include "tests/contract/contract.h"
#include "tests/contract/small_jpeg.h"
#include "win32/broadcasts.h"
#include "win32/dialog_edit.h"
#include "win32/paths.h"
#include "win32/picture_scaling.h"

#include <windows.h>

#include <map>
#include <tuple>

namespace {

using Windows_Only = Contract_Test;

/// The calendar repeats after 400 years. So the text that the system gives for a day 400 years later differs
/// from ours only in the year.
TEST_F(Windows_Only, Early_Dates_Are_Formatted_As_The_System_Does) {
    for (const char *pattern : {"dddd, d. MMMM yyyy", "ddd dd/MMM/yyyy", "'the' d 'of' MMMM, yyyy",
                                "d 'o''clock' yyyy", "yyyy年M月d日"}) {
        Use_Short_Date(pattern);
        for (const auto &[month, day] : {std::pair(1, 1), {2, 29}, {12, 25}}) {
            std::string expected = platform::Short_Date(2000, month, day);
            expected.replace(expected.find("2000"), 4, "1600");
            EXPECT_EQ(platform::Short_Date(1600, month, day), expected) << pattern;
        }
    }
}

TEST_F(Windows_Only, Dates_Beside_Another_Calendar_Are_Gregorian_And_Come_Back) {
    const struct {
        CALID calendar;
        const char *pattern, *date, *early_date;
    } cases[] = {{CAL_THAI, "d/m/yy", "22/11/2026", "3/2/0950"},
                 {CAL_UMALQURA, "d\u200F/m\u200F/yyyy", "22/11/2026", "3/2/0950"},
                 {CALID{22}, "yyyy/mm/dd", "2026/11/22", "0950/02/03"},
                 {CAL_JAPAN, "gg y/m/d", "2026/11/22", "0950/2/3"},
                 {CAL_HIJRI, "m-d-yy", "11-22-2026", "2-3-0950"},
                 {CAL_GREGORIAN_ARABIC, "d\u200F/m\u200F/yy", "22\u200F/11\u200F/26", "3\u200F/2\u200F/50"}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.calendar);
        Use_Calendar(c.calendar);
        Use_Short_Date(c.pattern);
        EXPECT_EQ(platform::Short_Date(2026, 11, 22), c.date);
        EXPECT_EQ(platform::Short_Date(950, 2, 3), c.early_date);
        for (const auto &[month, day] : {std::pair(11, 22), {2, 3}}) {
            const std::string text = platform::Short_Date(2026, month, day);
            const platform::Date_Time read = platform::Read_Date(text).value_or(platform::Date_Time{});
            EXPECT_EQ(std::tuple(read.year, read.month, read.day), std::tuple(2026, month, day)) << text;
        }
    }
    // ./test runs this for users of each of the four languages.
    const std::map<LANGID, std::string> names{
        {0x409, "February"}, {0x41E, "กุมภาพันธ์"}, {0x401, "فبراير"}, {0x429, "فوریه"}};
    Use_Calendar(CAL_THAI);
    EXPECT_EQ(platform::Month_Name(2), names.at(GetUserDefaultLangID()));
}

TEST_F(Windows_Only, A_Wallpaper_That_The_System_Writes_Over_Is_Copied) {
    Make_Folder(Scratch("CachedFiles"));
    const std::string image = "CachedFiles\\CachedImage_1920_1080_POS4.jpg";
    for (const auto &[name, kept] : std::initializer_list<std::pair<std::string, std::string>>{
             {"transcodedwallpaper", "Vellatro_transcodedwallpaper.jpg"},
             {"TranscodedWallpaper_001.png", "Vellatro_TranscodedWallpaper_001.png"},
             {image, "Vellatro_CachedImage_1920_1080_POS4.jpg"},
             {"TranscodedWallpaper_002", "TranscodedWallpaper_002"}, // missing
             {"Sunset.jpg", "Sunset.jpg"}}) {
        if (!name.ends_with('2'))
            platform::Replace_File(Scratch(name), "the picture " + name);
        EXPECT_EQ(platform::Persistent_Wallpaper(Scratch(name)), Scratch(kept));
        EXPECT_TRUE(kept == name || platform::Read_File(Scratch(kept)) == "the picture " + name) << name;
    }
}

TEST_F(Windows_Only, A_Hidden_File_Stays_Hidden_And_The_Rest_Of_A_Killed_Run_Goes) {
    const std::string path = Scratch("calendar.dat");
    const std::wstring wide = win32::To_Wide(path);
    {
        const win32::Unique_File writer =
            win32::Own_File(CreateFileW(wide.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                        FILE_ATTRIBUTE_HIDDEN, nullptr));
        DWORD written = 0;
        ASSERT_TRUE(WriteFile(writer.get(), "half", 4, &written, nullptr));
        EXPECT_EQ(platform::Read_File(path), "half") << "while another program writes it";
    }
    platform::Replace_File(path + ".vellatro-new", "half of a much longer file");
    Protect_File(path + ".vellatro-new");
    platform::Replace_File(path, "whole");
    EXPECT_EQ(platform::Read_File(path), "whole");
    EXPECT_TRUE(GetFileAttributesW(wide.c_str()) & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(Names_Beside(path), std::vector<std::string>{"calendar.dat"});
}

TEST_F(Windows_Only, A_File_Keeps_Its_Own_Access_List) {
    const std::wstring wide = win32::To_Wide(Scratch("calendar.dat"));
    std::vector<SECURITY_DESCRIPTOR> space(100);
    PACL list = nullptr;
    const auto entries = [&] {
        DWORD size = 0;
        BOOL present = FALSE;
        platform::Replace_File(Scratch("calendar.dat"), "new");
        GetFileSecurityW(wide.c_str(), DACL_SECURITY_INFORMATION, space.data(), 2000, &size);
        GetSecurityDescriptorDacl(space.data(), &present, &list, &present);
        return DWORD{list->AceCount};
    };
    const DWORD before = entries();
    ASSERT_TRUE(DeleteAce(list, before - 1));
    ASSERT_TRUE(SetFileSecurityW(wide.c_str(), DACL_SECURITY_INFORMATION, space.data()));
    EXPECT_EQ(entries(), before - 1);
}

TEST_F(Windows_Only, A_Released_Claim_Can_Be_Made_Again) {
    for (int i = 0; i < 2; ++i, platform::Release_Single_Instance())
        EXPECT_TRUE(platform::Claim_Single_Instance("claim") && !platform::Claim_Single_Instance("claim"));
}

TEST_F(Windows_Only, A_Start_From_The_Temporary_Folder_Is_Seen) {
    const std::wstring folder = win32::To_Wide(platform::Program_Folder());
    const std::wstring above = folder.substr(0, folder.rfind(L'\\') + 1);
    wchar_t before[MAX_PATH] = {};
    GetEnvironmentVariableW(L"TMP", before, MAX_PATH);
    for (const auto &[temporary, seen] : {std::pair(folder, true),
                                          {above, true},
                                          {folder.substr(0, 3), false},
                                          {folder + L"\\below", false},
                                          {above + L"contr", false}}) {
        SetEnvironmentVariableW(L"TMP", temporary.c_str());
        EXPECT_EQ(platform::Started_From_Temporary_Folder(), seen) << win32::From_Wide(temporary);
    }
    SetEnvironmentVariableW(L"TMP", before);
}

/// Long paths get the prefix that older systems need. Invalid paths are refused.
TEST_F(Windows_Only, Names_Are_Given_In_The_Form_That_The_System_Takes) {
    const std::string part(300, 'x');
    const std::wstring wide_part(300, L'x');
    EXPECT_TRUE(win32::Path_For_Call("C:/" + part) == L"\\\\?\\C:\\" + wide_part);
    EXPECT_TRUE(win32::Path_For_Call("\\\\host\\" + part) == L"\\\\?\\UNC\\host\\" + wide_part);
    for (const std::string &path : {std::string("C:\\a"), "C:\\..\\" + part, part, "\\\\?\\C:\\" + part})
        EXPECT_TRUE(win32::Path_For_Call(path) == win32::To_Wide(path)) << path;
    platform::Replace_File(Scratch("a"), "old");
    const std::string with_zero = Scratch("a") + std::string(1, '\0') + "b";
    for (const std::string &path : {with_zero, std::string(), std::string("NUL"), Scratch("no such\\a")}) {
        EXPECT_THROW(platform::Read_File(path), platform::File_Error) << path;
        EXPECT_THROW(platform::Replace_File(path, "new"), platform::File_Error) << path;
    }
    for (const std::string &path : {with_zero, Scratch("a|b")})
        EXPECT_TRUE(platform::Path_Exists(path)) << "reading is to tell: " << path;
    EXPECT_FALSE(platform::Path_Exists(Scratch("no such\\a")));
    EXPECT_EQ(Names_Beside(Scratch("a")), std::vector<std::string>{"a"});
}

TEST_F(Windows_Only, All_Kinds_Of_Stored_Texts_And_Numbers_Are_Read) {
    const std::wstring key = win32::To_Wide(Scratch_Key());
    const auto store = [&](DWORD type, const void *data, DWORD size) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Value", type, data, size), ERROR_SUCCESS);
    };
    const wchar_t text[] = L"abc\0%x%";
    const std::int32_t number = -2147483647 - 1;
    const struct {
        DWORD type, size;
        std::string expected;
        const void *data;
    } cases[] = {{REG_SZ, 6, "abc", text}, // without a final zero
                 {REG_SZ, 16, "abc", text},
                 {REG_SZ, 5, "ab", text},
                 {REG_SZ, 0, "", text},
                 {REG_SZ, 4, "\uFFFDx", L"\xD83Dx"},
                 {REG_EXPAND_SZ, 8, "%x%", text + 4},
                 {REG_DWORD, 4, std::to_string(number), &number},
                 {REG_DWORD, 2, "(binary data)", &number},
                 {REG_MULTI_SZ, 8, "(binary data)", text}};
    for (const auto &[type, size, expected, data] : cases) {
        store(type, data, size);
        EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Value"), expected) << type << ", " << size;
    }
    store(REG_EXPAND_SZ, L"<%OS%>", 12); // some systems store the wallpaper this way
    EXPECT_EQ(platform::Registry_Read("HKCU", Scratch_Key(), "Value", 'S', "none"),
              platform::Registry_Value("<Windows_NT>"));
    // This name is too long for a key.
    EXPECT_THROW(platform::Write_User_Value(std::string(300, 'k'), "Value", "1"), platform::Registry_Error);
}

/// The message box that Visit answers, the button to press, and what Visit saw before.
struct Box_Visit {
    std::wstring title;
    WPARAM button;
    HWND bystander;
    std::wstring text = {};
    bool all_locked = false;
};

DWORD WINAPI Visit(void *visit_address) {
    auto &visit = *static_cast<Box_Visit *>(visit_address);
    HWND box = nullptr;
    for (int tries = 0; tries < 500 && !IsWindowVisible(box); ++tries, Sleep(20))
        box = FindWindowW(L"#32770", visit.title.c_str());
    visit.text = win32::Window_Text(GetDlgItem(box, 0xFFFF));
    visit.all_locked = platform::Modal_Box_Is_Open() && !IsWindowEnabled(visit.bystander);
    PostMessageW(box, WM_COMMAND, visit.button, 0);
    return 0;
}

TEST_F(Windows_Only, Message_Boxes_Show_Their_Text_And_Answer) {
    using platform::Box_Answer;
    using platform::Box_Buttons;
    std::string lines;
    for (int i = 0; i < 100; ++i)
        lines += "line\r\n";
    const struct {
        std::string text;
        Box_Buttons buttons;
        WPARAM pressed;
        Box_Answer answer;
        std::wstring shown;
    } cases[] = {
        {"Sure & safe?", Box_Buttons::Yes_No, IDNO, Box_Answer::No, L"Sure & safe?"},
        {std::string("z\xC3\xA9ro\0", 6) + "\u0414\u65E5", Box_Buttons::Yes_No_Cancel, IDCANCEL,
         Box_Answer::Cancel, L"z\u00E9ro \u0414\u65E5"},
        {std::string(5000, 'x'), Box_Buttons::Yes_No, IDYES, Box_Answer::Yes,
         std::wstring(1000, L'x') + L"..."},
        {lines, Box_Buttons::Ok, IDOK, Box_Answer::Ok, win32::To_Wide(lines.substr(0, 30 * 6 - 2)) + L"..."}};
    // After a cancelled end of the session, boxes show again.
    SendMessageW(win32::Broadcast_Window(), WM_QUERYENDSESSION, 0, static_cast<LPARAM>(ENDSESSION_CRITICAL));
    SendMessageW(win32::Broadcast_Window(), WM_ENDSESSION, FALSE, 0);
    // A box that belongs to an active dialog disables the program's other windows, too.
    const auto window = [](DWORD style) {
        return CreateWindowW(L"STATIC", L"", style | WS_VISIBLE, 0, 0, 90, 50, nullptr, nullptr, nullptr,
                             nullptr);
    };
    const HWND bystander = window(WS_POPUP), dialog = window(WS_POPUP | WS_CAPTION);
    for (const auto &c : cases) {
        SetActiveWindow(c.pressed == IDNO ? bystander : dialog);
        Box_Visit visit{L"Box " + std::to_wstring(&c - cases), c.pressed, bystander};
        const win32::Unique_Kernel_Handle thread(CreateThread(nullptr, 0, Visit, &visit, 0, nullptr));
        EXPECT_EQ(platform::Message_Box(c.text, platform::Box_Icon::Question, c.buttons,
                                        win32::From_Wide(visit.title)),
                  c.answer);
        WaitForSingleObject(thread.get(), INFINITE);
        EXPECT_TRUE(visit.text == c.shown) << win32::From_Wide(visit.text);
        EXPECT_TRUE(visit.all_locked && IsWindowEnabled(bystander) && IsWindowEnabled(dialog));
    }
    EXPECT_FALSE(platform::Modal_Box_Is_Open());
    DestroyWindow(dialog);
    DestroyWindow(bystander);
}

TEST_F(Windows_Only, Pictures_Are_Loaded_Whole_Or_Not_At_All_And_Scaled_By_Means) {
    const std::string path = Scratch("3.jpg"), whole = Small_Jpeg(5);
    platform::Replace_File(path, whole);
    const Picture picture = platform::Load_Picture(path);
    ASSERT_TRUE(picture.width == 10 && picture.height == 6 && picture.pixels);
    EXPECT_EQ(*picture.pixels, std::vector<std::uint8_t>(std::size_t{180}, 168));
    std::string huge = whole;
    huge.replace(76, 4, "\xFF\xFF\xFF\xFF");
    for (const std::string &bytes : {std::string(), whole.substr(0, whole.size() - 3), huge}) {
        platform::Replace_File(path, bytes);
        try {
            platform::Load_Picture(path);
            ADD_FAILURE() << bytes.size();
        } catch (const platform::Picture_Error &error) {
            EXPECT_TRUE(std::string(error.what()).starts_with(path + ": ")) << error.what();
        }
    }
    std::vector<std::uint8_t> pixels; // 4 by 2 pixels with blue values of 0, 10, 20, 30 and 40, 50, 60, 70
    for (int i = 0; i < 8; ++i)
        pixels.insert(pixels.end(), {static_cast<std::uint8_t>(10 * i), 2, 3});
    const Picture small{4, 2, std::make_shared<const std::vector<std::uint8_t>>(pixels)};
    std::vector<std::uint32_t> buffer(3 * 2);
    win32::Scale_Picture({buffer.data(), 3, 2}, small, {1, 0, 2, 1});
    EXPECT_EQ(buffer, (std::vector<std::uint32_t>{0, 0x30219, 0x3022D, 0, 0, 0}));
    win32::Scale_Picture({buffer.data(), 3, 2}, small, {-5, -2, 8, 4});
    EXPECT_EQ(buffer, (std::vector<std::uint32_t>{0x3023C, 0x30246, 0x30246, 0x3023C, 0x30246, 0x30246}));
    win32::Scale_Picture({buffer.data(), 3, 2}, {}, {0, 0, 3, 2});
}

} // namespace
#endif

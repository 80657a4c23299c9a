// What only Windows has to show: file attributes and sharing, long names, kinds of registry values, the
// native message box, and dates beside the system's own. In the native test program this file holds no tests.
#ifdef _WIN32
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "platform/registry.h"
#include "tests/contract/contract.h"
#include "win32/modal.h"
#include "win32/paths.h"

#include <windows.h>

#include <cstring>
#include <ctime>

namespace {

class Windows_Only : public Contract_Test {
protected:
    void Store_Raw(const wchar_t *name, DWORD type, const void *data, DWORD size) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, win32::To_Wide(Scratch_Key()).c_str(), &key),
                  ERROR_SUCCESS);
        const win32::Unique_Key owner(key);
        ASSERT_EQ(RegSetValueExW(key, name, 0, type, static_cast<const BYTE *>(data), size), ERROR_SUCCESS);
    }
};

DWORD Attributes(const std::string &path) {
    return GetFileAttributesW(win32::To_Wide(path).c_str());
}

TEST_F(Windows_Only, The_Manifest_Makes_The_Code_Page_Utf8) {
    EXPECT_EQ(GetACP(), 65001U);
}

TEST_F(Windows_Only, The_Clock_Is_The_Systems) {
    const std::time_t seconds = std::time(nullptr);
    const platform::Date_Time now = platform::Now();
    const std::tm *local = std::localtime(&seconds);
    std::tm shown{};
    shown.tm_year = now.year - 1900;
    shown.tm_mon = now.month - 1;
    shown.tm_mday = now.day;
    shown.tm_hour = now.hour;
    shown.tm_min = now.minute;
    shown.tm_sec = now.second;
    shown.tm_isdst = local->tm_isdst;
    EXPECT_LE(std::mktime(&shown) - seconds, 2);
    EXPECT_GE(std::mktime(&shown) - seconds, 0);
}

/// The calendar repeats after 400 years, so the same day 400 years later, which the system formats, differs
/// from our own text in the year alone.
TEST_F(Windows_Only, Early_Dates_Are_Formatted_As_The_System_Does) {
    for (const char *pattern : {"dddd, d. MMMM yyyy", "ddd dd/MMM/yyyy", "'the' d 'of' MMMM, yyyy",
                                "d 'o''clock' yyyy", "yyyy年M月d日", "d/M/yy"}) {
        Use_Short_Date(pattern);
        for (const auto &[month, day] : {std::pair(1, 1), {2, 29}, {5, 31}, {12, 25}}) {
            std::string expected = platform::Short_Date(2000, month, day);
            const std::size_t year = expected.find("2000");
            if (year != std::string::npos)
                expected.replace(year, 4, "1600");
            EXPECT_EQ(platform::Short_Date(1600, month, day), expected) << pattern;
        }
    }
}

TEST_F(Windows_Only, A_Reader_Elsewhere_Stops_No_Replacement_That_It_Allows) {
    const std::string path = Scratch("calendar.dat");
    platform::Replace_File(path, "old");
    Hold_File(path, FILE_SHARE_READ);
    EXPECT_EQ(platform::Read_File(path), "old");
    EXPECT_THROW(platform::Replace_File(path, "new"), platform::File_Error);
    EXPECT_EQ(platform::Read_File(path), "old");
    EXPECT_EQ(Names_Left(), std::vector<std::string>{"calendar.dat"});
}

TEST_F(Windows_Only, A_Writer_Elsewhere_Stops_No_Reading) {
    const std::string path = Scratch("notes.txt");
    const win32::Unique_File writer(CreateFileW(win32::To_Wide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                                nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    ASSERT_TRUE(WriteFile(writer.Get(), "half", 4, &written, nullptr));
    EXPECT_EQ(platform::Read_File(path), "half");
}

TEST_F(Windows_Only, A_Hidden_File_Stays_Hidden_And_A_Protected_One_Protected) {
    const std::string path = Scratch("calendar.dat");
    platform::Replace_File(path, "old");
    SetFileAttributesW(win32::To_Wide(path).c_str(), FILE_ATTRIBUTE_HIDDEN);
    platform::Replace_File(path, "new");
    EXPECT_EQ(platform::Read_File(path), "new");
    EXPECT_TRUE(Attributes(path) & FILE_ATTRIBUTE_HIDDEN);
    Protect_File(path);
    EXPECT_THROW(platform::Replace_File(path, "newer"), platform::File_Error);
    EXPECT_TRUE(Attributes(path) & FILE_ATTRIBUTE_READONLY);
}

TEST_F(Windows_Only, The_Rest_Of_A_Killed_Run_Is_Thrown_Away) {
    const std::string path = Scratch("calendar.dat");
    platform::Replace_File(path + ".vellatro-new", "half of a much longer file");
    Protect_File(path + ".vellatro-new");
    platform::Replace_File(path, "whole");
    EXPECT_EQ(platform::Read_File(path), "whole");
    EXPECT_EQ(Names_Left(), std::vector<std::string>{"calendar.dat"});
}

TEST_F(Windows_Only, Names_Of_Any_Length_Work) {
    std::string path = Scratch("");
    path.pop_back();
    for (int depth = 0; depth < 3; ++depth) {
        path += "\\" + std::string(100, static_cast<char>('a' + depth));
        ASSERT_TRUE(CreateDirectoryW(win32::Path_For_Call(path).c_str(), nullptr)) << path;
    }
    path += "\\calendar.dat";
    platform::Replace_File(path, "deep");
    EXPECT_EQ(platform::Read_File(path), "deep");
    EXPECT_TRUE(platform::File_Exists(path));
    while (path.size() > Scratch("").size()) {
        SCOPED_TRACE(path);
        const std::wstring wide = win32::Path_For_Call(path);
        EXPECT_TRUE(DeleteFileW(wide.c_str()) || RemoveDirectoryW(wide.c_str()));
        path.resize(path.rfind('\\'));
    }
}

/// Only the prefix lets older systems take long names.
TEST_F(Windows_Only, Long_Names_Are_Given_In_The_Long_Form) {
    const std::string part(300, 'x');
    const std::wstring wide_part(300, L'x');
    EXPECT_EQ(win32::Path_For_Call("C:\\calendar.dat"), L"C:\\calendar.dat");
    EXPECT_TRUE(win32::Path_For_Call("C:/" + part) == L"\\\\?\\C:\\" + wide_part);
    EXPECT_TRUE(win32::Path_For_Call("\\\\host\\" + part) == L"\\\\?\\UNC\\host\\" + wide_part);
    for (const std::string &path : {"C:\\..\\" + part, part, "\\\\?\\C:\\" + part})
        EXPECT_TRUE(win32::Path_For_Call(path) == win32::To_Wide(path)) << path;
}

TEST_F(Windows_Only, Names_That_Are_None_Are_Refused) {
    platform::Replace_File(Scratch("a"), "old");
    const std::string with_zero = Scratch("a") + std::string(1, '\0') + "b";
    EXPECT_FALSE(platform::Path_Exists(with_zero));
    for (const std::string &path : {with_zero, std::string(), std::string("NUL"), Scratch("no such\\a")}) {
        EXPECT_THROW(platform::Read_File(path), platform::File_Error) << path;
        EXPECT_THROW(platform::Replace_File(path, "new"), platform::File_Error) << path;
    }
    EXPECT_EQ(Names_Left(), std::vector<std::string>{"a"});
}

TEST_F(Windows_Only, A_File_Too_Long_For_Memory_Is_Refused) {
    const std::string path = Scratch("huge.dat");
    {
        const win32::Unique_File file(CreateFileW(win32::To_Wide(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        LONG high = 1;
        SetFilePointer(file.Get(), 7, &high, FILE_BEGIN);
        ASSERT_TRUE(SetEndOfFile(file.Get()));
    }
    EXPECT_THROW(platform::Read_File(path), platform::File_Error);
}

TEST_F(Windows_Only, The_Program_Folder_Holds_This_Program) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::string name = win32::From_Wide(std::wstring(path).substr(std::wstring(path).rfind(L'\\')));
    EXPECT_TRUE(platform::File_Exists(platform::Program_Folder() + name));
}

TEST_F(Windows_Only, All_Kinds_Of_Stored_Texts_And_Numbers_Are_Read) {
    const wchar_t text[] = L"abc\0def";
    struct Case {
        DWORD type;
        DWORD size;
        std::optional<std::string> expected;
    };
    const Case cases[] = {{REG_SZ, 6, "abc"}, // no zero at its end
                          {REG_SZ, 8, "abc"},          {REG_SZ, 16, "abc"},
                          {REG_SZ, 5, "ab"},           {REG_SZ, 0, ""},
                          {REG_EXPAND_SZ, 8, "abc"},   {REG_BINARY, 6, std::nullopt},
                          {REG_DWORD, 2, std::nullopt}};
    for (const Case &c : cases) {
        Store_Raw(L"Value", c.type, text, c.size);
        EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Value"), c.expected) << c.type << ", " << c.size;
    }
    for (const std::int32_t number : {0, 1, -1, 2147483647, -2147483647 - 1}) {
        Store_Raw(L"Value", REG_DWORD, &number, sizeof number);
        EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Value"), std::to_string(number));
    }
    const wchar_t expandable[] = L"%windir%";
    Store_Raw(L"Value", REG_EXPAND_SZ, expandable, sizeof expandable);
    EXPECT_EQ(platform::Read_User_Value(Scratch_Key(), "Value"), "%windir%");
}

TEST_F(Windows_Only, A_Key_That_Cannot_Be_Made_Is_An_Error) {
    EXPECT_THROW(platform::Write_User_Value(std::string(300, 'k'), "Value", "1"), platform::Registry_Error);
}

/// What a message box showed, and the button that shall be pressed in it. A box that does not come up within
/// the deadline leaves `found` false.
struct Box_Visit {
    std::wstring title;
    WPARAM button = IDOK;
    bool found = false;
    std::wstring text;
    int modal_count = 0;
    bool bystander_enabled = true;
    HWND bystander = nullptr;
};

DWORD WINAPI Visit(void *visit_address) {
    auto &visit = *static_cast<Box_Visit *>(visit_address);
    for (int tries = 0; tries < 500; ++tries, Sleep(20)) {
        const HWND box = FindWindowW(L"#32770", visit.title.c_str());
        if (box == nullptr || !IsWindowVisible(box))
            continue;
        wchar_t text[2000] = {};
        GetDlgItemTextW(box, 0xFFFF, text, 2000);
        visit.text = text;
        visit.found = true;
        visit.modal_count = win32::Open_Modal_Boxes;
        visit.bystander_enabled = IsWindowEnabled(visit.bystander) != FALSE;
        PostMessageW(box, WM_COMMAND, visit.button, 0);
        return 0;
    }
    return 0;
}

TEST_F(Windows_Only, Message_Boxes_Show_Their_Text_And_Answer) {
    using platform::Box_Answer;
    using platform::Box_Buttons;
    struct Case {
        std::string text;
        Box_Buttons buttons;
        WPARAM pressed;
        Box_Answer answer;
        std::wstring shown;
    };
    std::string lines;
    std::wstring thirty_lines;
    for (int i = 0; i < 100; ++i) {
        lines += "line\r\n";
        if (i < 30)
            thirty_lines += i == 0 ? L"line" : L"\r\nline";
    }
    const Case cases[] = {
        {"Today: 5/3/2002\r\nDenti\xC3\xA9", Box_Buttons::Ok, IDOK, Box_Answer::Ok,
         L"Today: 5/3/2002\r\nDenti\x00E9"},
        {"Sure?", Box_Buttons::Yes_No, IDYES, Box_Answer::Yes, L"Sure?"},
        {"Sure & safe?", Box_Buttons::Yes_No, IDNO, Box_Answer::No, L"Sure & safe?"},
        {std::string("zero\0inside", 11), Box_Buttons::Yes_No_Cancel, IDCANCEL, Box_Answer::Cancel,
         L"zero inside"},
        {std::string(5000, 'x'), Box_Buttons::Ok, IDOK, Box_Answer::Ok, std::wstring(1000, L'x') + L"..."},
        {lines, Box_Buttons::Ok, IDOK, Box_Answer::Ok, thirty_lines + L"..."},
    };
    // With a dialog in use the box belongs to it, and the program's other windows are locked all the same.
    const HWND bystander = CreateWindowExW(0, L"STATIC", L"bystander", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                           nullptr, nullptr, nullptr, nullptr);
    const HWND dialog = CreateWindowExW(0, L"STATIC", L"dialog", WS_POPUP | WS_CAPTION | WS_VISIBLE, 60, 0,
                                        90, 50, nullptr, nullptr, nullptr, nullptr);
    for (const bool with_dialog : {false, true}) {
        SetActiveWindow(with_dialog ? dialog : bystander);
        int number = 0;
        for (const Case &c : cases) {
            Box_Visit visit;
            visit.title = (with_dialog ? L"Owned " : L"Vellatro ") + std::to_wstring(++number);
            visit.button = c.pressed;
            visit.bystander = bystander;
            const win32::Unique_Kernel_Handle thread(CreateThread(nullptr, 0, Visit, &visit, 0, nullptr));
            const Box_Answer answer = platform::Message_Box(c.text, win32::From_Wide(visit.title),
                                                            platform::Box_Icon::Question, c.buttons);
            WaitForSingleObject(thread.Get(), INFINITE);
            EXPECT_TRUE(visit.found);
            EXPECT_EQ(answer, c.answer);
            EXPECT_TRUE(visit.text == c.shown) << win32::From_Wide(visit.text);
            EXPECT_EQ(visit.modal_count, 1);
            EXPECT_FALSE(visit.bystander_enabled);
            EXPECT_TRUE(IsWindowEnabled(bystander) && IsWindowEnabled(dialog));
        }
    }
    EXPECT_EQ(win32::Open_Modal_Boxes, 0);
    DestroyWindow(dialog);
    DestroyWindow(bystander);
}

} // namespace
#endif

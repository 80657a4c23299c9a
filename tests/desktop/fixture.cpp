// The fixture of the desktop tests and the main function.
#include "tests/desktop/driver.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

std::wstring Program_Path;
std::wstring Scratch; // the parent of the tests' folders
std::wstring Clock_Path;
long long Clock_Offset; // in seconds, as last written to the clock's file

const std::wstring Store_Key = L"Software\\Vellatro";

std::wstring Wide(std::string_view text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

long long Seconds(const FILETIME &time) {
    return (static_cast<long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime) / 10'000'000;
}

long long Seconds_Now() {
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return Seconds(time);
}

void Set_Value(const std::wstring &path, const std::string &name, const std::string &value) {
    const std::wstring text = Wide(value);
    EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), Wide(name).c_str(), REG_SZ, text.c_str(),
                              static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
}

void Add_Values(const std::wstring &path, std::string &lines) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return;
    lines += "[" + std::string(path.begin(), path.end()) + "]\n";
    char name[300];
    char value[1000];
    DWORD length = std::size(name);
    DWORD size = std::size(value);
    for (DWORD i = 0; RegEnumValueA(key, i, name, &length, nullptr, nullptr, reinterpret_cast<BYTE *>(value),
                                    &size) == ERROR_SUCCESS;
         ++i, length = std::size(name), size = std::size(value))
        lines += std::string(name) + "=" + value + "\n";
    for (DWORD i = 0; RegEnumKeyA(key, i, name, std::size(name)) == ERROR_SUCCESS; ++i)
        Add_Values(path + L"\\" + Wide(name), lines);
    RegCloseKey(key);
}

HWND Find_Standin() {
    const HWND shell = FindWindowA("Progman", nullptr);
    return shell ? shell : FindWindowA("Standin_Wallpaper", nullptr);
}

/// Returns how many of the two right corners, which never have icons, show the stand-in's wallpaper. The
/// picture reaches the X server in strips from the top, so one corner does not show that all is painted.
int Wallpaper_Corners() {
    const Picture now;
    int seen = 0;
    for (const int y : {0, now.height - 2}) // the stand-in may leave the lowest line free
        seen += now.At(now.width - 1, y) == Bare_Screen->At(now.width - 1, y);
    return seen;
}

/// Returns a picture of the screen, taken once all windows have painted and it no longer changes.
Picture Settled_Picture() {
    Picture last;
    EXPECT_TRUE(Wait_Until([&last] {
        Sleep(100);
        const bool painted = All_Painted();
        const Picture before = std::exchange(last, Picture());
        return painted && before.pixels == last.pixels;
    })) << "the screen changes on and on";
    return last;
}

std::string Test_Name() {
    const ::testing::TestInfo &test = *::testing::UnitTest::GetInstance()->current_test_info();
    return std::string(test.test_suite_name()) + "." + test.name();
}

} // namespace

void Desktop_Test::SetUp() {
    folder_ = Scratch + L"\\" + Wide(Test_Name()) + L"\\Vellatro";
    std::filesystem::remove_all(folder_); // of an earlier run
    std::filesystem::create_directories(folder_);
    ASSERT_TRUE(CopyFileW(Program_Path.c_str(), Path_Of(L"vellatro.exe").c_str(), FALSE));
    Clear_Store();
    // Wine reports earlier mouse positions late, which would turn a click on the title into a drag.
    Set_Setting("Settings", "Allow Dragging", "0");
    Set_Regional("sShortDate", "M/d/yyyy");
    Set_Regional("iFirstDayOfWeek", "6");
    Set_Clock(2027, 5, 12, 10, 30, 0);
    SetCursorPos(1, GetSystemMetrics(SM_CYSCREEN) - 2); // away from all windows
    Wait_Until([] { return GetForegroundWindow() == FindWindowA("Progman", nullptr); }, 1000);
    // Wine 10 paints its own desktop over all windows when the wallpaper changes, so make the stand-in paint
    // again.
    ASSERT_TRUE(Wait_Until([] {
        RedrawWindow(FindWindowA("Progman", nullptr), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
        return Picture().pixels == Bare_Screen->pixels;
    })) << "the desktop is not bare";
}

void Desktop_Test::TearDown() {
    if (!HasFailure())
        return;
    const std::string bytes = Data();
    std::printf("What there was to be seen:\n");
    for (const auto &program : programs_)
        program->Print();
    std::printf("  calendar.dat, %u bytes: %s\n  store: %s\n", static_cast<unsigned>(bytes.size()),
                ::testing::PrintToString(bytes.substr(0, 300)).c_str(), Store().c_str());
    Save_Picture("failed-" + Test_Name());
}

void Desktop_Test::Kill_Shell() {
    const HWND shell = Find_Standin();
    DWORD id = 0;
    GetWindowThreadProcessId(shell, &id);
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id);
    ASSERT_TRUE(process) << "no stand-in for the shell";
    TerminateProcess(process, 0);
    EXPECT_EQ(WaitForSingleObject(process, 5000), WAIT_OBJECT_0);
    CloseHandle(process);
    // The stand-in's last picture stays on the screen until Wine's own desktop has painted.
    EXPECT_TRUE(Wait_Until([shell] { return !IsWindow(shell) && Wallpaper_Corners() == 0; }));
}

void Desktop_Test::Exchange_Shell(const std::wstring &options) {
    wchar_t folder[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, folder, std::size(folder));
    *(std::wcsrchr(folder, L'\\') + 1) = L'\0'; // the stand-in is in the tests' folder
    if (Find_Standin())
        Kill_Shell();
    std::wstring line = L"\"" + std::wstring(folder) + L"shell_standin.exe\" " + options;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(
        CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
        << "error " << GetLastError();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    ASSERT_TRUE(Wait_Until([] { return Find_Standin() && Wallpaper_Corners() == 2; }))
        << "the stand-in does not appear";
    Bare_Screen = std::make_unique<const Picture>(Settled_Picture());
}

Program &Desktop_Test::Start() {
    programs_.push_back(std::make_unique<Program>(Path_Of(L"vellatro.exe"), folder_));
    return *programs_.back();
}

Program &Desktop_Test::Start_Calendar() {
    Program &program = Start();
    EXPECT_TRUE(Wait_Until([&] { return !program.Items().empty() || !program.Box().empty(); }, 15000));
    EXPECT_EQ(program.Box(), "");
    EXPECT_TRUE(Wait_Until([&] { return program.Windows(true) == 1; })) << "the splash window stays";
    const RECT title = program.Named(program.Title()).place;
    EXPECT_TRUE(program.Raise_Calendar({title.left, title.top})) << "the title is not seen";
    return program;
}

Program &Desktop_Test::Calendar_Inside() {
    DWORD id = 0;
    EXPECT_TRUE(Wait_Until(
        [&id] {
            const HWND shell = FindWindowA("Progman", nullptr);
            const HWND calendar =
                shell ? FindWindowExA(shell, nullptr, "Vellatro_Calendar", nullptr) : nullptr;
            GetWindowThreadProcessId(calendar, &id);
            return IsWindowVisible(calendar) != FALSE;
        },
        15000));
    programs_.push_back(std::make_unique<Program>(id));
    return *programs_.back();
}

void Desktop_Test::Write_File(const std::wstring &name, std::string_view bytes) const {
    std::ofstream file(std::filesystem::path(Path_Of(name)), std::ios::binary);
    ASSERT_TRUE(file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush());
}

std::string Desktop_Test::Read_File(const std::wstring &name) const {
    std::ifstream file(std::filesystem::path(Path_Of(name)), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Picture Desktop_Test::Save_Picture(const std::string &name) {
    Picture last = Settled_Picture();
    last.Save(Scratch + L"\\" + Wide(name) + L".bmp");
    return last;
}

void Desktop_Test::Set_Setting(const std::string &section, const std::string &key, const std::string &value) {
    Set_Value(Store_Key + L"\\" + Wide(section), key, value);
}

void Desktop_Test::Clear_Store() {
    RegDeleteTreeW(HKEY_CURRENT_USER, Store_Key.c_str());
}

std::string Desktop_Test::Store() {
    std::string lines;
    Add_Values(Store_Key, lines);
    return lines;
}

void Desktop_Test::Set_Regional(const std::string &name, const std::string &value) {
    const std::wstring path = L"Control Panel\\International";
    RegDeleteKeyValueW(HKEY_CURRENT_USER, path.c_str(),
                       L"iDate"); // it would override the order in sShortDate
    Set_Value(path, name, value);
}

void Desktop_Test::Set_Clock(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second) {
    const SYSTEMTIME wanted{year, month, 0, day, hour, minute, second, 0};
    FILETIME time;
    SystemTimeToFileTime(&wanted, &time);
    const double begin = Milliseconds_Now();
    Clock_Offset += Seconds(time) - Seconds_Now();
    // One write replaces the old offset, because the program may read at any moment.
    FILE *file = _wfopen(Clock_Path.c_str(), L"r+b");
    ASSERT_TRUE(file) << "the clock's file cannot be written";
    std::fprintf(file, "%-20lld\n", Clock_Offset);
    std::fclose(file);
    const auto since = static_cast<double>(Seconds_Now() - Seconds(time)); // a write may take seconds
    ASSERT_TRUE(since >= 0 && since <= 1 + (Milliseconds_Now() - begin) / 1000) << "the clock does not move";
}

int main(int count, char **words) {
    ::testing::InitGoogleTest(&count, words);
    if (count != 4) {
        std::puts(
            "desktop_tests PROGRAM FOLDER CLOCK: full paths; CLOCK is the file that the time shim reads");
        return 2;
    }
    Program_Path = Wide(words[1]);
    Scratch = Wide(words[2]);
    Clock_Path = Wide(words[3]);
    SetProcessDPIAware(); // so that places and pixels are in the program's units
    CoInitialize(nullptr);
    Bare_Screen = std::make_unique<const Picture>(Settled_Picture());
    return RUN_ALL_TESTS();
}

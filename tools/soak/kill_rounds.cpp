// Kills the program at random moments, once during the import of many events and once during a save, and
// checks what is left of the data file. Each repetition is a round. The first round times a whole import and
// kills only the save.
#include "tests/desktop/transfer.h"

#include <windows.h>

#include <random>

namespace {

constexpr int events = 300'000; // fewer would be imported before the file is written a second time
constexpr const char *import_title = "Import Events from CSV File";

std::mt19937 Dice(GetTickCount());
DWORD Whole_Import; // milliseconds

DWORD Random(DWORD from, DWORD to) {
    return std::uniform_int_distribution<DWORD>(from, to)(Dice);
}

class Kill : public Transfer {
protected:
    /// Creates a table of events on different days from 1601 on, and the records that they become. Leaves out
    /// the day of the yearly event and the current year.
    static void Make_Events(std::string &table, std::string &records) {
        table = "\"Subject\",\"Start Date\",\"Description\"\r\n";
        SYSTEMTIME day{1601, 1, 0, 1, 0, 0, 0, 0};
        FILETIME time;
        SystemTimeToFileTime(&day, &time);
        auto ticks = static_cast<long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
        for (int i = 0; i < events; ticks += 864'000'000'000) {
            time = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
            FileTimeToSystemTime(&time, &day);
            if ((day.wMonth == 5 && day.wDay == 12) || day.wYear == 2027)
                continue;
            const std::string month = std::to_string(day.wMonth) + "/";
            const std::string date = std::to_string(day.wDay) + "/";
            const std::string year = std::to_string(day.wYear);
            const std::string text = "Event " + std::to_string(i++) + ", as long as people write them\"\r\n";
            table.append("\"Vellatro\",\"").append(month).append(date).append(year).append("\",\"" + text);
            records.append("\"").append(date).append(month).append(year).append("=" + text);
        }
    }
    /// Returns the size of the data file in bytes, without opening it.
    std::size_t Data_Size() const {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        GetFileAttributesExW(Data_Path().c_str(), GetFileExInfoStandard, &data);
        return data.nFileSizeLow;
    }
    /// Returns whether a new data file exists that has not replaced the old one.
    bool Has_Unfinished_File() const {
        return GetFileAttributesA((folder_ + "calendar.dat.vellatro-new").c_str()) != INVALID_FILE_ATTRIBUTES;
    }
    /// Kills the program after `moment` milliseconds. If `in_write`, counts them from the beginning of a
    /// write, so that more kills hit one, but waits for a write at most `longest` milliseconds. Returns the
    /// milliseconds that have passed.
    DWORD Kill_After(DWORD moment, bool in_write, DWORD longest) {
        const DWORD begin = GetTickCount();
        while (in_write && !Has_Unfinished_File() && GetTickCount() - begin < longest)
            Sleep(1);
        Sleep(moment);
        const DWORD passed = GetTickCount() - begin;
        Stop_All();
        return passed;
    }
    void Start_Again() {
        program_ = &Start_Calendar();
        EXPECT_EQ(program_->Named("Wednesday 12th May 2027, today").value, "Before");
    }
    /// Writes a text on a day in the editor, and posts the click that saves it.
    void Begin_Save() const {
        program_->Double_Click("Saturday 8th May 2027");
        HWND editor = nullptr;
        ASSERT_TRUE(Wait_Until([&] { return (editor = program_->Window("Vellatro_Edit_Frm")) != nullptr; }));
        const HWND text = GetDlgItem(editor, 102);
        ASSERT_TRUE(Wait_Until([&] { return Has_Keyboard(text); }));
        Send_Text("Saved");
        ASSERT_TRUE(Becomes(std::string("Saved"), [&] { return Text_Of(text); }));
        PostMessageA(GetDlgItem(editor, 104), BM_CLICK, 0, 0);
    }
};

TEST_F(Kill, Round) {
    const std::string before = "\"12/5/9999=Before\"\r\n";
    const std::string saved = "\"8/5/2027=Saved\"\r\n";
    std::string table, all = before;
    Make_Events(table, all);
    Write_File(L"many.csv", table);
    Write_Data(before);
    Open();
    Choose_File('L', import_title, "many.csv");
    const DWORD begin = GetTickCount();
    DWORD moment = 0;
    if (Whole_Import == 0) {
        Answer("[Vellatro] Successfully imported " + std::to_string(events) + " events");
        Whole_Import = GetTickCount() - begin;
        EXPECT_EQ(Data().size(), all.size());
        Stop_All();
    } else {
        const bool in_write = Random(0, 1) != 0;
        const DWORD longest = !in_write ? Whole_Import : Random(0, 1) ? 10 : 200;
        moment = Kill_After(Random(0, longest), in_write, Whole_Import);
    }
    const std::string imported = Data();
    const bool whole = imported.size() >= before.size() && imported.ends_with("\r\n");
    EXPECT_TRUE(whole && all.starts_with(imported)) << "the file is not a state of the import";
    const bool left = Has_Unfinished_File();

    Start_Again();
    Begin_Save();
    const bool in_write = Random(0, 1) != 0;
    const DWORD wait = Kill_After(Random(0, in_write ? 10 : 150), in_write, 2000);
    const std::string after = Data();
    EXPECT_TRUE(after == imported || after == imported + saved) << "the file is not a state of the save";
    const bool left_by_save = Has_Unfinished_File();

    Start_Again();
    if (after == imported)
        Begin_Save();
    // Read the file only when it has its new size: reading 16 MB takes so long that the program could not
    // replace the file meanwhile. Try again if the program still holds the file after the rename.
    EXPECT_TRUE(Wait_Until([&] {
        return Data_Size() == imported.size() + saved.size() && Data() == imported + saved;
    })) << "the second save is missing";
    EXPECT_TRUE(!Has_Unfinished_File() || after != imported) << "a save leaves an unfinished file";
    std::printf("import killed after %lu of %lu ms, %u of %u bytes%s; save killed after %lu ms, %s%s\n",
                moment, Whole_Import, static_cast<unsigned>(imported.size()),
                static_cast<unsigned>(all.size()), left ? " and an unfinished file" : "", wait,
                after == imported ? "not done" : "done", left_by_save ? " and an unfinished file" : "");
    std::fflush(stdout);
    DeleteFileW(Path_Of(L"calendar.dat.vellatro-new").c_str());
}

} // namespace

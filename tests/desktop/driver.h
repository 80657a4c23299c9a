// What the desktop tests do to the running program, and what they see of it, from another process: windows,
// message boxes, what assistive technology is told, pixels, the store, files, the clock. It judges nothing.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the calendar tells assistive technology of one of its parts.
struct Item {
    long role = 0;
    long state = 0;
    std::string name;
    std::string value;
    std::string action;
    RECT place{}; ///< on the screen, pixels
};

/// The pixels of the screen at one moment, without the mouse.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<DWORD> pixels; ///< 0xRRGGBB, from the upper left corner

    Picture();
    DWORD At(LONG x, LONG y) const { return pixels.at(static_cast<std::size_t>(y * width + x)); }
    void Save(const std::wstring &path) const; ///< as a BMP file
};

/// The desktop before the first start.
inline std::unique_ptr<const Picture> Bare_Screen;

// What a hand does, wherever the mouse and the keyboard are.
POINT Middle(const RECT &place);
void Send_Mouse(POINT point, DWORD flags); ///< MOUSEEVENTF_LEFTDOWN and its like; 0: moves only
/// The same for several steps at one moment, however busy the machine is.
void Send_Mouse(const std::vector<std::pair<POINT, DWORD>> &steps);
void Send_Key(WORD key, bool with_alt = false); ///< down and up
void Send_Text(std::string_view ascii);
/// Clicks into the middle of a dialog's control, once nothing covers it, and waits for the effect.
void Click_On(HWND window, const std::function<bool()> &done);
bool Has_Keyboard(HWND window);
/// What a control of a dialog tells assistive technology of itself; with `act`, its default action is asked
/// for.
Item Item_Of(HWND control, bool act = false);
std::string Text_Of(HWND window); ///< also of a control; nothing from a window that does not answer

/// The view of icons, wherever the shell has it; null: none.
HWND Shell_View();

double Milliseconds_Now(); ///< of a clock that nothing sets

std::ptrdiff_t Gdi_Objects(HANDLE process); ///< -1: not to be had

/// Polls until `holds` gives true; false after the deadline.
bool Wait_Until(const std::function<bool()> &holds, DWORD milliseconds = 5000);

/// Polls until `read` gives `expected`; the failure tells what it gave last.
template <typename Value, typename Read>
::testing::AssertionResult Becomes(const Value &expected, const Read &read, DWORD milliseconds = 5000) {
    decltype(read()) seen{};
    if (Wait_Until([&] { return (seen = read()) == expected; }, milliseconds))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "it is still " << ::testing::PrintToString(seen) << " and not "
                                         << ::testing::PrintToString(expected);
}

/// A running copy of the program, which ends with this object.
class Program {
public:
    Program(const std::wstring &executable, const std::wstring &folder);
    explicit Program(DWORD id); ///< one that runs already
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// The exit code, if the program ends in time.
    std::optional<DWORD> Exit_Code(DWORD milliseconds = 5000) const;
    void Print() const; ///< all there is to be seen of it

    HWND Window(std::string_view class_name) const; ///< null until it is visible
    HWND Calendar() const { return Window("Vellatro_Calendar"); }
    /// What the calendar presents, of a role or all; nothing when there is no calendar or it does not answer.
    std::vector<Item> Items(long role = 0, std::size_t most = SIZE_MAX) const;
    /// The item of that name, or an empty one.
    Item Named(std::string_view name) const;
    std::string Title() const;
    /// Asks for an item's default action, as assistive technology does.
    void Do_Default(std::string_view name) const;

    /// The open message box as "[Vellatro] text", with "stop " or "warning " before it if that is its icon;
    /// empty: none.
    std::string Box() const;
    HWND Box_Window() const;
    void Answer(WORD button = IDOK) const; ///< presses it and waits until the box is gone

    /// Brings the calendar over the stand-in; false when nothing appears at the point.
    bool Uncover(POINT point) const;
    /// In the middle, with the left button, MOUSEEVENTF_LEFTDOWN, or another.
    void Click(const RECT &place, DWORD button = MOUSEEVENTF_LEFTDOWN, int times = 1) const;
    void Double_Click(std::string_view item) const { Click(Named(item).place, MOUSEEVENTF_LEFTDOWN, 2); }
    /// Opens the menu of that place by a message, while the mouse is out of the menu's way: a release over it
    /// would choose an item. False: no menu comes.
    bool Open_Menu(POINT place) const;
    void Choose(const std::vector<WORD> &keys) const;  ///< presses them in the menu, which then goes away
    HWND Open_Settings() const;                        ///< by the menu of a day
    void Press(WORD key, bool with_alt = false) const; ///< makes the calendar the active window first

    /// What the host tells of the process in the file of that name; empty when it does not.
    std::string Host_File(const wchar_t *name) const;
    long Processor_Ticks() const; ///< hundredths of a second since its start; -1: not to be had
    std::ptrdiff_t Gdi_Objects() const { return ::Gdi_Objects(process_); }
    std::ptrdiff_t Windows(bool only_visible) const;
    std::ptrdiff_t Handles() const; ///< of the kernel; -1: not to be had
    /// GDI objects, windows and handles.
    using Held = std::array<std::ptrdiff_t, 3>;
    Held Holds() const { return {Gdi_Objects(), Windows(false), Handles()}; }
    /// It holds no more than before, or will soon. The system's own handles come and go by a few.
    ::testing::AssertionResult Holds_No_More_Than(const Held &before) const;

private:
    HANDLE process_ = nullptr;
    DWORD id_ = 0;
};

/// A fresh folder with a copy of the program, a store with dragging off alone, the regional settings of the
/// United States, and the clock at 10:30 on Wednesday, 12 May 2027: a month that reaches into the last of the
/// boxes. What the test started ends with it; when it fails, it tells what there was to be seen.
class Desktop_Test : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Puts another stand-in for the shell in the place of the one that is there, and takes its desktop for
    /// the bare one. The options are its command line.
    static void Exchange_Shell(const std::wstring &options);
    static void Kill_Shell();

    Program &Start();
    Program &Start_Calendar(); ///< and waits for the calendar, which no box may precede

    /// Waits for a calendar inside the shell's window, and gives the program that it is of.
    Program &Calendar_Inside();

    void Stop_All() { programs_.clear(); }

    /// A file or folder beside the program.
    std::wstring Path_Of(const std::wstring &name) const { return folder_ + L"\\" + name; }
    void Write_File(const std::wstring &name, std::string_view bytes) const;
    std::string Read_File(const std::wstring &name) const; ///< empty where there is none
    std::wstring Data_Path() const { return Path_Of(L"calendar.dat"); }
    void Write_Data(std::string_view bytes) const { Write_File(L"calendar.dat", bytes); }
    std::string Data() const { return Read_File(L"calendar.dat"); }

    /// Takes a picture for people to look at, once the screen has come to rest.
    static void Save_Picture(const std::string &name);
    static void Set_Setting(const std::string &section, const std::string &key, const std::string &value);
    static void Clear_Store();
    static std::string Store(); ///< all the program's keys and values, a line each
    static void Set_Regional(const std::string &name, const std::string &value);
    /// Moves the clock of the test and of the program.
    static void Set_Clock(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second);

private:
    std::wstring folder_;
    std::vector<std::unique_ptr<Program>> programs_;
};

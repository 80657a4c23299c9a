// The driver of the desktop tests. It operates the running program from another process, and reads its
// windows, message boxes, accessible objects, pixels, registry values and files.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A part of the calendar, or a control, as assistive technology sees it.
struct Item {
    long role = 0;
    long state = 0;
    std::string name;
    std::string value;
    std::string action;
    RECT place{}; ///< in pixels of the screen
};

/// A screenshot without the mouse pointer.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<DWORD> pixels; ///< 0xRRGGBB, row by row from the top left

    Picture();
    DWORD At(LONG x, LONG y) const { return pixels.at(static_cast<std::size_t>(y * width + x)); }
    /// Returns the colours within the place, or only those on its outermost pixels.
    std::set<DWORD> Colours(const RECT &place, bool edge_only = false) const;
    void Save(const std::wstring &path) const; ///< writes a BMP file
};

/// The desktop before the program's first start.
inline std::unique_ptr<const Picture> Bare_Screen;

// Mouse and keyboard input.
POINT Middle(const RECT &place);
void Send_Mouse(POINT point, DWORD flags); ///< MOUSEEVENTF_LEFTDOWN and the like; 0 only moves
/// Sends several steps with one time, so that a busy machine cannot separate them.
void Send_Mouse(const std::vector<std::pair<POINT, DWORD>> &steps);
void Send_Key(WORD key, bool with_alt = false); ///< presses and releases it
void Send_Text(std::string_view ascii);
/// Clicks the middle of a dialog's control once nothing covers it, and waits until `done` returns true.
void Click_On(HWND window, const std::function<bool()> &done);
bool Has_Keyboard(HWND window);
/// Returns a dialog's control as assistive technology sees it. With `act`, first performs its default action.
Item Item_Of(HWND control, bool act = false);
std::string Text_Of(HWND window); ///< also of a control; empty if the window does not answer

/// Returns the shell's icon view, or null.
HWND Shell_View();

bool All_Painted(); ///< returns whether no window of any program awaits painting

double Milliseconds_Now(); ///< of a clock that cannot be set

std::ptrdiff_t Gdi_Objects(HANDLE process); ///< -1 if unknown

/// Polls until `holds` returns true; returns false after the deadline.
bool Wait_Until(const std::function<bool()> &holds, DWORD milliseconds = 5000);

/// Polls until `read` returns `expected`; the failure shows its last value.
template <typename Value, typename Read>
::testing::AssertionResult Becomes(const Value &expected, const Read &read, DWORD milliseconds = 5000) {
    decltype(read()) seen{};
    if (Wait_Until([&] { return (seen = read()) == expected; }, milliseconds))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "it is still " << ::testing::PrintToString(seen) << " and not "
                                         << ::testing::PrintToString(expected);
}

/// A running copy of the program. The destructor ends the process.
class Program {
public:
    Program(const std::wstring &executable, const std::wstring &folder);
    explicit Program(DWORD id); ///< takes over a running process
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Returns the exit code if the program ends in time.
    std::optional<DWORD> Exit_Code(DWORD milliseconds = 5000) const;
    void Print() const; ///< prints its windows and items

    HWND Window(std::string_view class_name) const; ///< returns the visible window of the class, or null
    HWND Calendar() const { return Window("Vellatro_Calendar"); }
    /// Returns the calendar's items of a role, or all with 0; none if the calendar is missing or does not
    /// answer.
    std::vector<Item> Items(long role = 0, std::size_t most = SIZE_MAX) const;
    /// Returns the item with that name, or an empty one. With `act`, first performs its default action.
    Item Named(std::string_view name, bool act = false) const;
    std::string Title() const;
    /// Performs an item's default action as assistive technology does.
    void Do_Default(std::string_view name) const { Named(name, true); }

    /// Returns the open message box as "[Vellatro] text", with "stop " or "warning " in front for those
    /// icons; empty if there is no box.
    std::string Box() const;
    HWND Box_Window() const;
    void Answer(WORD button = IDOK) const; ///< presses the button and waits until the box is gone

    /// Brings the calendar above the stand-in. Returns false if the calendar does not appear at the point.
    [[nodiscard]] bool Raise_Calendar(POINT point) const;
    /// Clicks the middle of the place. `button` is MOUSEEVENTF_LEFTDOWN or the like.
    void Click(const RECT &place, DWORD button = MOUSEEVENTF_LEFTDOWN, int times = 1) const;
    void Double_Click(std::string_view item) const { Click(Named(item).place, MOUSEEVENTF_LEFTDOWN, 2); }
    /// Opens the menu of that place by a message, with the mouse in a corner: releasing a button over the
    /// menu would choose an item. Returns false if no menu appears.
    bool Open_Menu(POINT place) const;
    void Choose(const std::vector<WORD> &keys) const;  ///< presses the keys in the menu, which must close
    HWND Open_Settings() const;                        ///< through a day's menu
    void Press(WORD key, bool with_alt = false) const; ///< activates the calendar first

    long Processor_Ticks() const; ///< used so far, in hundredths of a second; -1 if unknown
    std::ptrdiff_t Gdi_Objects() const { return ::Gdi_Objects(process_); }
    std::ptrdiff_t Windows(bool only_visible) const;
    std::ptrdiff_t Handles() const; ///< to kernel objects; -1 if unknown
    /// The numbers of GDI objects, windows and handles.
    using Held = std::array<std::ptrdiff_t, 3>;
    Held Holds() const { return {Gdi_Objects(), Windows(false), Handles()}; }
    /// Waits until the program holds no more than before. Up to 8 more handles are allowed, since the
    /// system's own vary.
    ::testing::AssertionResult Holds_No_More_Than(const Held &before) const;

private:
    HANDLE process_ = nullptr;
    DWORD id_ = 0;
};

/// The fixture of the desktop tests: a folder with a copy of the program, settings that only turn dragging
/// off, the regional settings of the United States, and the clock at 10:30 on Wednesday, 12 May 2027, a month
/// that reaches the last row of boxes. Ends the programs that the test started, and prints what they showed
/// if the test failed.
class Desktop_Test : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Replaces the stand-in for the shell with one that has these command line options, and Bare_Screen with
    /// its desktop.
    static void Exchange_Shell(const std::wstring &options);
    static void Kill_Shell();

    Program &Start();
    Program &Start_Calendar(); ///< also waits for the calendar; fails if a box appears first

    /// Waits for a calendar inside the shell's window, and returns its program.
    Program &Calendar_Inside();

    void Stop_All() { programs_.clear(); }

    /// Returns the path of a file or folder beside the program.
    std::wstring Path_Of(const std::wstring &name) const { return folder_ + L"\\" + name; }
    void Write_File(const std::wstring &name, std::string_view bytes) const;
    std::string Read_File(const std::wstring &name) const; ///< empty if it is missing
    std::wstring Data_Path() const { return Path_Of(L"calendar.dat"); }
    void Write_Data(std::string_view bytes) const { Write_File(L"calendar.dat", bytes); }
    std::string Data() const { return Read_File(L"calendar.dat"); }

    /// Saves and returns a screenshot for people to look at, once the screen no longer changes.
    static Picture Save_Picture(const std::string &name);
    static void Set_Setting(const std::string &section, const std::string &key, const std::string &value);
    static void Clear_Store();
    static std::string Store(); ///< returns all the program's registry keys and values, one per line
    static void Set_Regional(const std::string &name, const std::string &value);
    /// Sets the clock of the test and of the program.
    static void Set_Clock(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second);

private:
    std::wstring folder_;
    std::vector<std::unique_ptr<Program>> programs_;
};

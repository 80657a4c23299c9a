// In mode "starts", starts programs in turn and times each start until the first window is painted. In mode
// "hold", starts one program, counts its objects and keeps it running while a script reads its memory and
// processor time from the host.
//
//   program_figures starts ROUNDS PROGRAM CLASS [PROGRAM CLASS...]
//   program_figures hold SECONDS PROGRAM CLASS
//
// PROGRAM is a Windows path, CLASS the class of its first window. The exit code is 1 if a window does not
// appear in time.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr DWORD patience = 20'000; // milliseconds
constexpr DWORD settling = 6'000;  // milliseconds, until the splash window has closed

struct Subject {
    std::wstring path;
    std::string window_class;
    std::vector<double> times; // milliseconds

    Subject(const wchar_t *program, const wchar_t *name) : path(program) {
        while (*name)
            window_class += static_cast<char>(*name++);
    }
    std::wstring Folder() const { return path.substr(0, path.find_last_of(L'\\')); }
};

/// Returns the visible window of a class, or null. Looks on top level and then inside "Progman", where the
/// calendar may be. Makes few calls, because each costs the Wine server time.
HWND Visible_Window(const std::string &window_class) {
    HWND window = FindWindowA(window_class.c_str(), nullptr);
    if (!window)
        window = FindWindowExA(FindWindowA("Progman", nullptr), nullptr, window_class.c_str(), nullptr);
    return window && IsWindowVisible(window) ? window : nullptr;
}

bool Owes_Painting(HWND window) {
    const HWND child = GetWindow(window, GW_CHILD);
    return GetUpdateRect(window, nullptr, FALSE) || (child && GetUpdateRect(child, nullptr, FALSE));
}

/// Returns whether the window is completely painted and the program handles messages again.
bool Is_Painted(const std::string &window_class) {
    const HWND window = Visible_Window(window_class);
    DWORD_PTR answer = 0;
    return window && !Owes_Painting(window) &&
           SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, patience, &answer) &&
           !Owes_Painting(window);
}

/// Returns false if the window is not painted in time.
bool Wait_For_Picture(const std::string &window_class) {
    const double begin = Milliseconds_Now();
    while (!Is_Painted(window_class)) {
        if (Milliseconds_Now() - begin > patience)
            return false;
        Sleep(1);
    }
    return true;
}

bool Measure_Start(Subject &subject) {
    if (!Wait_Until([&] { return !Visible_Window(subject.window_class); }))
        return false;
    Sleep(500); // lets the system clean up after the previous program
    const double begin = Milliseconds_Now();
    const Program program(subject.path, subject.Folder());
    if (!Wait_For_Picture(subject.window_class))
        return false;
    subject.times.push_back(Milliseconds_Now() - begin);
    Sleep(500); // keeps the work after the first picture out of the next start
    return true;
}

/// Returns the given quartile of the values; quarter 0 is the minimum.
double Quartile(std::vector<double> values, std::size_t quarter) {
    std::sort(values.begin(), values.end());
    return values[(values.size() - 1) * quarter / 4];
}

/// Prints the times of each program, also relative to the first program, which ran in the same round under
/// the same load.
void Print_Starts(const std::vector<Subject> &subjects) {
    for (const Subject &subject : subjects) {
        std::vector<double> ratios = subject.times;
        for (std::size_t i = 0; i < ratios.size(); ++i)
            ratios[i] /= subjects.front().times[i];
        std::printf("start %s: median %.0f ms, quartiles %.0f to %.0f, least %.0f; beside %s: median %.2f, "
                    "quartiles %.2f to %.2f\n",
                    subject.window_class.c_str(), Quartile(subject.times, 2), Quartile(subject.times, 1),
                    Quartile(subject.times, 3), Quartile(subject.times, 0),
                    subjects.front().window_class.c_str(), Quartile(ratios, 2), Quartile(ratios, 1),
                    Quartile(ratios, 3));
    }
}

bool Measure_Starts(int rounds, std::vector<Subject> subjects) {
    // The first round warms up the caches and does not count.
    for (int round = -1; round < rounds; ++round)
        for (Subject &subject : subjects) {
            if (!Measure_Start(subject)) {
                std::printf("%ls: no window of class %s\n", subject.path.c_str(),
                            subject.window_class.c_str());
                return false;
            }
            if (round < 0)
                subject.times.clear();
        }
    Print_Starts(subjects);
    return true;
}

bool Hold(DWORD seconds, const Subject &subject) {
    const Program program(subject.path, subject.Folder());
    if (!Wait_For_Picture(subject.window_class))
        return false;
    Sleep(settling);
    std::printf("holds %s: GDI objects %d, windows %d\n", subject.window_class.c_str(),
                static_cast<int>(program.Gdi_Objects()), static_cast<int>(program.Windows(false)));
    std::fflush(stdout);
    Sleep(1000 * seconds);
    return true;
}

} // namespace

int wmain(int count, wchar_t **arguments) {
    const std::wstring mode = count > 2 ? arguments[1] : L"";
    std::vector<Subject> subjects;
    for (int i = 3; i + 1 < count; i += 2)
        subjects.emplace_back(arguments[i], arguments[i + 1]);
    const int number = count > 2 ? static_cast<int>(std::wcstol(arguments[2], nullptr, 10)) : 0;
    if (number > 0 && mode == L"starts" && !subjects.empty())
        return Measure_Starts(number, std::move(subjects)) ? 0 : 1;
    if (number > 0 && mode == L"hold" && subjects.size() == 1)
        return Hold(static_cast<DWORD>(number), subjects.front()) ? 0 : 1;
    std::printf("Usage: program_figures starts ROUNDS | hold SECONDS, then PROGRAM CLASS...\n");
    return 2;
}

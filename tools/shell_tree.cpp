// Prints the windows of the desktop from front to back: the trees under "Progman" and under each top-level
// "WorkerW", with everything that decides whether a window is visible. Users add the output to a report of an
// invisible calendar:
//
//     shell_tree >tree.txt
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <string>
#include <tlhelp32.h>

namespace {

std::string Utf8(const wchar_t *text) {
    std::string bytes(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    return bytes.c_str();
}

/// Returns the file name of a running program, or an empty text if it has ended.
std::string Program_Of(DWORD process) {
    const HANDLE list = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    std::string name;
    for (BOOL found = Process32FirstW(list, &entry); found; found = Process32NextW(list, &entry))
        if (entry.th32ProcessID == process)
            name = Utf8(entry.szExeFile);
    CloseHandle(list);
    return name;
}

void Print_Tree(HWND window, int depth) {
    wchar_t class_name[257] = {};
    GetClassNameW(window, class_name, 256);
    // The system stores this text, so a hung program cannot block the call.
    wchar_t title[81] = {};
    InternalGetWindowText(window, title, 80);
    RECT place{};
    GetWindowRect(window, &place);
    DWORD process = 0;
    const DWORD thread = GetWindowThreadProcessId(window, &process);
    std::printf(
        "%*s%08lX \"%s\" \"%s\" style %08lX ex-style %08lX (%ld,%ld)-(%ld,%ld) %s%s%s, %s %lu, thread %lu\n",
        depth * 2, "", static_cast<unsigned long>(reinterpret_cast<ULONG_PTR>(window)),
        Utf8(class_name).c_str(), Utf8(title).c_str(),
        static_cast<unsigned long>(GetWindowLongW(window, GWL_STYLE)),
        static_cast<unsigned long>(GetWindowLongW(window, GWL_EXSTYLE)), place.left, place.top, place.right,
        place.bottom, IsWindowVisible(window) ? "visible" : "hidden", IsIconic(window) ? ", minimized" : "",
        IsHungAppWindow(window) ? ", hung" : "", Program_Of(process).c_str(), process, thread);
    // Windows that change places during the walk could form a cycle.
    static int left = 5000;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr && left > 0 && depth < 50;
         child = GetWindow(child, GW_HWNDNEXT), --left)
        Print_Tree(child, depth + 1);
}

} // namespace

int main() {
    SetProcessDPIAware();
    std::printf("screens (%d,%d) %dx%d, primary screen %dx%d, shell window %08lX\n",
                GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN),
                GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN),
                GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                static_cast<unsigned long>(reinterpret_cast<ULONG_PTR>(GetShellWindow())));
    for (HWND top = GetTopWindow(nullptr); top != nullptr; top = GetWindow(top, GW_HWNDNEXT)) {
        wchar_t name[16] = {};
        GetClassNameW(top, name, 16);
        if (std::wcscmp(name, L"Progman") == 0 || std::wcscmp(name, L"WorkerW") == 0)
            Print_Tree(top, 0);
    }
}

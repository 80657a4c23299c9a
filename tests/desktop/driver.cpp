// The driver's observation of the program: by windows, accessible objects (MSAA) and pixels, which work
// across processes, and by the host's /proc. driver_input.cpp has mouse and keyboard.
#include "tests/desktop/driver.h"

#include <windows.h>

#include <oleacc.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <winternl.h>

namespace {

BOOL CALLBACK Add_Window(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND> *>(list)->push_back(window);
    return TRUE;
}

/// Returns all windows below `parent` at any depth, parents first, or all windows without a parent. One call
/// lists them all, because a walk by GetWindow ends early if its current window is destroyed.
std::vector<HWND> Windows_Below(HWND parent) {
    std::vector<HWND> windows;
    EnumChildWindows(parent ? parent : GetDesktopWindow(), Add_Window, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::string Utf8(std::wstring_view wide) {
    std::string text(3 * wide.size(), '\0');
    text.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), text.data(),
                            static_cast<int>(text.size()), nullptr, nullptr)));
    return text;
}

std::string Class_Of(HWND window) {
    char name[100] = "";
    GetClassNameA(window, name, std::size(name));
    return name;
}

DWORD Process_Of(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    return id;
}

struct Release {
    void operator()(IUnknown *object) const { object->Release(); }
};

using Accessible = std::unique_ptr<IAccessible, Release>;

/// Returns the window's accessible object, or null if the window does not answer.
Accessible Accessible_Of(HWND window) {
    DWORD_PTR answer = 0;
    void *object = nullptr;
    if (!window || !SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 15000, &answer) ||
        FAILED(
            AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object)))
        return nullptr;
    Accessible accessible(static_cast<IAccessible *>(object));
    // Never release the first object of a window: if the last object with an interface goes right after a
    // call, Wine at times waits in the program forever for the end of that call, because the thread in
    // RpcServerUnregisterIf misses the signal of the thread that made the call.
    static std::set<HWND> kept;
    if (kept.insert(window).second)
        for (const IID *name : {&IID_IAccessible, &IID_IEnumVARIANT})
            accessible->QueryInterface(*name, &object);
    return accessible;
}

std::vector<VARIANT> Children_Of(IAccessible &accessible) {
    long count = 0;
    accessible.get_accChildCount(&count);
    std::vector<VARIANT> children(static_cast<std::size_t>(count));
    if (FAILED(AccessibleChildren(&accessible, 0, count, children.data(), &count)))
        count = 0;
    children.resize(static_cast<std::size_t>(count));
    return children;
}

using Text_Getter = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR *);

std::string Text_Of(IAccessible &accessible, Text_Getter getter, VARIANT child) {
    BSTR text = nullptr;
    if (FAILED((accessible.*getter)(child, &text)) || !text)
        return {};
    std::string taken = Utf8({text, SysStringLen(text)});
    SysFreeString(text);
    return taken;
}

Item Item_Of(IAccessible &accessible, VARIANT child) {
    Item item;
    VARIANT number{};
    accessible.get_accRole(child, &number);
    item.role = number.lVal;
    accessible.get_accState(child, &number);
    item.state = number.lVal;
    item.name = Text_Of(accessible, &IAccessible::get_accName, child);
    item.value = Text_Of(accessible, &IAccessible::get_accValue, child);
    item.action = Text_Of(accessible, &IAccessible::get_accDefaultAction, child);
    RECT &place = item.place;
    accessible.accLocation(&place.left, &place.top, &place.right, &place.bottom, child);
    place.right += place.left;
    place.bottom += place.top;
    return item;
}

/// Names the icon by its colour: the stop icon is red and the exclamation mark yellow. Other icons have no
/// name.
std::string Icon_Of(HWND icon) {
    RECT place{};
    GetWindowRect(icon, &place);
    const Picture screen;
    long red = 0; // red minus blue, summed over the icon; `green` likewise
    long green = 0;
    for (LONG y = place.top; y < place.bottom; ++y)
        for (LONG x = place.left; x < place.right; ++x) {
            const auto blue = static_cast<long>(screen.At(x, y) & 0xFF);
            red += static_cast<long>(screen.At(x, y) >> 16) - blue;
            green += static_cast<long>(screen.At(x, y) >> 8 & 0xFF) - blue;
        }
    return red <= 0 ? "" : green > red / 2 ? "warning " : "stop ";
}

} // namespace

std::string Text_Of(HWND window) {
    wchar_t text[2000] = L"";
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                        2000, &length);
    return Utf8({text, length});
}

Item Item_Of(HWND control, bool act) {
    VARIANT self{};
    self.vt = VT_I4;
    const Accessible accessible = Accessible_Of(control);
    if (accessible && act)
        accessible->accDoDefaultAction(self);
    return accessible ? Item_Of(*accessible, self) : Item{};
}

HWND Shell_View() {
    for (const HWND window : Windows_Below(nullptr))
        if (Class_Of(window) == "SHELLDLL_DefView")
            return window;
    return nullptr;
}

bool All_Painted() {
    return std::ranges::none_of(Windows_Below(nullptr), [](HWND window) {
        // Its thread answers only after the painting that it has begun.
        SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 5000, nullptr);
        return IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE);
    });
}

double Milliseconds_Now() {
    LARGE_INTEGER count, frequency;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

std::ptrdiff_t Gdi_Objects(HANDLE process) {
    // Wine does not count GDI objects, but the memory of every process has its table of them.
    struct Entry {
        ULONG64 object;
        ULONG owner;
        USHORT unique;
        UCHAR type; // 0: free
        UCHAR flags;
        ULONG64 user;
    };
    constexpr std::size_t table_offset = sizeof(void *) == 4 ? 0x94 : 0xF8;
    PROCESS_BASIC_INFORMATION information{};
    NtQueryInformationProcess(process, ProcessBasicInformation, &information, sizeof information, nullptr);
    const char *place = reinterpret_cast<const char *>(information.PebBaseAddress) + table_offset;
    const void *table = nullptr;
    std::vector<Entry> entries(0x4000);
    if (!ReadProcessMemory(process, place, &table, sizeof table, nullptr) ||
        !ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr))
        return -1;
    return std::count_if(entries.begin(), entries.end(), [](const Entry &entry) { return entry.type != 0; });
}

bool Wait_Until(const std::function<bool()> &holds, DWORD milliseconds) {
    const DWORD begin = GetTickCount();
    for (bool last = false; !holds(); Sleep(20)) {
        if (last)
            return false;
        last = GetTickCount() - begin >= milliseconds; // call it once more after the deadline
    }
    return true;
}

Picture::Picture() : width(GetSystemMetrics(SM_CXSCREEN)), height(GetSystemMetrics(SM_CYSCREEN)) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void *bits = nullptr;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, 0, 0, SRCCOPY);
    GdiFlush();
    pixels.assign(static_cast<DWORD *>(bits), static_cast<DWORD *>(bits) + width * height);
    for (DWORD &pixel : pixels)
        pixel &= 0xFFFFFF;
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

std::set<DWORD> Picture::Colours(const RECT &place, bool edge_only) const {
    std::set<DWORD> colours;
    for (LONG y = place.top; y < place.bottom; ++y)
        for (LONG x = place.left; x < place.right; ++x)
            if (!edge_only || y == place.top || y == place.bottom - 1 || x == place.left ||
                x == place.right - 1)
                colours.insert(At(x, y));
    return colours;
}

void Picture::Save(const std::wstring &path) const {
    const DWORD size = static_cast<DWORD>(pixels.size() * sizeof(DWORD));
    const BITMAPINFOHEADER info{sizeof info, width, -height, 1, 32, BI_RGB, size, 0, 0, 0, 0};
    constexpr DWORD headers = 14 + sizeof info;
    const BITMAPFILEHEADER header{0x4D42, headers + size, 0, 0, headers};
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    const auto write = [&file](const void *bytes, DWORD count) {
        file.write(static_cast<const char *>(bytes), static_cast<std::streamsize>(count));
    };
    write(&header, sizeof header), write(&info, sizeof info), write(pixels.data(), size);
}

Program::Program(const std::wstring &executable, const std::wstring &folder) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(CreateProcessW(executable.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                               folder.c_str(), &start, &process))
        << "error " << GetLastError();
    CloseHandle(process.hThread);
    process_ = process.hProcess;
    id_ = process.dwProcessId;
}

Program::Program(DWORD id) : process_(OpenProcess(PROCESS_ALL_ACCESS, FALSE, id)), id_(id) {
}

Program::~Program() {
    TerminateProcess(process_, 99);
    WaitForSingleObject(process_, 5000);
    CloseHandle(process_);
}

std::optional<DWORD> Program::Exit_Code(DWORD milliseconds) const {
    DWORD code = 0;
    if (WaitForSingleObject(process_, milliseconds) != WAIT_OBJECT_0 || !GetExitCodeProcess(process_, &code))
        return std::nullopt;
    return code;
}

void Program::Print() const {
    std::printf("  Process %lx %s. Message box: %s\n", id_, Exit_Code(0) ? "has ended" : "runs",
                Box().c_str());
    for (const HWND window : Windows_Below(nullptr)) {
        RECT at;
        GetWindowRect(window, &at);
        if (IsWindowVisible(window))
            std::printf("  window %p of process %lx in %p: %s \"%s\" %ld,%ld to %ld,%ld\n",
                        static_cast<void *>(window), Process_Of(window),
                        static_cast<void *>(GetAncestor(window, GA_PARENT)), Class_Of(window).c_str(),
                        Text_Of(window).c_str(), at.left, at.top, at.right, at.bottom);
    }
    for (const Item &item : Items())
        std::printf("  item of role %ld, state 0x%lx: \"%s\" \"%s\" %ld,%ld to %ld,%ld\n", item.role,
                    static_cast<unsigned long>(item.state), item.name.c_str(), item.value.c_str(),
                    item.place.left, item.place.top, item.place.right, item.place.bottom);
}

HWND Program::Window(std::string_view class_name) const {
    for (const HWND window : Windows_Below(nullptr))
        if (Process_Of(window) == id_ && Class_Of(window) == class_name && IsWindowVisible(window))
            return window;
    return nullptr;
}

// Checks the role first, because each property costs a call into the other process.
std::vector<Item> Program::Items(long role, std::size_t most) const {
    std::vector<Item> items;
    if (const Accessible accessible = Accessible_Of(Calendar()))
        for (const VARIANT &child : Children_Of(*accessible)) {
            VARIANT is{};
            if (items.size() < most && (role == 0 || (accessible->get_accRole(child, &is), is.lVal == role)))
                items.push_back(Item_Of(*accessible, child));
        }
    return items;
}

Item Program::Named(std::string_view name, bool act) const {
    if (const Accessible accessible = Accessible_Of(Calendar()))
        for (const VARIANT &child : Children_Of(*accessible))
            if (Text_Of(*accessible, &IAccessible::get_accName, child) == name) {
                if (act)
                    accessible->accDoDefaultAction(child);
                return Item_Of(*accessible, child);
            }
    return {};
}

std::string Program::Title() const {
    const std::vector<Item> titles = Items(ROLE_SYSTEM_STATICTEXT, 1);
    return titles.empty() ? "" : titles.front().name;
}

HWND Program::Box_Window() const {
    return Window("#32770");
}

std::string Program::Box() const {
    const HWND box = Box_Window();
    if (!box)
        return {};
    std::string text;
    std::string icon;
    for (const HWND part : Windows_Below(box)) {
        if (Class_Of(part) != "Static")
            continue;
        if ((GetWindowLongW(part, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
            icon = Icon_Of(part);
        else
            text += Text_Of(part);
    }
    return icon + "[" + Text_Of(box) + "] " + text;
}

long Program::Processor_Ticks() const {
    wchar_t path[MAX_PATH] = L"";
    DWORD length = std::size(path);
    QueryFullProcessImageNameW(process_, 0, path, &length);
    WIN32_FIND_DATAW found;
    std::string stat;
    // The program's path contains the test's name, so it identifies the process.
    const auto read = [&found](const wchar_t *file_name) {
        std::ifstream file(std::filesystem::path(L"Z:\\proc\\") /
                           (found.cFileName + std::wstring(file_name)));
        std::string part; // the first word of cmdline; other files hold no NUL
        std::getline(file, part, '\0');
        return part;
    };
    const HANDLE search = FindFirstFileW(L"Z:\\proc\\*", &found);
    do {
        if (read(L"\\cmdline") == Utf8({path, length}))
            stat = read(L"\\stat");
    } while (stat.empty() && FindNextFileW(search, &found));
    FindClose(search);
    long user = 0, system = 0;
    if (stat.empty() ||
        std::sscanf(stat.c_str() + stat.rfind(')'), ") %*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %ld %ld",
                    &user, &system) != 2)
        return -1;
    return user + system;
}

std::ptrdiff_t Program::Windows(bool only_visible) const {
    const std::vector<HWND> all = Windows_Below(nullptr);
    return std::count_if(all.begin(), all.end(), [&](HWND window) {
        return Process_Of(window) == id_ && (!only_visible || IsWindowVisible(window));
    });
}

std::ptrdiff_t Program::Handles() const {
    // Wine's GetProcessHandleCount returns 0.
    struct Entry {
        ULONG process;
        BYTE type, flags;
        USHORT value;
        void *object;
        ULONG access;
    };
    std::vector<ULONG_PTR> bytes(0x40000);
    if (NtQuerySystemInformation(static_cast<SYSTEM_INFORMATION_CLASS>(16), bytes.data(),
                                 static_cast<ULONG>(bytes.size() * sizeof bytes[0]), nullptr) != 0)
        return -1;
    const auto *entries = reinterpret_cast<const Entry *>(&bytes[1]);
    return std::count_if(entries, entries + *reinterpret_cast<const ULONG *>(bytes.data()),
                         [this](const Entry &entry) { return entry.process == id_; });
}

::testing::AssertionResult Program::Holds_No_More_Than(const Held &before) const {
    Held now{};
    const auto less = [&] { return now[0] <= before[0] && now[1] <= before[1] && now[2] <= before[2] + 8; };
    if (before[0] > 0 && Wait_Until([&] { return now = Holds(), less(); }, 3000))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << ::testing::PrintToString(before) << ", then " << ::testing::PrintToString(now);
}

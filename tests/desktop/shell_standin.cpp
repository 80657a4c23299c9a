// A stand-in for the shell, which Wine lacks: a "Progman" window with an icon view, a real icon list and a
// wallpaper. The desktop tests and the run script start it before the calendar.
//
//   shell_standin [--text=RRGGBB] [--back=RRGGBB|none] [--no-list] [--no-view] [--no-shell] [--adopt]
//                 [--late] [--do=LETTERS]
//
// --text and --back set the colours of the icon labels; the defaults are white and none. --no-list and
// --no-view leave out that window and those below it. --no-shell keeps only the wallpaper, in a window class
// that the calendar does not look for. --late creates the view three seconds after the start. --adopt, for
// human viewers, shows the wallpaper that a program sets, stretched, and moves the calendar into the view.
// The stand-in ends on WM_CLOSE.
//
// --do performs an action for each letter: w moves the view into a "WorkerW" that covers "Program Manager", p
// moves it back, x moves it back and destroys the WorkerW, a raises the view, l moves the desktop's origin
// 300 pixels to the left or back, m mirrors the desktop or undoes that, b adds or removes the style of a
// raised desktop. WM_APP with a letter, sent to "Program Manager", performs an action at any time.
//
// Debian's Wine 8 loses the pixels of windows below "Progman" in two ways. First, Wine draws a child of
// another process's window only if a window between it and the top-level window has an X window, which it
// looks up in a window property. So the view gets that property of "Progman", and the calendar has to be
// moved from "Progman" into the view: by the test driver once it has checked the calendar's own choice of
// parent, or by the stand-in with --adopt. Second, the stand-in must draw directly to the X server (a Wine
// setting for this program's name). Otherwise its buffered pixels cover the calendar whenever a window above
// both is closed. Only a top-level window can draw that way, so the stand-in paints one prepared picture of
// wallpaper and icons there for all its windows, around the calendar.

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace {

constexpr char X_Window_Property[] = "__wine_x11_whole_window";
constexpr char Calendar_Class[] = "Vellatro_Calendar";
constexpr char Splash_Class[] = "Vellatro_Splash";
constexpr UINT_PTR Late_Timer = 2;

HWND Shell_Window;
HWND Worker_Window;
HWND View_Window;
HWND List_Window;
WNDPROC List_Procedure;
HDC Picture_Dc; // holds the picture of the whole desktop until the process ends
int Origin;     // left edge of the desktop windows

/// Returns the text after the option in the command line, up to a blank; nothing if the option is missing.
std::optional<std::string> Option(const std::string &name) {
    const std::string line = GetCommandLineA();
    const size_t place = line.find("--" + name);
    if (place == std::string::npos)
        return std::nullopt;
    const size_t begin = place + 2 + name.size();
    return line.substr(begin, line.find(' ', begin) - begin);
}

COLORREF Colour_Option(const std::string &name, COLORREF standard) {
    const std::string text = Option(name).value_or("none");
    const unsigned long value = std::strtoul(text.c_str(), nullptr, 16);
    return text == "none" ? standard : RGB(value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF);
}

// Paints a gradient in both directions, so that a wrongly placed part of it is visible around the calendar.
void Paint_Wallpaper(SIZE size) {
    const HDC screen = GetDC(nullptr);
    if (!Picture_Dc)
        Picture_Dc = CreateCompatibleDC(screen);
    DeleteObject(SelectObject(Picture_Dc, CreateCompatibleBitmap(screen, size.cx, size.cy)));
    ReleaseDC(nullptr, screen);
    for (LONG y = 0; y < size.cy; y += 32)
        for (LONG x = 0; x < size.cx; x += 32) {
            const RECT area{x, y, x + 32, y + 32};
            SetDCBrushColor(Picture_Dc, RGB(40 + 180 * y / size.cy, 90 + 100 * x / size.cx, 160));
            FillRect(Picture_Dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        }
}

void Paint_Hung_Up(SIZE size) {
    wchar_t path[MAX_PATH] = {};
    DWORD bytes = sizeof path; // the last character stays zero for any value
    // SystemParametersInfo would return the value of this process's first call.
    if (!Option("adopt") || RegGetValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"Wallpaper",
                                         RRF_RT_REG_SZ, nullptr, path, &bytes) != ERROR_SUCCESS)
        return;
    const HANDLE picture =
        LoadImageW(nullptr, path, IMAGE_BITMAP, size.cx, size.cy, LR_LOADFROMFILE | LR_CREATEDIBSECTION);
    if (!picture)
        return;
    const HDC source = CreateCompatibleDC(Picture_Dc);
    const HGDIOBJ before = SelectObject(source, picture);
    BitBlt(Picture_Dc, 0, 0, size.cx, size.cy, source, 0, 0, SRCCOPY);
    SelectObject(source, before);
    DeleteDC(source);
    DeleteObject(picture);
}

// Repaints the picture and fits all windows to the screen's size, which tests change. Copies no bits, because
// Wine sometimes waits forever for the X server to do so. Wine 10 moves a window onto the screen if it covers
// the whole screen and reaches beyond it. So windows that begin left of the screen leave its lowest line
// free, and nothing paints it.
void Fill_Screen(SIZE size) {
    const LONG free_lines = Origin < 0 ? 1 : 0;
    Paint_Wallpaper(size);
    Paint_Hung_Up(size);
    for (const HWND window : {Worker_Window, Shell_Window, View_Window, List_Window})
        if (window)
            SetWindowPos(window, HWND_BOTTOM, GetAncestor(window, GA_ROOT) == window ? Origin : 0, 0,
                         size.cx - Origin, size.cy - free_lines, SWP_NOACTIVATE | SWP_NOCOPYBITS);
    if (List_Window)
        SendMessageA(List_Window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(Picture_Dc), PRF_CLIENT);
    RedrawWindow(Shell_Window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

// Removes the windows of other programs from the region.
void Leave_Out_Guests(HRGN region, HWND parent) {
    const HRGN guest = CreateRectRgn(0, 0, 0, 0);
    const HRGN whole = CreateRectRgn(0, 0, 0, 0);
    for (HWND window = GetWindow(parent, GW_CHILD); window; window = GetWindow(window, GW_HWNDNEXT)) {
        RECT place;
        if (window == View_Window || window == List_Window || !IsWindowVisible(window))
            continue;
        GetWindowRect(window, &place);
        SetRectRgn(whole, place.left, place.top, place.right, place.bottom);
        // The region of a window that has just shrunk may still be larger than the window.
        if (GetWindowRgn(window, guest) != ERROR && OffsetRgn(guest, place.left, place.top) != ERROR)
            CombineRgn(whole, whole, guest, RGN_AND);
        CombineRgn(region, region, whole, RGN_DIFF);
    }
    DeleteObject(whole);
    DeleteObject(guest);
}

void Paint_Picture(HWND window) {
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    const HWND top = GetAncestor(window, GA_ROOT);
    RECT area;
    GetWindowRect(top, &area);
    GetUpdateRgn(window, region, FALSE);
    OffsetRgn(region, area.left, area.top);
    if (GetWindowLongA(top, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) // the update region counts from the right there
        SetRectRgn(region, area.left, area.top, area.right, area.bottom);
    RedrawWindow(window, nullptr, nullptr, RDW_VALIDATE | RDW_NOCHILDREN); // the calendar still has to paint
    Leave_Out_Guests(region, top);
    if (View_Window)
        Leave_Out_Guests(region, View_Window);
    const HDC dc = GetDCEx(top, region, DCX_CACHE | DCX_CLIPSIBLINGS | DCX_INTERSECTRGN);
    SetLayout(dc, 0);
    BitBlt(dc, -area.left, 0, area.right, area.bottom, Picture_Dc, 0, 0, SRCCOPY);
    ReleaseDC(top, dc); // also deletes the region
}

// Moves the calendar into the view. Prints its place as WIDTHxHEIGHT+X+Y whenever it changes, for a waiting
// script.
void Adopt_Calendar() {
    static RECT told;
    RECT place;
    if (const HWND calendar = FindWindowExA(GetParent(View_Window), nullptr, Calendar_Class, nullptr))
        SetParent(calendar, View_Window);
    HWND calendar = FindWindowExA(View_Window, nullptr, Calendar_Class, nullptr);
    if (!calendar)
        calendar = FindWindowA(Calendar_Class, nullptr); // it may not be attached to the shell
    if (IsWindowVisible(FindWindowA(Splash_Class, nullptr)))
        return; // the splash window still covers part of the calendar
    if (!IsWindowVisible(calendar) || !GetWindowRect(calendar, &place) || EqualRect(&place, &told))
        return;
    told = place;
    std::printf("%ldx%ld+%ld+%ld\n", place.right - place.left, place.bottom - place.top, place.left,
                place.top);
    std::fflush(stdout);
}

void Create_View();
void Do(char letter);

LRESULT CALLBACK Handle_Message(HWND window, UINT message, WPARAM wide, LPARAM longer) {
    if (message == WM_ERASEBKGND)
        return 1;
    if (message == WM_PAINT) {
        Paint_Picture(window);
        return 0;
    }
    if (window == List_Window)
        return CallWindowProcA(List_Procedure, window, message, wide, longer);
    if (window == Worker_Window && message == WM_WINDOWPOSCHANGING) { // keep it directly above the desktop
        WINDOWPOS &change = *reinterpret_cast<WINDOWPOS *>(longer);
        change.hwndInsertAfter = GetWindow(Shell_Window, GW_HWNDPREV);
        if (change.hwndInsertAfter == window)
            change.flags |= SWP_NOZORDER;
    }
    if (window == Shell_Window) {
        if (message == WM_WINDOWPOSCHANGING) // a click must not bring the desktop to the front
            reinterpret_cast<WINDOWPOS *>(longer)->hwndInsertAfter = HWND_BOTTOM;
        else if (message == WM_DISPLAYCHANGE)
            Fill_Screen({LOWORD(longer), HIWORD(longer)});
        else if (message == WM_SETTINGCHANGE && wide == SPI_SETDESKWALLPAPER)
            Fill_Screen({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
        else if (message == WM_TIMER && wide == Late_Timer)
            Create_View();
        else if (message == WM_TIMER)
            Adopt_Calendar();
        else if (message == WM_APP)
            Do(static_cast<char>(wide));
        else if (message == WM_DESTROY)
            PostQuitMessage(0);
    }
    return DefWindowProcA(window, message, wide, longer);
}

HWND Create_Window(const char *class_name, const char *title, DWORD style, HWND parent) {
    return CreateWindowExA(parent ? 0 : WS_EX_TOOLWINDOW, class_name, title,
                           style | WS_VISIBLE | WS_CLIPSIBLINGS, 0, 0, GetSystemMetrics(SM_CXSCREEN),
                           GetSystemMetrics(SM_CYSCREEN), parent, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

HWND Create_Own_Window(const char *class_name, const char *title, DWORD style, HWND parent) {
    WNDCLASSA description{};
    description.lpfnWndProc = Handle_Message;
    description.hInstance = GetModuleHandleA(nullptr);
    description.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)); // the arrow
    description.lpszClassName = class_name;
    RegisterClassA(&description);
    return Create_Window(class_name, title, style, parent);
}

void Create_List() {
    constexpr std::pair<const char *, int> icons[] = {
        {"My Documents", -4}, {"My Computer", -16}, {"Network", -18}};
    InitCommonControls();
    List_Window = Create_Window(WC_LISTVIEWA, "FolderView", WS_CHILD | LVS_ICON | LVS_ALIGNLEFT, View_Window);
    const HIMAGELIST images = ImageList_Create(GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON),
                                               ILC_COLOR32 | ILC_MASK, static_cast<int>(std::size(icons)), 0);
    ListView_SetImageList(List_Window, images, LVSIL_NORMAL);
    ListView_SetBkColor(List_Window, CLR_NONE);
    ListView_SetTextBkColor(List_Window, Colour_Option("back=", CLR_NONE));
    ListView_SetTextColor(List_Window, Colour_Option("text=", RGB(255, 255, 255)));
    for (const auto &[name, resource] : icons) {
        const HICON icon = ExtractIconA(nullptr, "shell32.dll", static_cast<UINT>(resource));
        LVITEMA item{};
        item.mask = LVIF_TEXT | LVIF_IMAGE;
        item.iItem = ListView_GetItemCount(List_Window);
        item.pszText = const_cast<char *>(name);
        item.iImage = ImageList_AddIcon(images, icon);
        SendMessageA(List_Window, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    }
    List_Procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(List_Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Handle_Message)));
}

void Create_View() {
    KillTimer(Shell_Window, Late_Timer);
    View_Window = Create_Own_Window("SHELLDLL_DefView", "", WS_CHILD, Shell_Window);
    SetPropA(View_Window, X_Window_Property, GetPropA(Shell_Window, X_Window_Property));
    if (!Option("no-list"))
        Create_List();
    if (Option("adopt"))
        SetTimer(Shell_Window, 1, 50, nullptr);
    Fill_Screen({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
}

void Move_View(HWND holder) {
    SetParent(View_Window, holder);
    SetPropA(View_Window, X_Window_Property, GetPropA(holder, X_Window_Property));
    NotifyWinEvent(EVENT_SYSTEM_FOREGROUND, holder, OBJID_WINDOW, CHILDID_SELF);
}

void Change_Extended_Style(LONG style) {
    SetWindowLongA(Shell_Window, GWL_EXSTYLE, GetWindowLongA(Shell_Window, GWL_EXSTYLE) ^ style);
}

void Do(char letter) {
    if (letter == 'w') {
        if (!Worker_Window)
            Worker_Window = Create_Own_Window("WorkerW", "", WS_POPUP, nullptr);
        // Most of the shell's windows of this class hold nothing.
        CreateWindowA("WorkerW", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        ShowWindow(Worker_Window, SW_SHOWNA);
        Move_View(Worker_Window);
    } else if (letter == 'p' || letter == 'x') {
        Move_View(Shell_Window);
        ShowWindow(Worker_Window, SW_HIDE);
        if (letter == 'x')
            DestroyWindow(std::exchange(Worker_Window, nullptr));
    } else if (letter == 'a') {
        SetWindowPos(View_Window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return;
    } else if (letter == 'l') {
        Origin = -300 - Origin;
    } else if (letter == 'm') {
        Change_Extended_Style(WS_EX_LAYOUTRTL);
    } else if (letter == 'b') {
        Change_Extended_Style(0x00200000); // WS_EX_NOREDIRECTIONBITMAP
    }
    Fill_Screen({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
}

} // namespace

int main() {
    SetProcessDPIAware(); // a child of another process's window gets its parent's DPI awareness
    const bool is_shell = !Option("no-shell");
    Shell_Window =
        Create_Own_Window(is_shell ? "Progman" : "Standin_Wallpaper", "Program Manager", WS_POPUP, nullptr);
    if (is_shell && Option("late"))
        SetTimer(Shell_Window, Late_Timer, 3000, nullptr);
    else if (is_shell && !Option("no-view"))
        Create_View();
    Fill_Screen({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    for (const char letter : Option("do=").value_or(""))
        Do(letter);
    if (is_shell)
        PostMessageA(HWND_BROADCAST, RegisterWindowMessageA("TaskbarCreated"), 0, 0);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

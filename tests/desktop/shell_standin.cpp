// The stand-in for the shell: a "Progman" window with its view, a real icon list and a wallpaper, since Wine
// has none of them. The desktop tests and the run script start it before the calendar. It judges nothing.
//
//   shell_standin [--text=RRGGBB] [--back=RRGGBB|none] [--no-list] [--no-view] [--no-shell] [--adopt]
//
// --adopt is for a person who looks: with it a wallpaper that a program hangs up is shown, stretched.
// The colours are those of the icon labels (white on none). --no-list and --no-view leave out the windows of
// that name and below; --no-shell keeps the wallpaper only, in a class that nobody looks for. It ends on
// WM_CLOSE.
//
// Debian's Wine 8 loses the pixels of windows below "Progman" in two ways, and each has its way round. First,
// a window put into a window of another process is drawn only if an X window is found on the way up to its
// top-level window. That is looked up in a window property, so the view gets the property of "Progman", and
// who wants to see the calendar moves it on from "Progman" into the view: a test driver once it has seen the
// calendar's own choice of parent, or the stand-in itself with --adopt. Second, the stand-in must draw
// straight to the X server (a setting of Wine for this program's name), or its buffered pixels cover the
// calendar whenever a window above both goes away; but then only its top-level window can draw. So one
// prepared picture, wallpaper and icons, is painted there for all its windows, around the calendar.

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace {

constexpr char X_Window_Property[] = "__wine_x11_whole_window";
constexpr char Calendar_Class[] = "Vellatro_Calendar";
constexpr char Splash_Class[] = "Vellatro_Splash";

HWND Shell_Window;
HWND View_Window;
HWND List_Window;
WNDPROC List_Procedure;
HDC Picture_Dc; // holds the picture of the whole desktop, as long as the process lives

bool Has_Option(const char *option) {
    return std::string(GetCommandLineA()).find(option) != std::string::npos;
}

COLORREF Colour_Option(const std::string &option, COLORREF standard) {
    const std::string line = GetCommandLineA();
    const size_t place = line.find(option);
    if (place == std::string::npos)
        return standard;
    const std::string text = line.substr(place + option.size());
    const unsigned long value = std::strtoul(text.c_str(), nullptr, 16);
    return text.rfind("none", 0) == 0 ? CLR_NONE : RGB(value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF);
}

void Fill(const RECT &area, double red, double green, double blue) {
    const auto byte = [](double value) { return static_cast<BYTE>(value); };
    SetDCBrushColor(Picture_Dc, RGB(byte(red), byte(green), byte(blue)));
    FillRect(Picture_Dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

// An evening sky over three ranges of hills: not flat, so that one sees where the calendar lets it through.
void Paint_Wallpaper(SIZE size) {
    const HDC screen = GetDC(nullptr);
    if (!Picture_Dc)
        Picture_Dc = CreateCompatibleDC(screen);
    DeleteObject(SelectObject(Picture_Dc, CreateCompatibleBitmap(screen, size.cx, size.cy)));
    ReleaseDC(nullptr, screen);
    for (LONG y = 0; y < size.cy; ++y) {
        const double share = std::pow(1.0 * y / size.cy, 1.4);
        Fill({0, y, size.cx, y + 1}, 38 + 202 * share, 84 + 130 * share, 138 + 48 * share);
    }
    for (int range = 0; range < 3; ++range)
        for (LONG x = 0; x < size.cx; ++x) {
            const double along = 6.2832 * x / size.cx + 0.4 + 2.2 * range;
            const double wave = 0.055 * std::sin(along) + 0.025 * std::sin(2.3 * along + 1.0);
            const double top = size.cy * (0.66 + 0.105 * range + wave);
            Fill({x, static_cast<LONG>(top), x + 1, size.cy}, 128 - 40 * range, 148 - 33 * range,
                 168 - 45 * range);
        }
}

void Paint_Hung_Up(SIZE size) {
    wchar_t path[MAX_PATH] = {};
    DWORD bytes = sizeof path; // the last character stays zero whatever is stored
    // Not SystemParametersInfo, which remembers what it was when this process asked first.
    if (!Has_Option("--adopt") || RegGetValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"Wallpaper",
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

// The screen's size changes in tests; all windows start in its upper left corner. No bits are copied: Wine
// waits for ever for the X server's answer to that, now and then.
void Fill_Screen(SIZE size) {
    Paint_Wallpaper(size);
    Paint_Hung_Up(size);
    for (const HWND window : {Shell_Window, View_Window, List_Window})
        if (window)
            SetWindowPos(window, HWND_BOTTOM, 0, 0, size.cx, size.cy, SWP_NOACTIVATE | SWP_NOCOPYBITS);
    if (List_Window)
        SendMessageA(List_Window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(Picture_Dc), PRF_CLIENT);
    RedrawWindow(Shell_Window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

// Takes the windows of other programs out of the region.
void Leave_Out_Guests(HRGN region, HWND parent) {
    const HRGN guest = CreateRectRgn(0, 0, 0, 0);
    const HRGN whole = CreateRectRgn(0, 0, 0, 0);
    for (HWND window = GetWindow(parent, GW_CHILD); window; window = GetWindow(window, GW_HWNDNEXT)) {
        RECT place;
        if (window == View_Window || window == List_Window || !IsWindowVisible(window))
            continue;
        GetWindowRect(window, &place);
        SetRectRgn(whole, place.left, place.top, place.right, place.bottom);
        // A window that has just shrunk still has the larger region.
        if (GetWindowRgn(window, guest) != ERROR && OffsetRgn(guest, place.left, place.top) != ERROR)
            CombineRgn(whole, whole, guest, RGN_AND);
        CombineRgn(region, region, whole, RGN_DIFF);
    }
    DeleteObject(whole);
    DeleteObject(guest);
}

void Paint_Picture(HWND window) {
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    GetUpdateRgn(window, region, FALSE);
    RedrawWindow(window, nullptr, nullptr, RDW_VALIDATE | RDW_NOCHILDREN); // the calendar has still to paint
    Leave_Out_Guests(region, Shell_Window);
    if (View_Window)
        Leave_Out_Guests(region, View_Window);
    const HDC dc = GetDCEx(Shell_Window, region, DCX_CACHE | DCX_CLIPSIBLINGS | DCX_INTERSECTRGN);
    RECT area;
    GetClientRect(Shell_Window, &area);
    BitBlt(dc, 0, 0, area.right, area.bottom, Picture_Dc, 0, 0, SRCCOPY);
    ReleaseDC(Shell_Window, dc); // and the region with it
}

// Also tells where the calendar is, as WIDTHxHEIGHT+X+Y, whenever that is new: a script waits for it.
void Adopt_Calendar() {
    static RECT told;
    RECT place;
    if (const HWND calendar = FindWindowExA(Shell_Window, nullptr, Calendar_Class, nullptr))
        SetParent(calendar, View_Window);
    HWND calendar = FindWindowExA(View_Window, nullptr, Calendar_Class, nullptr);
    if (!calendar)
        calendar = FindWindowA(Calendar_Class, nullptr); // one that has not attached itself to the shell
    if (IsWindowVisible(FindWindowA(Splash_Class, nullptr)))
        return; // it still hides a part of the calendar
    if (!IsWindowVisible(calendar) || !GetWindowRect(calendar, &place) || EqualRect(&place, &told))
        return;
    told = place;
    std::printf("%ldx%ld+%ld+%ld\n", place.right - place.left, place.bottom - place.top, place.left,
                place.top);
    std::fflush(stdout);
}

LRESULT CALLBACK Handle_Message(HWND window, UINT message, WPARAM wide, LPARAM longer) {
    if (message == WM_ERASEBKGND)
        return 1;
    if (message == WM_PAINT) {
        Paint_Picture(window);
        return 0;
    }
    if (window == List_Window)
        return CallWindowProcA(List_Procedure, window, message, wide, longer);
    if (window == Shell_Window) {
        if (message == WM_WINDOWPOSCHANGING) // a click must not bring the desktop to the front
            reinterpret_cast<WINDOWPOS *>(longer)->hwndInsertAfter = HWND_BOTTOM;
        else if (message == WM_DISPLAYCHANGE)
            Fill_Screen({LOWORD(longer), HIWORD(longer)});
        else if (message == WM_SETTINGCHANGE && wide == SPI_SETDESKWALLPAPER)
            Fill_Screen({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
        else if (message == WM_TIMER)
            Adopt_Calendar();
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
    ListView_SetTextBkColor(List_Window, Colour_Option("--back=", CLR_NONE));
    ListView_SetTextColor(List_Window, Colour_Option("--text=", RGB(255, 255, 255)));
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

} // namespace

int main() {
    const bool is_shell = !Has_Option("--no-shell");
    Shell_Window =
        Create_Own_Window(is_shell ? "Progman" : "Standin_Wallpaper", "Program Manager", WS_POPUP, nullptr);
    if (is_shell && !Has_Option("--no-view")) {
        View_Window = Create_Own_Window("SHELLDLL_DefView", "", WS_CHILD, Shell_Window);
        SetPropA(View_Window, X_Window_Property, GetPropA(Shell_Window, X_Window_Property));
        if (!Has_Option("--no-list"))
            Create_List();
    }
    Fill_Screen({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    SendNotifyMessageA(HWND_BROADCAST, RegisterWindowMessageA("TaskbarCreated"), 0, 0);
    if (View_Window && Has_Option("--adopt"))
        SetTimer(Shell_Window, 1, 50, nullptr);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

#include "platform/screen.h"

#include "win32/system_library.h"
#include "win32/units.h"

#include <utility>

namespace {

int dots_per_inch = 0;

int Look_Dots_Up(HWND window) {
    if (const int dots = win32::Dots_Of(window); dots != 0)
        return dots;
    const win32::Window_Dc screen(nullptr);
    const int dots = GetDeviceCaps(screen.Get(), LOGPIXELSX);
    return dots > 0 ? dots : 96;
}

} // namespace

// Newer systems have a scale for each window. Older systems have one scale for all windows.
int win32::Dots_Of(HWND window) {
    static const auto of_window = Look_Up<UINT WINAPI(HWND)>(L"user32.dll", "GetDpiForWindow");
    return window != nullptr && of_window != nullptr ? static_cast<int>(of_window(window)) : 0;
}

bool win32::Refresh_Dots(HWND window) {
    const int dots = Look_Dots_Up(window);
    return std::exchange(dots_per_inch, dots) != dots;
}

int platform::Dots_Per_Inch() {
    if (win32::Dialog_Dots != 0)
        return win32::Dialog_Dots;
    if (dots_per_inch == 0)
        dots_per_inch = Look_Dots_Up(nullptr);
    return dots_per_inch;
}

Size platform::Screen_Size() {
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

Rect platform::Work_Area() {
    RECT area = {};
    if (!SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0))
        return {0, 0, Screen_Size().width, Screen_Size().height};
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

Rect platform::Work_Area_Around(Point point) {
    return Work_Area_Of(Rect{point.x, point.y, 1, 1});
}

Rect platform::Work_Area_Of(const Rect &place) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    const RECT pixels = {place.left, place.top, place.Right(), place.Bottom()};
    if (!GetMonitorInfoW(MonitorFromRect(&pixels, MONITOR_DEFAULTTONEAREST), &monitor))
        return Work_Area();
    const RECT &area = monitor.rcWork;
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

bool platform::High_Contrast() {
    HIGHCONTRASTW state = {};
    state.cbSize = sizeof state;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof state, &state, 0) &&
           (state.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

bool platform::Mouse_Button_Held() {
    for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        if ((static_cast<unsigned>(GetAsyncKeyState(button)) & 0x8000U) != 0)
            return true;
    }
    return false;
}

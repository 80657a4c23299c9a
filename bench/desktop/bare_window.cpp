// The smallest window program: one window with one painted text. tools/figures.sh compares the calendar with
// it. It is not part of the product and measures nothing itself.

#include <windows.h>

#include <iterator>

namespace {

constexpr wchar_t Text[] = L"Bare window";

LRESULT CALLBACK Handle_Message(HWND window, UINT message, WPARAM wide, LPARAM longer) {
    if (message == WM_PAINT) {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(window, &paint);
        TextOutW(dc, 10, 10, Text, static_cast<int>(std::size(Text)) - 1);
        EndPaint(window, &paint);
        return 0;
    }
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wide, longer);
}

} // namespace

int main() {
    WNDCLASSW description{};
    description.lpfnWndProc = Handle_Message;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)); // IDC_ARROW
    description.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    description.lpszClassName = L"Bare_Window";
    RegisterClassW(&description);
    CreateWindowW(description.lpszClassName, Text, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 400, 300,
                  nullptr, nullptr, description.hInstance, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}

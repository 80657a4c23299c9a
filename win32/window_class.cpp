#include "win32/window_class.h"

namespace win32 {

HCURSOR Load_Pointer(System_Pointer shape) {
    return LoadCursorW(nullptr, MAKEINTRESOURCEW(static_cast<WORD>(shape)));
}

void Register_Class(const wchar_t *name, WNDPROC procedure, UINT style, bool dialog) {
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSEXW window_class = {};
    window_class.cbSize = sizeof window_class;
    if (GetClassInfoExW(instance, name, &window_class))
        return;
    window_class = {};
    window_class.cbSize = sizeof window_class;
    window_class.style = style;
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = instance;
    window_class.hCursor = Load_Pointer(System_Pointer::Arrow);
    window_class.lpszClassName = name;
    if (dialog) {
        window_class.cbWndExtra = DLGWINDOWEXTRA;
        window_class.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(1));
    }
    RegisterClassExW(&window_class);
}

} // namespace win32

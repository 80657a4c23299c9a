// Checks whether a menu is open or the user is moving a window.
#include "win32/broadcasts.h"
#include "win32/handles.h"

namespace win32 {

namespace {

/// Stores in the bool at `found_address` whether `window` is a visible menu. Returns whether the enumeration
/// must continue.
BOOL CALLBACK Find_Open_Menu(HWND window, LPARAM found_address) {
    constexpr ULONG_PTR menu_class = 32768;
    const bool found = GetClassLongPtrW(window, GCW_ATOM) == menu_class && IsWindowVisible(window);
    *reinterpret_cast<bool *>(found_address) = found;
    return found ? FALSE : TRUE;
}

} // namespace

bool In_Menu_Or_Move() {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    if (!GetGUIThreadInfo(GetCurrentThreadId(), &state))
        return false;
    if ((state.flags & (GUI_POPUPMENUMODE | GUI_INMOVESIZE)) != 0)
        return true;
    // Look for the menu's window, not for GUI_INMENUMODE: the system also sets this flag when the user
    // presses Alt alone. Wine ties the flag to the mouse capture, which an open menu can lose.
    bool menu_open = false;
    EnumThreadWindows(GetCurrentThreadId(), Find_Open_Menu, reinterpret_cast<LPARAM>(&menu_open));
    return menu_open;
}

} // namespace win32

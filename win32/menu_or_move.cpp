// The check for an open menu or a window that the user is moving.
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
    // When the user presses Alt alone, the system sets this flag and the system menu's, but shows no menu.
    if ((state.flags & GUI_INMENUMODE) == 0)
        return false;
    bool menu_open = false;
    EnumThreadWindows(GetCurrentThreadId(), Find_Open_Menu, reinterpret_cast<LPARAM>(&menu_open));
    return menu_open;
}

} // namespace win32

// What holds back what comes by itself: an open menu, and a window that is being moved.
#include "win32/broadcasts.h"
#include "win32/handles.h"

namespace win32 {

namespace {

/// Looks for a menu that can be seen, at the address in `found_address`. Returns whether to look further.
BOOL CALLBACK Find_Open_Menu(HWND window, LPARAM found_address) {
    constexpr ULONG_PTR menu_class = 32768;
    const bool found = GetClassLongPtrW(window, GCW_ATOM) == menu_class && IsWindowVisible(window);
    *reinterpret_cast<bool *>(found_address) = found;
    return found ? FALSE : TRUE;
}

} // namespace

bool Mouse_Is_Taken() {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    if (!GetGUIThreadInfo(GetCurrentThreadId(), &state))
        return false;
    if ((state.flags & (GUI_POPUPMENUMODE | GUI_INMOVESIZE)) != 0)
        return true;
    // Alt alone sets this as well, and the one of the system menu, without any menu to be seen.
    if ((state.flags & GUI_INMENUMODE) == 0)
        return false;
    bool menu_open = false;
    EnumThreadWindows(GetCurrentThreadId(), Find_Open_Menu, reinterpret_cast<LPARAM>(&menu_open));
    return menu_open;
}

} // namespace win32

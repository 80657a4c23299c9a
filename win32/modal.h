// The open message boxes and file dialogs of the program, and the lock that they put on its other windows.
#pragma once

#include "win32/handles.h"

#include <vector>

namespace win32 {

/// The number of open message boxes and file dialogs.
inline int Open_Modal_Boxes = 0;

/// True once the system ends the session and waits for no answer. Message_Box then shows no box and returns
/// the answer that changes least.
inline bool Boxes_Suppressed = false;

/// True while the program handles a timer or a broadcast of the system, false during a user action.
inline bool In_System_Event = false;

/// Counts a box as open for a scope. If the box has an owner, also locks the thread's other windows, because
/// the system locks only the owner.
class Modal_Scope {
public:
    explicit Modal_Scope(HWND owner) : owner_(owner) {
        ++Open_Modal_Boxes;
        if (owner != nullptr)
            EnumThreadWindows(GetCurrentThreadId(), Lock, reinterpret_cast<LPARAM>(this));
    }
    ~Modal_Scope() {
        --Open_Modal_Boxes;
        for (const HWND window : windows_)
            EnableWindow(window, TRUE);
    }
    Modal_Scope(const Modal_Scope &) = delete;
    Modal_Scope &operator=(const Modal_Scope &) = delete;

private:
    static BOOL CALLBACK Lock(HWND window, LPARAM self_address) {
        auto *self = reinterpret_cast<Modal_Scope *>(self_address);
        if (window != self->owner_ && IsWindowVisible(window) && IsWindowEnabled(window)) {
            self->windows_.push_back(window);
            EnableWindow(window, FALSE);
        }
        return TRUE;
    }

    HWND owner_;
    std::vector<HWND> windows_;
};

} // namespace win32

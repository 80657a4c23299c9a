// What an open message box or file dialog of the program means for the other windows.
#pragma once

#include "win32/handles.h"

#include <vector>

namespace win32 {

/// How many message boxes and file dialogs are open.
inline int Open_Modal_Boxes = 0;

/// Whether the system ends the session and waits for no answer. Message boxes answer themselves then.
inline bool Boxes_Suppressed = false;

/// Whether what runs now comes of a timer or of a broadcast of the system, and not of what the user did.
inline bool In_System_Event = false;

/// Counts one as open for the length of a scope, and locks the thread's other windows where it has an owner:
/// the system locks only that.
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

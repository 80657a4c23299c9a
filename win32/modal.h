// Whether a message box or a file dialog of the program is open: raised by those, asked by the windows, which
// take no mouse and no keys meanwhile. And the locking of the other windows.
#pragma once

#include "win32/handles.h"

#include <vector>

namespace win32 {

/// How many message boxes and file dialogs are open.
inline int Open_Modal_Boxes = 0;

/// Counts one as open for the length of a scope.
class Modal_Scope {
public:
    Modal_Scope() { ++Open_Modal_Boxes; }
    ~Modal_Scope() { --Open_Modal_Boxes; }
    Modal_Scope(const Modal_Scope &) = delete;
    Modal_Scope &operator=(const Modal_Scope &) = delete;
};

/// Locks the thread's other windows for the length of a scope: a box or dialog with an owner locks only that.
class Locked_Windows {
public:
    explicit Locked_Windows(HWND owner) : owner_(owner) {
        if (owner != nullptr)
            EnumThreadWindows(GetCurrentThreadId(), Lock, reinterpret_cast<LPARAM>(this));
    }
    ~Locked_Windows() {
        for (const HWND window : windows_)
            EnableWindow(window, TRUE);
    }
    Locked_Windows(const Locked_Windows &) = delete;
    Locked_Windows &operator=(const Locked_Windows &) = delete;

private:
    static BOOL CALLBACK Lock(HWND window, LPARAM self_address) {
        auto *self = reinterpret_cast<Locked_Windows *>(self_address);
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

// The window of a painted control in a dialog. The control's own code paints it and handles its input.
#pragma once

#include "platform/forms.h"
#include "win32/mirror.h"
#include "win32/mouse_input.h"

namespace win32 {

class Painted_Child {
public:
    /// `owner` must outlive this object. `index` is the control's index in the owner's form.
    Painted_Child(Mirror &owner, int index) : owner_(&owner), index_(index) {}
    Painted_Child(const Painted_Child &) = delete;
    Painted_Child &operator=(const Painted_Child &) = delete;

    /// Creates the window, hidden, at `place` in the parent's client area, in pixels. `style` includes
    /// WS_CHILD. Returns null on failure.
    HWND Make(HWND parent, int id, const Rect &place, DWORD style);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam);
    bool Handle_Input(UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Dialog_Code(const MSG *message) const;
    void Handle_Mouse(UINT message, WPARAM wparam, LPARAM lparam);
    void Handle_Key_Down(WPARAM wparam, LPARAM lparam);
    void Paint_On(HDC target, const RECT &area);
    void Exclude_Later_Siblings(HDC target) const;
    const platform::Control_State &Control() const;

    Mirror *owner_;
    int index_;
    HWND window_ = nullptr;
    Mouse_Input mouse_;
};

} // namespace win32

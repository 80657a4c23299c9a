// Painted forms for assistive technology: the presented controls of a form as the simple children of its
// client object. Native dialogs are presented by the system.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

namespace win32 {

/// The answer to WM_GETOBJECT of a painted form's window.
LRESULT Answer_Get_Object(HWND window, WPARAM wparam, LPARAM lparam);

/// Announces a change of a control, or of the control with the focus, to those that listen.
void Tell_Change(HWND window, const platform::Control_State &control, platform::Aspect aspect);
void Tell_Focus(HWND window, const platform::Form_Model &model);

/// A control's number among the children: its place in the control order, from 1. It never changes.
inline long Child_Number(const platform::Control_State &control) {
    return control.index + 1;
}

/// Whether the control is presented at all, and whether it can be seen now.
bool Is_Presented(const platform::Control_State &control);

} // namespace win32

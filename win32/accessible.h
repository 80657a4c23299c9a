// Presents painted forms to assistive technology: each presented control is a simple child of the form's
// client object. The system presents native dialogs itself, except for their painted controls.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

#include <string>
#include <vector>

namespace win32 {

/// Returns the answer to WM_GETOBJECT for the window of a painted form. For the window of a dialog's painted
/// control, `only` is the index of that control.
LRESULT Answer_Get_Object(HWND window, WPARAM wparam, LPARAM lparam, int only = -1);

/// Announces changes of the name, the value and the state of a dialog's painted control.
void Announce_Change(HWND window);

/// Announces the focused control of a painted form. Does nothing if the window does not have the focus.
void Announce_Focus(HWND window, const platform::Form_Model &model);

/// The state of a form's controls as last announced to assistive technology.
class Announcements {
public:
    /// Announces each control that has appeared, disappeared or changed its name or value since the last
    /// call. The first call announces nothing.
    void Update(HWND window, const platform::Form_Model &model);

private:
    /// The announced state of one control. A hash of each text is enough to notice a change.
    struct Announced_State {
        bool presented;
        std::size_t name;
        std::size_t value;
    };
    std::vector<Announced_State> announced_;
};

/// Returns the control's child number: its place in the control order, counted from 1. The number never
/// changes.
inline long Child_Number(const platform::Control_State &control) {
    return control.index + 1;
}

/// Returns whether the control has a role and is visible.
bool Is_Presented(const platform::Control_State &control);

/// Returns the control's accessible name, or its caption if it has no name of its own.
const std::string &Access_Name(const platform::Control_State &control);

} // namespace win32

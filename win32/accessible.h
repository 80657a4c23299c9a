// Painted forms for assistive technology: the presented controls of a form as the simple children of its
// client object. Native dialogs are presented by the system, but for the controls that paint themselves.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

#include <string>
#include <vector>

namespace win32 {

/// The answer to WM_GETOBJECT of a painted form's window, or of that of a dialog's painted control, which is
/// the one with the index `only` then.
LRESULT Answer_Get_Object(HWND window, WPARAM wparam, LPARAM lparam, int only = -1);

/// Announces that the name, the value or the state of a dialog's painted control has changed.
void Announce_Change(HWND window);

/// Announces the control with the focus to those that listen.
void Announce_Focus(HWND window, const platform::Form_Model &model);

/// What has been announced of a form's controls.
class Announcements {
public:
    /// Announces what of the controls has appeared, gone, or another name or value since the call before.
    /// The first call announces nothing.
    void Update(HWND window, const platform::Form_Model &model);

private:
    /// Of the texts a fingerprint is enough to see a change.
    struct Announced_State {
        bool presented;
        std::size_t name;
        std::size_t value;
    };
    std::vector<Announced_State> announced_;
};

/// A control's number among the children: its place in the control order, from 1. It never changes.
inline long Child_Number(const platform::Control_State &control) {
    return control.index + 1;
}

/// Whether the control is presented at all, and whether it can be seen now.
bool Is_Presented(const platform::Control_State &control);

/// Its name to assistive technology: without one of its own it is named by its caption.
const std::string &Access_Name(const platform::Control_State &control);

} // namespace win32

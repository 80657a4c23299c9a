// Announcing changes of painted forms to assistive technology.
#include "win32/accessible.h"

namespace win32 {

using platform::Aspect;

bool Is_Presented(const platform::Control_State &control) {
    return control.access.role != platform::Access_Role::None && control.visible;
}

void Tell_Change(HWND window, const platform::Control_State &control, Aspect aspect) {
    if (control.access.role == platform::Access_Role::None)
        return;
    const long child = Child_Number(control);
    switch (aspect) {
    case Aspect::Visible:
        NotifyWinEvent(control.visible ? EVENT_OBJECT_SHOW : EVENT_OBJECT_HIDE, window, OBJID_CLIENT, child);
        break;
    case Aspect::Access:
        if (!control.visible)
            break;
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, child);
        NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window, OBJID_CLIENT, child);
        break;
    case Aspect::Caption:
        // A control without a name of its own is named by its caption.
        if (control.visible && control.access.name.empty())
            NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, child);
        break;
    default:
        break;
    }
}

void Tell_Focus(HWND window, const platform::Form_Model &model) {
    if (GetFocus() != window || model.focused < 0 || model.focused >= static_cast<int>(model.controls.size()))
        return;
    const platform::Control_State &control = *model.controls[static_cast<std::size_t>(model.focused)];
    if (Is_Presented(control))
        NotifyWinEvent(EVENT_OBJECT_FOCUS, window, OBJID_CLIENT, Child_Number(control));
}

} // namespace win32

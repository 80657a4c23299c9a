// Announcements to assistive technology.
#include "win32/accessible.h"
#include "win32/system_library.h"

#include <functional>
#include <utility>

namespace win32 {

namespace {

void Announce(DWORD event, HWND window, long child) {
    // Send every event on systems that cannot tell whether a client is listening.
    static const auto is_heard = Look_Up<BOOL WINAPI(DWORD)>(L"user32.dll", "IsWinEventHookInstalled");
    if (is_heard == nullptr || is_heard(event))
        NotifyWinEvent(event, window, OBJID_CLIENT, child);
}

} // namespace

bool Is_Presented(const platform::Control_State &control) {
    return control.access.role != platform::Access_Role::None && control.visible;
}

const std::string &Access_Name(const platform::Control_State &control) {
    return control.access.name.empty() ? control.caption : control.access.name;
}

void Announcements::Update(HWND window, const platform::Form_Model &model) {
    const bool first = announced_.empty();
    announced_.resize(model.controls.size());
    for (const platform::Control_State *control : model.controls) {
        if (control->access.role == platform::Access_Role::None)
            continue;
        const std::hash<std::string> fingerprint;
        const Announced_State now = {control->visible, fingerprint(Access_Name(*control)),
                                     fingerprint(control->access.value)};
        const Announced_State before =
            std::exchange(announced_[static_cast<std::size_t>(control->index)], now);
        if (first)
            continue;
        const long child = Child_Number(*control);
        if (now.presented != before.presented)
            Announce(now.presented ? EVENT_OBJECT_SHOW : EVENT_OBJECT_HIDE, window, child);
        if (!now.presented || !before.presented)
            continue;
        if (now.name != before.name)
            Announce(EVENT_OBJECT_NAMECHANGE, window, child);
        if (now.value != before.value)
            Announce(EVENT_OBJECT_VALUECHANGE, window, child);
    }
}

void Announce_Change(HWND window) {
    for (const auto event : {EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_VALUECHANGE, EVENT_OBJECT_STATECHANGE})
        Announce(static_cast<DWORD>(event), window, CHILDID_SELF);
}

void Announce_Focus(HWND window, const platform::Form_Model &model) {
    if (GetFocus() != window || model.focused < 0 || model.focused >= static_cast<int>(model.controls.size()))
        return;
    const platform::Control_State &control = *model.controls[static_cast<std::size_t>(model.focused)];
    if (Is_Presented(control))
        Announce(EVENT_OBJECT_FOCUS, window, Child_Number(control));
}

} // namespace win32

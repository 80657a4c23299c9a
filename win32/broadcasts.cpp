#include "win32/broadcasts.h"

#include "base/scoped_value.h"
#include "platform/message_loop.h"
#include "win32/mirror.h"
#include "win32/modal.h"
#include "win32/system_library.h"
#include "win32/units.h"
#include "win32/wide_text.h"
#include "win32/window_class.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

Callback<bool(platform::Broadcast)> broadcast_listener;
HWND broadcasts = nullptr;

/// The broadcasts that arrived during a menu or a move, without duplicates.
std::vector<std::pair<UINT, WPARAM>> deferred_broadcasts;

/// Calls the listener. Returns its answer, or true without a listener.
bool Notify_Listener(platform::Broadcast broadcast) noexcept {
    const auto now = broadcast_listener;
    return !now || now(broadcast);
}

bool Concerns_Fonts(WPARAM setting) {
    return setting == SPI_SETNONCLIENTMETRICS || setting == SPI_SETFONTSMOOTHING ||
           setting == SPI_SETFONTSMOOTHINGTYPE;
}

/// Handles one of the system's broadcasts.
void Process_Broadcast(UINT message, WPARAM wparam) {
    if (message == WM_SETTINGCHANGE && Concerns_Fonts(wparam)) {
        // Only fonts changed. Do not call the listener, because Check_Scale already makes all forms lay
        // themselves out.
        win32::Check_Scale(true);
    } else if (message == WM_SETTINGCHANGE) {
        win32::Check_Scale(false);
        Notify_Listener(platform::Broadcast::Settings_Changed);
    } else if (message == WM_DISPLAYCHANGE) {
        win32::Check_Scale(false);
        Notify_Listener(platform::Broadcast::Display_Changed);
    } else if (message == WM_TIMECHANGE) {
        Notify_Listener(platform::Broadcast::Time_Changed);
    } else {
        Notify_Listener(platform::Broadcast::Colours_Changed);
    }
}

/// Handles a timer or a broadcast. Returns whether `message` is one of them.
bool Process_Message(UINT message, WPARAM wparam) {
    switch (message) {
    case WM_TIMER:
        win32::Tick(wparam);
        return true;
    case WM_SETTINGCHANGE:
    case WM_TIMECHANGE:
    case WM_DISPLAYCHANGE:
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
        if (!win32::In_Menu_Or_Move())
            Process_Broadcast(message, wparam);
        else if (const std::pair arrived(message, wparam);
                 std::ranges::find(deferred_broadcasts, arrived) == deferred_broadcasts.end())
            deferred_broadcasts.push_back(arrived); // the next tick handles it
        return true;
    default:
        return false;
    }
}

void CALLBACK On_Front_Changed(HWINEVENTHOOK, DWORD, HWND, LONG, LONG, DWORD, DWORD) {
    const Scoped_Value system_event(win32::In_System_Event, true);
    const Scoped_Value scale(win32::Dialog_Dots, 0);
    if (!win32::In_Menu_Or_Move())
        Notify_Listener(platform::Broadcast::Front_Changed);
}

/// Returns the message that a shell broadcasts once its task bar exists.
UINT Shell_Started_Message() {
    static const UINT message = RegisterWindowMessageW(L"TaskbarCreated");
    return message;
}

/// Answers WM_QUERYENDSESSION and WM_ENDSESSION.
LRESULT End_Session(UINT message, WPARAM wparam, LPARAM lparam) {
    const bool ends = message == WM_QUERYENDSESSION || wparam != FALSE;
    const bool forced = ends && (static_cast<ULONG_PTR>(lparam) & ENDSESSION_CRITICAL) != 0;
    win32::Boxes_Suppressed = forced;
    if (forced)
        Notify_Listener(platform::Broadcast::Session_Forced);
    // WM_ENDSESSION leaves no time for a question, so the listener must finish its work before it answers
    // Session_Ends with true.
    if (message == WM_QUERYENDSESSION)
        return forced || Notify_Listener(platform::Broadcast::Session_Ends) ? TRUE : FALSE;
    if (ends)
        Notify_Listener(platform::Broadcast::Session_Over);
    return 0;
}

LRESULT CALLBACK Broadcast_Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    const Scoped_Value system_event(win32::In_System_Event, true);
    const Scoped_Value scale(win32::Dialog_Dots, 0);
    try {
        if (message == WM_QUERYENDSESSION || message == WM_ENDSESSION)
            return End_Session(message, wparam, lparam);
        if (message == Shell_Started_Message()) {
            Notify_Listener(platform::Broadcast::Shell_Started);
            return 0;
        }
        if (message == WM_CLOSE) {
            // The window itself stays, because it receives the timers and the broadcasts.
            Notify_Listener(platform::Broadcast::Close_Request);
            return 0;
        }
        if (Process_Message(message, wparam))
            return 0;
    } catch (...) {
        // Only an out-of-memory exception arrives here. It must not unwind the system's code that called
        // this procedure.
        return message == WM_QUERYENDSESSION ? TRUE : 0;
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

} // namespace

namespace win32 {

HWND Broadcast_Window() {
    if (broadcasts != nullptr)
        return broadcasts;
    constexpr wchar_t class_name[] = L"Vellatro_Broadcasts";
    Register_Class(class_name, Broadcast_Procedure, 0);
    // Make a top-level window, because other windows receive no broadcasts.
    broadcasts = CreateWindowExW(WS_EX_TOOLWINDOW, class_name, L"Vellatro", WS_POPUP, 0, 0, 0, 0, nullptr,
                                 nullptr, GetModuleHandleW(nullptr), nullptr);
    return broadcasts;
}

void Process_Deferred_Broadcasts() {
    for (const auto &[message, wparam] : std::exchange(deferred_broadcasts, {}))
        Process_Broadcast(message, wparam);
}

} // namespace win32

namespace platform {

void Listen_To_Broadcasts(Callback<bool(Broadcast)> listener) {
    static HWINEVENTHOOK front = nullptr;
    broadcast_listener = listener;
    if (!broadcast_listener || front != nullptr)
        return;
    win32::Broadcast_Window();
    front = SetWinEventHook(EVENT_SYSTEM_FOREGROUND, EVENT_SYSTEM_FOREGROUND, nullptr, On_Front_Changed, 0, 0,
                            WINEVENT_OUTOFCONTEXT | WINEVENT_SKIPOWNPROCESS);
}

void Explain_Refusal(const std::string &reason) {
    const auto destroy = win32::Look_Up<BOOL WINAPI(HWND)>(L"user32.dll", "ShutdownBlockReasonDestroy");
    const auto create =
        win32::Look_Up<BOOL WINAPI(HWND, const wchar_t *)>(L"user32.dll", "ShutdownBlockReasonCreate");
    if (destroy == nullptr || create == nullptr)
        return;
    destroy(win32::Broadcast_Window());
    if (!reason.empty())
        create(win32::Broadcast_Window(), win32::To_Wide(reason).c_str());
}

} // namespace platform

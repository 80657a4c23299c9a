// The message loop, its timers, the broadcasts of the system and the one-instance claim.
#include "platform/message_loop.h"

#include "win32/handles.h"
#include "win32/mirror.h"
#include "win32/wide_text.h"
#include "win32/window_class.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct Timer {
    platform::Timer_Id id;
    Callback<void()> tick;
};

std::vector<Timer> timers;
platform::Timer_Id last_timer = 0;
Callback<bool(platform::Broadcast)> broadcast_listener;
HWND broadcasts = nullptr;

/// What the system told while the mouse was taken, each thing once.
std::vector<std::pair<UINT, WPARAM>> unheard;

/// The listener's answer.
bool Tell(platform::Broadcast broadcast) noexcept {
    const auto now = broadcast_listener;
    return !now || now(broadcast);
}

/// Looks for a menu that can be seen, at the address in `found_address`. Returns whether to look further.
BOOL CALLBACK Find_Open_Menu(HWND window, LPARAM found_address) {
    constexpr ULONG_PTR menu_class = 32768;
    const bool found = GetClassLongPtrW(window, GCW_ATOM) == menu_class && IsWindowVisible(window);
    *reinterpret_cast<bool *>(found_address) = found;
    return found ? FALSE : TRUE;
}

/// Returns whether an open menu, or a window that is being moved, has the mouse. What comes by itself waits
/// then: a message box that it shows would get no click.
bool Mouse_Is_Taken() {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    if (!GetGUIThreadInfo(GetCurrentThreadId(), &state))
        return false;
    if ((state.flags & (GUI_POPUPMENUMODE | GUI_INMOVESIZE)) != 0)
        return true;
    // Alt alone sets this as well, and the one of the system menu, without any menu to be seen.
    if ((state.flags & GUI_INMENUMODE) == 0)
        return false;
    bool menu_open = false;
    EnumThreadWindows(GetCurrentThreadId(), Find_Open_Menu, reinterpret_cast<LPARAM>(&menu_open));
    return menu_open;
}

bool Concerns_Fonts(WPARAM setting) {
    return setting == SPI_SETNONCLIENTMETRICS || setting == SPI_SETFONTSMOOTHING ||
           setting == SPI_SETFONTSMOOTHINGTYPE;
}

/// Does what one of the system's broadcasts means to the program.
void Hear(UINT message, WPARAM wparam) {
    if (message == WM_SETTINGCHANGE && Concerns_Fonts(wparam)) {
        // Fonts are no other setting besides: of them all forms hear, which then lay themselves out once.
        win32::Check_Scale(true);
    } else if (message == WM_SETTINGCHANGE) {
        win32::Check_Scale(false);
        Tell(platform::Broadcast::Settings_Changed);
    } else if (message == WM_DISPLAYCHANGE) {
        win32::Check_Scale(false);
        Tell(platform::Broadcast::Display_Changed);
    } else if (message == WM_TIMECHANGE) {
        Tell(platform::Broadcast::Time_Changed);
    } else {
        Tell(platform::Broadcast::Colours_Changed);
    }
}

void Tick(platform::Timer_Id id) {
    // The windows inside the shell's may vanish without a message.
    win32::Find_Lost_Windows();
    if (Mouse_Is_Taken())
        return;
    for (const auto &[message, wparam] : std::exchange(unheard, {}))
        Hear(message, wparam);
    const auto timer =
        std::find_if(timers.begin(), timers.end(), [id](const Timer &t) { return t.id == id; });
    if (timer == timers.end())
        return;
    // A copy, because the tick may stop its timer.
    const auto tick = timer->tick;
    tick();
}

/// Returns whether a message was one of those that mean something to the program.
bool Heard(UINT message, WPARAM wparam) {
    switch (message) {
    case WM_TIMER:
        Tick(wparam);
        return true;
    case WM_SETTINGCHANGE:
    case WM_TIMECHANGE:
    case WM_DISPLAYCHANGE:
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
        if (!Mouse_Is_Taken())
            Hear(message, wparam);
        else if (const std::pair told(message, wparam); std::ranges::find(unheard, told) == unheard.end())
            unheard.push_back(told); // until the next tick
        return true;
    default:
        return false;
    }
}

LRESULT CALLBACK Broadcast_Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    try {
        // The end itself, WM_ENDSESSION, leaves no time for a question: whoever agrees has to be done here.
        if (message == WM_QUERYENDSESSION)
            return Tell(platform::Broadcast::Session_Ends) ? TRUE : FALSE;
        if (message == WM_ENDSESSION && wparam != FALSE)
            Tell(platform::Broadcast::Session_Over);
        if (message == WM_CLOSE) {
            // Not the window's end: the timers and the broadcasts live in it.
            Tell(platform::Broadcast::Close_Request);
            return 0;
        }
        if (Heard(message, wparam))
            return 0;
    } catch (...) {
        // Only want of memory comes here. The system's code above cannot pass an exception on.
        return message == WM_QUERYENDSESSION ? TRUE : 0;
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

/// The hidden window, made at its first use. It is top-level, for others hear no broadcasts.
HWND Broadcast_Window() {
    if (broadcasts != nullptr)
        return broadcasts;
    constexpr wchar_t class_name[] = L"Vellatro_Broadcasts";
    win32::Register_Class(class_name, Broadcast_Procedure, 0);
    broadcasts = CreateWindowExW(WS_EX_TOOLWINDOW, class_name, L"Vellatro", WS_POPUP, 0, 0, 0, 0, nullptr,
                                 nullptr, GetModuleHandleW(nullptr), nullptr);
    return broadcasts;
}

void Dispatch(MSG &message) {
    const HWND root = message.hwnd == nullptr ? nullptr : GetAncestor(message.hwnd, GA_ROOT);
    const platform::Form_Model *form = win32::Form_Of_Window(root);
    if (form != nullptr && form->kind == platform::Form_Kind::Dialog) {
        // Kept, because what it does may close the dialog.
        const std::shared_ptr<win32::Mirror> dialog = win32::Find_Mirror(*form);
        if (dialog->Take_First(message) || IsDialogMessageW(root, &message))
            return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

} // namespace

namespace platform {

void Run_Message_Loop() {
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        Dispatch(message);
}

void End_Message_Loop() {
    PostQuitMessage(0);
}

void Process_Waiting_Messages() {
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // The loop that is really to end has to see it too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Dispatch(message);
    }
}

void Paint_Waiting(const Form_Model &busy) {
    MSG message = {};
    // A window that fails to paint asks for it again at once.
    constexpr int most_paints = 200;
    for (int i = 0; i < most_paints && PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE); ++i)
        DispatchMessageW(&message);
    const HWND window = win32::Window_Of_Form(busy);
    if (window == nullptr)
        return;
    constexpr UINT ranges[][2] = {
        {WM_KEYFIRST, WM_KEYLAST}, {WM_MOUSEFIRST, WM_MOUSELAST}, {WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK}};
    for (const auto &range : ranges)
        while (PeekMessageW(&message, window, range[0], range[1], PM_REMOVE)) {
        }
}

void Wait_For_Messages(unsigned milliseconds) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds, QS_ALLINPUT);
}

Timer_Id Start_Timer(unsigned milliseconds, Callback<void()> tick) {
    const Timer_Id id = ++last_timer;
    timers.push_back({id, tick});
    if (SetTimer(Broadcast_Window(), id, milliseconds, nullptr) == 0) {
        timers.pop_back();
        return 0;
    }
    return id;
}

void Stop_Timer(Timer_Id id) {
    if (std::erase_if(timers, [id](const Timer &timer) { return timer.id == id; }) > 0)
        KillTimer(Broadcast_Window(), id);
}

void Listen_To_Broadcasts(Callback<bool(Broadcast)> listener) {
    broadcast_listener = listener;
    if (broadcast_listener)
        Broadcast_Window();
}

bool Claim_Single_Instance(const std::string &name) {
    static win32::Unique_Kernel_Handle claim;
    SetLastError(ERROR_SUCCESS);
    win32::Unique_Kernel_Handle mutex(CreateMutexW(nullptr, FALSE, win32::To_Wide(name).c_str()));
    const DWORD error = GetLastError();
    // Refused access means that it exists too, made by the user with other rights.
    if (error == ERROR_ALREADY_EXISTS || (!mutex && error == ERROR_ACCESS_DENIED))
        return false;
    claim = std::move(mutex);
    return true;
}

} // namespace platform

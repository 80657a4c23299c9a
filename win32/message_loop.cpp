#include "platform/message_loop.h"

#include "win32/broadcasts.h"
#include "win32/mirror.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {

struct Timer {
    platform::Timer_Id id;
    Callback<void()> tick;
};

std::vector<Timer> timers;
platform::Timer_Id last_timer = 0;

void Dispatch(MSG &message) {
    const HWND root = message.hwnd == nullptr ? nullptr : GetAncestor(message.hwnd, GA_ROOT);
    const platform::Form_Model *form = win32::Form_Of_Window(root);
    if (form != nullptr && form->kind == platform::Form_Kind::Dialog) {
        // Keep the dialog alive, because handling the message may close it.
        const std::shared_ptr<win32::Mirror> dialog = win32::Find_Mirror(*form);
        if (dialog->Preprocess_Message(message) || IsDialogMessageW(root, &message))
            return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

} // namespace

namespace win32 {

void Tick(UINT_PTR id) {
    // The program's windows inside the shell's window may vanish without a message.
    Report_Lost_Windows();
    if (In_Menu_Or_Move())
        return;
    Process_Deferred_Broadcasts();
    // The shell's window that holds the calendar may change its scale without telling its children.
    Check_Scale(false);
    const auto timer =
        std::find_if(timers.begin(), timers.end(), [id](const Timer &t) { return t.id == id; });
    if (timer == timers.end())
        return;
    // Call a copy, because the callback may stop its timer.
    const auto tick = timer->tick;
    tick();
}

} // namespace win32

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
            // The main loop must see the message too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Dispatch(message);
    }
}

void Paint_Waiting() {
    MSG message = {};
    std::optional<int> quit;
    const auto take = [&message, &quit](UINT first, UINT last) {
        while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE)) {
            if (message.message != WM_QUIT) // the system gives it in any range
                return true;
            quit = static_cast<int>(message.wParam);
        }
        return false;
    };
    // Limit the paints, because a window that fails to paint gets another paint message at once.
    constexpr int most_paints = 200;
    for (int i = 0; i < most_paints && take(WM_PAINT, WM_PAINT); ++i)
        DispatchMessageW(&message);
    constexpr UINT ranges[][2] = {
        {WM_KEYFIRST, WM_KEYLAST}, {WM_MOUSEFIRST, WM_MOUSELAST}, {WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK}};
    for (const auto &range : ranges)
        while (take(range[0], range[1])) {
        }
    if (quit) // the main loop must see it
        PostQuitMessage(*quit);
}

void Wait_For_Messages(unsigned milliseconds) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds, QS_ALLINPUT);
}

Timer_Id Start_Timer(unsigned milliseconds, Callback<void()> tick) {
    const Timer_Id id = ++last_timer;
    timers.push_back({id, tick});
    if (SetTimer(win32::Broadcast_Window(), id, milliseconds, nullptr) == 0) {
        timers.pop_back();
        return 0;
    }
    return id;
}

void Stop_Timer(Timer_Id id) {
    if (std::erase_if(timers, [id](const Timer &timer) { return timer.id == id; }) > 0)
        KillTimer(win32::Broadcast_Window(), id);
}

} // namespace platform

// Message boxes: platform/message_box.h over Win32.
#include "platform/message_box.h"

#include "base/cut_text.h"
#include "win32/modal.h"
#include "win32/wide_text.h"

#include <algorithm>

namespace platform {

namespace {

/// More than this fits on no screen; the system would push the buttons out of sight.
constexpr std::size_t Longest_Text = 1000;
constexpr std::ptrdiff_t Most_Lines = 30;
constexpr std::size_t Longest_Title = 200;

/// `text` as the box can show it: a zero would end it and becomes a blank; what is too long ends with dots.
std::wstring Displayable_Text(std::string_view text, std::size_t longest) {
    std::wstring wide = win32::To_Wide(text);
    std::replace(wide.begin(), wide.end(), L'\0', L' ');
    std::size_t end = std::min(wide.size(), longest);
    std::ptrdiff_t lines = 1;
    for (std::size_t i = 0; i < end; ++i) {
        if (wide[i] == L'\n' && ++lines > Most_Lines)
            end = i > 0 && wide[i - 1] == L'\r' ? i - 1 : i;
    }
    return end == wide.size() ? wide : wide.substr(0, Whole_Code_Points(wide, end)) + L"...";
}

/// A box that comes by itself finds the user in another program, and may not take the foreground from that:
/// it lies above all windows instead.
UINT Style_Of(Box_Icon icon, Box_Buttons buttons) {
    constexpr UINT icons[] = {0, MB_ICONINFORMATION, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONSTOP};
    constexpr UINT button_sets[] = {MB_OK, MB_YESNO, MB_YESNOCANCEL};
    return icons[static_cast<int>(icon)] | button_sets[static_cast<int>(buttons)] | MB_TASKMODAL |
           MB_SETFOREGROUND | (win32::In_System_Event ? MB_TOPMOST : 0U);
}

/// The window, else none where it is not the program's own: inside the shell's window the calendar shares the
/// shell's input, and the active window may be the shell's.
HWND Own_Window_Or_Null(HWND window) {
    return window != nullptr && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() ? window
                                                                                                  : nullptr;
}

/// The dialog that the user works in, else none. The calendar owns no box: it may live inside the shell's
/// window, which the box would then lock.
HWND Active_Dialog() {
    const HWND window = Own_Window_Or_Null(GetActiveWindow());
    if (window == nullptr || (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) != WS_CAPTION)
        return nullptr;
    return GetAncestor(window, GA_ROOT) == window ? window : nullptr;
}

/// Gives the keyboard back at the end of a scope to a window that had it, if there is one.
class Focus_Restorer {
public:
    explicit Focus_Restorer(HWND window) : window_(window) {}
    ~Focus_Restorer() {
        if (window_ == nullptr || !IsWindow(window_))
            return;
        SetForegroundWindow(window_);
        SetFocus(window_);
    }
    Focus_Restorer(const Focus_Restorer &) = delete;
    Focus_Restorer &operator=(const Focus_Restorer &) = delete;

private:
    HWND window_;
};

/// The system answers nothing when it has no memory for the box: then what changes least is the answer.
Box_Answer Answer_Of(int id, Box_Buttons buttons) {
    switch (id) {
    case IDYES:
        return Box_Answer::Yes;
    case IDNO:
        return Box_Answer::No;
    case IDCANCEL:
        return buttons == Box_Buttons::Yes_No_Cancel ? Box_Answer::Cancel : Box_Answer::Ok;
    default:
        break;
    }
    if (buttons == Box_Buttons::Yes_No)
        return Box_Answer::No;
    return buttons == Box_Buttons::Yes_No_Cancel ? Box_Answer::Cancel : Box_Answer::Ok;
}

} // namespace

Box_Answer Message_Box(std::string_view text, Box_Icon icon, Box_Buttons buttons, std::string_view title) {
    if (win32::Boxes_Suppressed)
        return Answer_Of(0, buttons);
    const std::wstring wide_text = Displayable_Text(text, Longest_Text);
    const std::wstring wide_title = Displayable_Text(title, Longest_Title);
    const HWND owner = Active_Dialog();
    // The system returns the keyboard to an owner alone.
    const Focus_Restorer focus(owner == nullptr ? Own_Window_Or_Null(GetFocus()) : nullptr);
    const win32::Modal_Scope modal(owner);
    return Answer_Of(MessageBoxW(owner, wide_text.c_str(), wide_title.c_str(), Style_Of(icon, buttons)),
                     buttons);
}

bool Box_Is_Open() {
    return win32::Open_Modal_Boxes > 0;
}

} // namespace platform

#include "platform/message_box.h"

#include "base/cut_text.h"
#include "win32/modal.h"
#include "win32/wide_text.h"

#include <algorithm>

namespace platform {

namespace {

/// The limits of the texts, in UTF-16 units and in lines. Longer texts fit on no screen, and the system would
/// push the buttons out of sight.
constexpr std::size_t Longest_Text = 1000;
constexpr std::ptrdiff_t Most_Lines = 30;
constexpr std::size_t Longest_Title = 200;

/// Returns `text` in a form that the box can show. Replaces NULs by spaces, because a NUL would end the text.
/// Cuts an overlong text and ends it with "...".
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

/// Returns the style of a message box. A box that a timer or a broadcast opens may appear while the user
/// works in another program. Such a box cannot take the foreground, so it stays above all windows instead.
UINT Style_Of(Box_Icon icon, Box_Buttons buttons) {
    constexpr UINT icons[] = {0, MB_ICONINFORMATION, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONSTOP};
    constexpr UINT button_sets[] = {MB_OK, MB_YESNO, MB_YESNOCANCEL};
    return icons[static_cast<int>(icon)] | button_sets[static_cast<int>(buttons)] | MB_TASKMODAL |
           MB_SETFOREGROUND | (win32::In_System_Event ? MB_TOPMOST : 0U);
}

/// Returns the window if it belongs to the program's thread, else null. Inside the shell's window the
/// calendar shares the shell's input, so the active window may be the shell's.
HWND Own_Window_Or_Null(HWND window) {
    return window != nullptr && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() ? window
                                                                                                  : nullptr;
}

/// Returns the dialog that the user is working in, null if there is none. The calendar never owns a box,
/// because the box would lock the shell's window if the calendar is inside it.
HWND Active_Dialog() {
    const HWND window = Own_Window_Or_Null(GetActiveWindow());
    if (window == nullptr || (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) != WS_CAPTION)
        return nullptr;
    return GetAncestor(window, GA_ROOT) == window ? window : nullptr;
}

/// Gives the focus back to a window at the end of a scope. Does nothing if the window is null or gone.
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

/// Returns the answer for the pressed button. Returns the answer that changes least if `id` is 0, because the
/// program suppressed the box or the system has no memory for it.
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
    // The system returns the focus only to an owner.
    const Focus_Restorer focus(owner == nullptr ? Own_Window_Or_Null(GetFocus()) : nullptr);
    const win32::Modal_Scope modal(owner);
    return Answer_Of(MessageBoxW(owner, wide_text.c_str(), wide_title.c_str(), Style_Of(icon, buttons)),
                     buttons);
}

bool Modal_Box_Is_Open() {
    return win32::Open_Modal_Boxes > 0;
}

} // namespace platform

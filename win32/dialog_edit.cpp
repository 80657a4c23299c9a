// The ways of the native text box, by a window procedure before the system's own.
#include "win32/dialog_edit.h"

#include "platform/line_breaks.h"

#include <algorithm>
#include <string_view>

namespace win32 {

namespace {

/// The system's procedure of edit controls, the same for all of them.
WNDPROC edit_procedure = nullptr;

/// The clipboard for the length of a scope.
class Clipboard {
public:
    explicit Clipboard(HWND window) : open_(OpenClipboard(window) != FALSE) {}
    ~Clipboard() {
        if (open_)
            CloseClipboard();
    }
    Clipboard(const Clipboard &) = delete;
    Clipboard &operator=(const Clipboard &) = delete;

    std::wstring Text() const {
        const HANDLE data = open_ ? GetClipboardData(CF_UNICODETEXT) : nullptr;
        const auto *text = data == nullptr ? nullptr : static_cast<const wchar_t *>(GlobalLock(data));
        if (text == nullptr)
            return {};
        const std::wstring_view whole(text, GlobalSize(data) / sizeof(wchar_t));
        std::wstring copy(whole.substr(0, whole.find(L'\0')));
        GlobalUnlock(data);
        return copy;
    }

private:
    bool open_;
};

/// How many more characters fit in the place of the selection.
std::size_t Room(HWND edit) {
    DWORD begin = 0;
    DWORD end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    const auto limit = static_cast<std::size_t>(SendMessageW(edit, EM_GETLIMITTEXT, 0, 0));
    const auto kept = static_cast<std::size_t>(GetWindowTextLengthW(edit)) - (end - begin);
    return limit > kept ? limit - kept : 0;
}

void Paste(HWND edit) {
    std::wstring text = Without_Breaks(Clipboard(edit).Text());
    const std::size_t room = Room(edit);
    if (text.size() > room) {
        MessageBeep(MB_OK);
        const bool splits = (text[room] & 0xFC00) == 0xDC00;
        text.resize(room - (splits && room > 0 ? 1 : 0));
    }
    if (!text.empty())
        SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

/// Does what differs from the system's edit control. Returns whether that was all.
bool Handle(HWND edit, UINT message, WPARAM wparam, LRESULT &result) {
    constexpr WPARAM select_all = 1; // what Ctrl+A types
    switch (message) {
    case WM_GETDLGCODE:
        // Not all keys, as a control of several lines asks for: Enter, Esc and Tab are the dialog's.
        result = DLGC_WANTCHARS | DLGC_WANTARROWS | DLGC_HASSETSEL;
        return true;
    case WM_PASTE:
        // What puts the text in asks nobody whether it may.
        if ((GetWindowLongW(edit, GWL_STYLE) & ES_READONLY) == 0)
            Paste(edit);
        return true;
    case WM_CHAR:
        if (wparam == select_all)
            SendMessageW(edit, EM_SETSEL, 0, -1);
        return wparam == select_all || wparam == L'\r' || wparam == L'\n';
    default:
        return false;
    }
}

LRESULT CALLBACK Procedure(HWND edit, UINT message, WPARAM wparam, LPARAM lparam) {
    LRESULT result = 0;
    try {
        if (Handle(edit, message, wparam, result))
            return result;
    } catch (...) {
        // Want of memory for a pasted text: nothing is pasted.
        MessageBeep(MB_OK);
        return 0;
    }
    return CallWindowProcW(edit_procedure, edit, message, wparam, lparam);
}

} // namespace

void Make_Text_Box(HWND edit) {
    const LONG_PTR before = SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    edit_procedure = reinterpret_cast<WNDPROC>(before);
}

std::wstring Without_Breaks(std::wstring text) {
    std::replace(text.begin(), text.end(), L'\0', L' ');
    return platform::Without_Line_Breaks(std::move(text));
}

std::wstring Window_Text(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(std::max(length, 0)));
    return text;
}

} // namespace win32

// The behaviour of text boxes: a window procedure that runs before the edit control's own.
#include "win32/dialog_edit.h"

#include "base/cut_text.h"

#include <algorithm>
#include <string_view>

namespace win32 {

namespace {

/// Keeps the clipboard open for a scope.
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

/// The selected characters: the index of the first, and one past the index of the last.
struct Selection {
    DWORD begin = 0;
    DWORD end = 0;
};

Selection Selection_Of(HWND edit) {
    Selection selection;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&selection.begin),
                 reinterpret_cast<LPARAM>(&selection.end));
    return selection;
}

/// Returns how many characters fit in place of the selection.
std::size_t Remaining_Length(HWND edit) {
    const auto [begin, end] = Selection_Of(edit);
    const auto limit = static_cast<std::size_t>(SendMessageW(edit, EM_GETLIMITTEXT, 0, 0));
    const auto kept = static_cast<std::size_t>(GetWindowTextLengthW(edit)) - (end - begin);
    return limit > kept ? limit - kept : 0;
}

/// Replaces the selection with `text`. Appends a long text in pieces, because the system breaks a text into
/// lines in a time that grows with the square of the text's length. The user can undo only the last piece.
void Replace_Selection(HWND edit, std::wstring_view text, bool can_undo) {
    const auto length = static_cast<DWORD>(GetWindowTextLengthW(edit));
    const std::size_t most = Selection_Of(edit).end == length ? 2048 : text.size();
    while (!text.empty()) {
        const std::wstring piece(text.substr(0, Whole_Code_Points(text, most)));
        SendMessageW(edit, EM_REPLACESEL, can_undo ? TRUE : FALSE, reinterpret_cast<LPARAM>(piece.c_str()));
        text.remove_prefix(piece.size());
    }
}

void Paste(HWND edit) {
    std::wstring text = Without_Breaks(Clipboard(edit).Text());
    const std::size_t room = Remaining_Length(edit);
    if (text.size() > room) {
        MessageBeep(MB_OK);
        text.resize(Whole_Code_Points(text, room));
    }
    Replace_Selection(edit, text, true);
}

bool Has_Style(HWND edit, DWORD style) {
    return (static_cast<DWORD>(GetWindowLongW(edit, GWL_STYLE)) & style) != 0;
}

/// Deletes the selection or, without one, the word before the caret and the blanks after that word.
void Delete_Word(HWND edit) {
    auto [begin, end] = Selection_Of(edit);
    if (begin == end) {
        const std::wstring text = Window_Text(edit).substr(0, end);
        const std::size_t last = text.find_last_not_of(L" \t");
        const std::size_t blank = last == std::wstring::npos ? last : text.find_last_of(L" \t", last);
        begin = blank == std::wstring::npos ? 0 : static_cast<DWORD>(blank) + 1;
        SendMessageW(edit, EM_SETSEL, begin, static_cast<LPARAM>(end));
    }
    if (begin != end)
        SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
}

/// Handles the keys that a text box treats differently from the system's edit control. Returns whether the
/// message needs no further handling.
bool Handle_Key(HWND edit, UINT message, WPARAM wparam) {
    constexpr WPARAM select_all = 1;     // the character of Ctrl+A
    constexpr WPARAM delete_word = 0x7F; // the character of Ctrl+Backspace
    if (message == WM_KEYDOWN) {
        const bool ctrl_backspace =
            wparam == VK_BACK && GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
        if (ctrl_backspace && !Has_Style(edit, ES_READONLY))
            Delete_Word(edit);
        return ctrl_backspace;
    }
    if (wparam == select_all)
        SendMessageW(edit, EM_SETSEL, 0, -1);
    // A single-line box must not swallow Enter, because Enter closes the list of a combo box.
    const bool breaks_line = wparam == L'\r' || wparam == L'\n';
    return wparam == select_all || wparam == delete_word || (breaks_line && Has_Style(edit, ES_MULTILINE));
}

/// Handles the messages that a text box treats differently from the system's edit control. Returns whether
/// the message needs no further handling.
bool Handle(HWND edit, UINT message, WPARAM wparam, LRESULT &result) {
    if (message == WM_KEYDOWN || message == WM_CHAR)
        return Handle_Key(edit, message, wparam);
    // Single-line boxes, such as those in combo boxes, leave the rest to the system.
    if (!Has_Style(edit, ES_MULTILINE))
        return false;
    switch (message) {
    case WM_GETDLGCODE:
        // A multi-line control would ask for all keys, but Enter, Esc and Tab belong to the dialog.
        result = DLGC_WANTCHARS | DLGC_WANTARROWS | DLGC_HASSETSEL;
        return true;
    case WM_PASTE:
        // EM_REPLACESEL ignores the read-only style.
        if (!Has_Style(edit, ES_READONLY))
            Paste(edit);
        return true;
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
        // Out of memory: drop the message, usually a paste.
        MessageBeep(MB_OK);
        return 0;
    }
    const auto usual = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(edit, GWLP_USERDATA));
    return CallWindowProcW(usual, edit, message, wparam, lparam);
}

} // namespace

void Make_Text_Box(HWND edit) {
    SetWindowLongPtrW(edit, GWLP_USERDATA, GetWindowLongPtrW(edit, GWLP_WNDPROC));
    SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
}

std::wstring Without_Breaks(std::wstring text) {
    std::replace(text.begin(), text.end(), L'\0', L' ');
    return Without_Line_Breaks(std::move(text));
}

void Set_Box_Text(HWND edit, const std::wstring &text) {
    SetWindowTextW(edit, L"");
    Replace_Selection(edit, text, false);
    SendMessageW(edit, EM_SETSEL, 0, 0);
    SendMessageW(edit, EM_SCROLLCARET, 0, 0);
}

std::wstring Window_Text(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(std::max(length, 0)));
    return text;
}

} // namespace win32

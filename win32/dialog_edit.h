// The native text boxes of dialogs, those in combo boxes too. They hold no line break.
#pragma once

#include "win32/handles.h"

#include <string>

namespace win32 {

/// Gives a native edit control the ways of a text box: Ctrl+Backspace deletes a word, Ctrl+A selects all; and
/// one of several lines leaves Enter, Esc and Tab to the dialog, and takes a blank for each line break of a
/// pasted text.
void Make_Text_Box(HWND edit);

/// Gives an edit control another text, with the caret before it.
void Set_Box_Text(HWND edit, const std::wstring &text);

/// `text` with a blank for each line break and each zero.
std::wstring Without_Breaks(std::wstring text);

/// The whole text of a window.
std::wstring Window_Text(HWND window);

} // namespace win32

// The native text boxes of dialogs, including those of combo boxes. They hold no line breaks.
#pragma once

#include "win32/handles.h"

#include <string>

namespace win32 {

/// Gives a native edit control the behaviour of a text box: Ctrl+Backspace deletes a word, and Ctrl+A
/// selects all. A multi-line control also leaves Enter, Esc and Tab to the dialog, and replaces pasted line
/// breaks with spaces.
void Make_Text_Box(HWND edit);

/// Sets the text of an edit control and puts the caret at the beginning.
void Set_Box_Text(HWND edit, const std::wstring &text);

/// Returns `text` with a space for each line break and each NUL.
std::wstring Without_Breaks(std::wstring text);

/// Returns the whole text of a window.
std::wstring Window_Text(HWND window);

} // namespace win32

// The native text box of dialogs: several wrapped lines that hold no line break.
#pragma once

#include "win32/handles.h"

#include <string>

namespace win32 {

/// Gives a native multi-line edit control the ways of a text box: Enter, Esc and Tab belong to the dialog,
/// and line breaks of a pasted text become blanks.
void Make_Text_Box(HWND edit);

/// `text` with a blank for each line break and each zero.
std::wstring Without_Breaks(std::wstring text);

/// The whole text of a window.
std::wstring Window_Text(HWND window);

} // namespace win32

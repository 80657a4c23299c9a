// Making the bare native dialog windows, before their controls.
#pragma once

#include "win32/handles.h"

#include <string>

namespace win32 {

/// Makes a hidden dialog window without controls, of a class of its own; null when the system refuses.
/// `procedure` ends in DefDlgProcW, which keeps the focus and the default button as users know it.
HWND Make_Dialog(const std::wstring &class_name, WNDPROC procedure);

} // namespace win32

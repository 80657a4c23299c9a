// Native dialog windows without their controls.
#pragma once

#include "win32/handles.h"

#include <string>

namespace win32 {

/// Registers the window class `class_name` and creates a hidden dialog window of that class, without
/// controls. Returns null on failure. `procedure` must end in DefDlgProcW, which handles the focus and the
/// default button.
HWND Make_Dialog(const std::wstring &class_name, WNDPROC procedure);

} // namespace win32

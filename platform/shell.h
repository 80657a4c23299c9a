// The shell: finding its windows of the desktop, the colours of their icon labels, putting a form's window
// into them, and the way to the user's browser.
#pragma once

#include "base/colour.h"
#include "platform/forms.h"

#include <cstdint>
#include <optional>

namespace platform {

/// A window of the shell; 0: none. It belongs to another process and may be gone at any moment.
using Shell_Window = std::uintptr_t;

/// The shell's desktop window, 0 under another shell.
Shell_Window Find_Desktop_Window();

/// The view of files and folders in the desktop window, and the list of icons in the view.
Shell_Window Find_Shell_View(Shell_Window desktop);
Shell_Window Find_Icon_List(Shell_Window view);

/// How the icon list draws its labels.
struct Label_Colours {
    Colour background; ///< -1: none
    Colour text;
    friend bool operator==(const Label_Colours &, const Label_Colours &) = default;
};

/// Asks the icon list. Nothing when the shell does not answer a question within `patience` milliseconds,
/// which it is not given when the system holds it for hung.
std::optional<Label_Colours> Icon_Label_Colours(Shell_Window list, unsigned patience);

/// Makes the form's window a child of the desktop window, above its other children, at its place on the
/// screen; then looks the dots per inch up again. When the desktop window has gone in the meantime, the
/// form's window stays where it was. Does nothing without a native window.
void Attach_To_Desktop(const Form_Model &model, Shell_Window desktop);

/// Opens a page of the web in the user's browser. A failure is silent.
void Open_Web_Page(const char *address);

} // namespace platform

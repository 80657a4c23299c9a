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

/// The view of files and folders: in the desktop window, or in a window that the shell lays over that one.
Shell_Window Find_Shell_View(Shell_Window desktop);
/// The window that the view is in, 0 when it is gone.
Shell_Window Holder_Of(Shell_Window view);
/// The list of icons in the view.
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

/// Makes the form's window a child of the view's holder, above its other children, at its place on the
/// screen; then looks the dots per inch up again. Returns whether it is inside: not when the holder has gone
/// in the meantime, which leaves the form's window where it was, and not without a native window.
bool Attach_To_Desktop(const Form_Model &model, Shell_Window holder);

/// Keeps a form that is inside the view's holder to be seen: above the view, and with a surface of its own as
/// long as the system shows no other children of the holder.
void Keep_Over_View(const Form_Model &model, Shell_Window view);

/// Opens a page of the web in the user's browser. A failure is silent.
void Open_Web_Page(const char *address);

} // namespace platform

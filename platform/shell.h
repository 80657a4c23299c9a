// The shell: its desktop windows, the colours of the icon labels, attaching a form to the desktop, and
// opening web pages.
#pragma once

#include "base/colour.h"

#include <cstdint>
#include <optional>

namespace platform {

struct Form_Model;

/// A window of the shell, 0: none. It belongs to another process and may vanish at any moment.
using Shell_Window = std::uintptr_t;

/// Returns the shell's desktop window, 0 under another shell.
Shell_Window Find_Desktop_Window();

/// The desktop's icon view with its list of icons. Its holder is the desktop window or a window that covers
/// the desktop window.
struct Icon_View {
    Shell_Window holder;
    Shell_Window view;
    Shell_Window list;
};

/// Returns the desktop's icon view, or nullopt if one of its windows is missing.
std::optional<Icon_View> Find_Icon_View(Shell_Window desktop);

/// The colours of the icon list's labels.
struct Label_Colours {
    Colour background; ///< -1: none
    Colour text;
    friend bool operator==(const Label_Colours &, const Label_Colours &) = default;
};

/// Returns the colours of the icon list's labels. Asks the shell for each colour, and returns nothing if an
/// answer takes longer than `patience` milliseconds. Does not wait if the system considers the shell hung.
std::optional<Label_Colours> Icon_Label_Colours(Shell_Window list, unsigned patience);

/// Makes the form's window the topmost child of the view's holder, at the form's place on the screen. Then
/// looks up the dots per inch again. If the form has no native window or the holder is gone, leaves the
/// window where it is and returns false.
bool Attach_To_Desktop(const Form_Model &model, Shell_Window holder);

/// Keeps a form in the view's holder visible: raises its window above the view, and gives it a surface of
/// its own if the holder has none, because the system then shows only children with a surface.
void Keep_Over_View(const Form_Model &model, Shell_Window view);

/// Opens a web page in the user's browser. Failures are silent.
void Open_Web_Page(const char *address);

} // namespace platform

// Filling the native lists: combo boxes, list boxes and tab strips.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

namespace win32 {

/// Puts the control's items into its native window. What a list box showed first stays where it is.
void Fill_List(HWND window, const platform::Control_State &control);

/// Makes room for the widest item: a list box can be scrolled that far, a combo box opens a list that wide.
/// After a change of the items, the font or the dots per inch.
void Fit_Widest_Item(HWND window, const platform::Control_State &control);

/// Puts a combo box into the middle of its place, which is `pixels` high, with a list that shows all its
/// items, or twelve.
void Set_Combo_Heights(HWND combo, int pixels, const platform::Control_State &control);

/// Selects an item, -1: none. Nothing is told of it.
void Select_Item(HWND window, const platform::Control_State &control, int item);

/// The selected item, -1: none.
int Selected_Item(HWND window, const platform::Control_State &control);

} // namespace win32

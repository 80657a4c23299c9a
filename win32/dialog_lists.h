// The items of the native lists: combo boxes, list boxes and tab strips.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

namespace win32 {

/// Fills the native window with the control's items. A list box keeps its scroll position.
void Fill_List(HWND window, const platform::Control_State &control);

/// Makes room for the widest item: sets the horizontal scroll range of a list box, or the width of a combo
/// box's open list. Call it after a change of the items, the font or the dots per inch.
void Fit_Widest_Item(HWND window, const platform::Control_State &control);

/// Sets the heights of a combo box and of its open list. Centres the box vertically in its place, which is
/// `pixels` high. The open list shows up to twelve items at once.
void Set_Combo_Heights(HWND combo, int pixels, const platform::Control_State &control);

/// Selects an item, -1: none. Sends no event.
void Select_Item(HWND window, const platform::Control_State &control, int item);

/// Returns the selected item, -1: none.
int Selected_Item(HWND window, const platform::Control_State &control);

} // namespace win32

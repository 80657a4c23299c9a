// The visible region of a form on the desktop.
#pragma once

#include "toolkit/form.h"

/// Clips a form's window to its visible controls, so that the wallpaper shows between them.
void Clip_To_Controls(Form &form);

// Paints a form of the kind Painted: its background, then its visible labels in control order.
#pragma once

#include "platform/forms.h"

#include <functional>

/// Paints the visible controls of the form that lie in `clip` (twips on the form), and no background.
void Paint_Controls(const platform::Form_Model &model, platform::Canvas &canvas, const platform::Rect &clip);

/// Paints what of the form lies in `clip` (twips on the form).
void Paint_Form(const platform::Form_Model &model, platform::Canvas &canvas, const platform::Rect &clip);

/// Makes a control of a dialog paint itself: as a painted form paints it, and what `more` adds. Both must
/// live as long as the control.
void Paint_Itself(platform::Control_State &control, std::function<void(platform::Canvas &)> more);

// The painting of painted forms, and of dialog controls that paint themselves.
#pragma once

#include "platform/forms.h"

/// Paints the form's visible controls in `clip` (twips on the form), in control order, but not the form's
/// background.
void Paint_Controls(const platform::Form_Model &model, platform::Canvas &canvas, const Rect &clip);

/// Paints the form's background and then its visible controls in `clip` (twips on the form).
void Paint_Form(const platform::Form_Model &model, platform::Canvas &canvas, const Rect &clip);

/// Paints a self-painting control of a dialog as it would look in a painted form, then calls `paint_on_top`.
/// `clip` is in twips on the control. Ignores exceptions.
void Paint_Single_Control(
    const platform::Control_State &control, platform::Canvas &canvas, const Rect &clip,
    Callback_Ref<void(platform::Canvas &)> paint_on_top = [](platform::Canvas &) {}) noexcept;

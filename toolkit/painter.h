// Painting of painted forms and of controls that paint themselves.
#pragma once

#include "platform/forms.h"

/// Paints the visible controls of the form in `clip` (twips on the form), without a background.
void Paint_Controls(const platform::Form_Model &model, platform::Canvas &canvas, const Rect &clip);

/// Paints the form's background and its visible controls, in control order, in `clip` (twips on the form).
void Paint_Form(const platform::Form_Model &model, platform::Canvas &canvas, const Rect &clip);

/// Paints a self-painting control of a dialog as in a painted form, then calls `more`.
void Paint_Itself(
    const platform::Control_State &control, platform::Canvas &canvas, const Rect &clip,
    Callback_Ref<void(platform::Canvas &)> more = [](platform::Canvas &) {}) noexcept;

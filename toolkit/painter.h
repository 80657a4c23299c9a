// Paints a form of the kind Painted: its background, then its visible labels in control order.
#pragma once

#include "platform/forms.h"

/// Paints the visible controls of the form that lie in `clip` (twips on the form), and no background.
void Paint_Controls(const platform::Form_Model &model, platform::Canvas &canvas, const Rect &clip);

/// Paints what of the form lies in `clip` (twips on the form).
void Paint_Form(const platform::Form_Model &model, platform::Canvas &canvas, const Rect &clip);

/// Paints a control of a dialog that paints itself: as a painted form paints it, and what `more` adds.
void Paint_Itself(
    const platform::Control_State &control, platform::Canvas &canvas, const Rect &clip,
    Callback_Ref<void(platform::Canvas &)> more = [](platform::Canvas &) {}) noexcept;

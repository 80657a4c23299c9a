// The text that floats above a slider's thumb while the user moves it.
#pragma once

#include "win32/handles.h"

#include <string>

namespace win32 {

class Slider_Tip {
public:
    Slider_Tip() = default;
    Slider_Tip(const Slider_Tip &) = delete;
    Slider_Tip &operator=(const Slider_Tip &) = delete;
    ~Slider_Tip() { Hide(); }

    /// Shows the text above the slider's thumb, and moves a visible tip there. Hides the tip if the text is
    /// empty.
    void Show(HWND slider, std::wstring text);
    void Hide();
    /// Returns whether the tip floats over this slider.
    bool Is_Over(HWND slider) const { return window_ != nullptr && slider_ == slider; }

private:
    HWND window_ = nullptr; ///< created for each movement of the thumb
    HWND slider_ = nullptr;
    std::wstring text_;
};

} // namespace win32

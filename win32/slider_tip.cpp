// Moves a tracking tooltip with the thumb, because the slider's own tooltip would show the slider's number.
#include "win32/slider_tip.h"

#include <commctrl.h>

#include <utility>

namespace win32 {

void Slider_Tip::Show(HWND slider, std::wstring text) {
    if (text.empty() || slider_ != slider)
        Hide();
    if (text.empty())
        return;
    text_ = std::move(text);
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_TRACK | TTF_ABSOLUTE;
    tool.hwnd = GetParent(slider);
    tool.uId = reinterpret_cast<UINT_PTR>(slider);
    tool.lpszText = text_.data();
    const auto pointer = reinterpret_cast<LPARAM>(&tool);
    if (window_ == nullptr || !IsWindow(window_)) {
        window_ =
            CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            0, 0, 0, 0, tool.hwnd, nullptr, GetModuleHandleW(nullptr), nullptr);
        slider_ = slider;
        SendMessageW(window_, TTM_ADDTOOLW, 0, pointer);
    } else {
        SendMessageW(window_, TTM_UPDATETIPTEXTW, 0, pointer);
    }
    RECT thumb = {};
    SendMessageW(slider, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
    MapWindowPoints(slider, nullptr, reinterpret_cast<POINT *>(&thumb), 2);
    // Activate the tip first, because it gets its size only when it appears.
    SendMessageW(window_, TTM_TRACKACTIVATE, TRUE, pointer);
    RECT tip = {};
    GetWindowRect(window_, &tip);
    const LONG left = (thumb.left + thumb.right - (tip.right - tip.left)) / 2;
    const LONG top = thumb.top - (tip.bottom - tip.top) - (thumb.bottom - thumb.top) / 4;
    SendMessageW(window_, TTM_TRACKPOSITION, 0, MAKELPARAM(left, top));
}

void Slider_Tip::Hide() {
    if (window_ != nullptr && IsWindow(window_))
        DestroyWindow(window_);
    window_ = nullptr;
    slider_ = nullptr;
}

} // namespace win32

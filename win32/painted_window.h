// The native window of a painted form: borderless, shaped by a region, painted from a buffer.
#pragma once

#include "win32/accessible.h"
#include "win32/mirror.h"
#include "win32/mouse_input.h"
#include "win32/tooltips.h"

#include <vector>

namespace win32 {

class Painted_Window : public Mirror {
public:
    using Mirror::Mirror;

    void Create() override;
    void Control_Changed(const platform::Control_State &control, platform::Aspect aspect,
                         const Rect &before) override;
    void Clip(const std::vector<Rect> &rects) override;
    void Shape(const std::vector<Point> &corners) override;
    void Bring_To_Front() override;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void Window_Gone() override;
    /// Handles mouse and keyboard messages. Returns whether it handled `message`, and sets `result` if the
    /// result is not 0.
    bool Handle_Input(UINT message, WPARAM wparam, LPARAM lparam, LRESULT &result);
    /// Handles the messages that the program posts to the window. Returns whether `message` was one of them.
    bool Handle_Posted(UINT message, WPARAM wparam);
    bool Handle_Mouse(UINT message, WPARAM wparam, LPARAM lparam);
    bool Handle_Key(UINT message, WPARAM wparam, LPARAM lparam);

    void Paint_On(HDC target, const RECT &area);
    void Update_Bounds() override;
    void Scale_Changed() override;
    void Set_Region();
    void Show_Or_Hide() override;
    void Own_Aspect_Changed(platform::Aspect aspect) override;
    void Set_Pointer() const;
    bool Floats() const { return Model()->kind == platform::Form_Kind::Floating; }
    void Invalidate_Whole();
    void Invalidate(const Rect &bounds) const;
    /// Schedules an update of the tooltips and of the announcements to assistive technology.
    void Texts_Changed();

    Tooltips tooltips_;
    Announcements announcements_;
    bool texts_dirty_ = false;
    bool whole_invalid_ = false; ///< the whole window waits for WM_PAINT
    bool has_clip_ = false;
    std::vector<Rect> clip_;
    std::vector<RECT> region_; ///< the rectangles of the window's region, in pixels
    std::vector<Point> shape_;
    Mouse_Input mouse_;
};

/// Messages that the program posts to painted windows.
constexpr UINT Update_Texts_Message = WM_APP + 1;
constexpr UINT Default_Action_Message = WM_APP + 2; ///< wparam: the control's index

} // namespace win32

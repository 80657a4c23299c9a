// The native window of a dialog: title bar, close box, and a native control for each control of the form.
#pragma once

#include "win32/mirror.h"

#include <vector>

namespace win32 {

class Dialog_Window : public Mirror {
public:
    using Mirror::Mirror;

    void Create() override;
    void Control_Changed(const platform::Control_State &control, platform::Aspect aspect,
                         const platform::Rect &before) override;
    void Bring_To_Front() override;
    void Scale_Changed() override;

private:
    /// The native side of one control.
    struct Native {
        HWND window = nullptr;
        Unique_Font font;
        Unique_Brush brush; ///< of a background colour of its own
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void Command(int id, int code);
    void Cancel();
    void Click(const platform::Control_State &control);
    void Text_Edited(const platform::Control_State &control);
    LRESULT Colour_Control(HDC dc, HWND window, LRESULT usual);

    void Make_Control(const platform::Control_State &control);
    void Look_Changed(const platform::Control_State &control);
    void Set_Font(const platform::Control_State &control);
    void Set_Caption(const platform::Control_State &control);
    void Place_Control(const platform::Control_State &control);
    void Enable_Control(const platform::Control_State &control);
    void Place() override;
    void Show_Or_Hide() override;
    void Own_Aspect_Changed(platform::Aspect aspect) override;
    void Focus();
    HWND Control_Window(int index) const;

    std::vector<Native> natives_;
    platform::Rect placed_; ///< the form's bounds when the window was placed last
    bool is_placed_ = false;
    bool updating_ = false; ///< the program changes a text, which is no user's doing
};

} // namespace win32

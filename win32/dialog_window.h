// The native window of a dialog: title bar, close box, and a native control for each control of the form.
#pragma once

#include "win32/mirror.h"
#include "win32/painted_child.h"
#include "win32/slider_tip.h"
#include "win32/tooltips.h"

#include <memory>
#include <vector>

namespace win32 {

class Dialog_Window : public Mirror {
public:
    using Mirror::Mirror;

    void Create() override;
    void Control_Changed(const platform::Control_State &control, platform::Aspect aspect,
                         const Rect &before) override;
    void Bring_To_Front() override;
    bool Preprocess_Message(const MSG &message) override;

private:
    using Control_State = platform::Control_State;

    /// The native side of one control. A frame without a caption has no window, and the controls in a frame
    /// have none until the frame first appears.
    struct Native {
        HWND window = nullptr;
        Unique_Brush brush; ///< the brush of the control's own background colour
        std::unique_ptr<Painted_Child> painted;
        int settled_value = 0; ///< a slider's value when it last came to rest
    };

    /// A native font, shared by all controls that use it.
    struct Shared_Font {
        platform::Font font;
        Unique_Font native;
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    bool Answer_Pointer(int part, UINT mouse_message);
    void Window_Gone() override;

    // Creating the controls (dialog_make.cpp).
    bool Make_Missing_Controls();
    bool Make_Control(const Control_State &control);
    void Put_Lowest(const Control_State &control);
    HWND Make_Native(const Control_State &control);
    DWORD Group_Style(const Control_State &control) const;
    void Raise_Over_Painted(const Control_State &control);

    // Updating the controls (dialog_controls.cpp).
    void Look_Changed(const Control_State &control);
    void Set_Font(const Control_State &control);
    HFONT Find_Font(const platform::Font &font);
    void Set_Caption(const Control_State &control);
    Rect Pixels_Of(const Control_State &control) const;
    void Place_Control(const Control_State &control);
    void Place_Children(const Control_State &changed, const Rect &before);
    void Redraw(const Rect &place);
    void Fill(const Control_State &control);
    void Show_Choice(const Control_State &control);
    void Show_Check(const Control_State &control);
    void Set_Group_Stop(int container);
    void Update_Children(const Control_State &changed);
    void Release_Focus(const Control_State &changed);
    void Update_Tooltips();
    bool Contains(const Control_State &holder, const Control_State &control) const;

    // Handling the user's actions (dialog_events.cpp).
    void Handle_Command(int id, int code);
    void Cancel();
    void Send_Event(const Control_State &control, platform::Input_Kind kind, int selected = -1);
    void Send_Event(const Control_State &control, platform::Input_Event event);
    void Click(const Control_State &control, int key = 0);
    void Text_Edited(const Control_State &control);
    void List_Command(const Control_State &control, int code);
    void Combo_Command(const Control_State &control, int code);
    void Combo_Closed(const Control_State &control);
    void Slider_Moved(const Control_State &control, int code);
    bool Handle_Notify(NMHDR &notice);
    bool Turn_Page(int step);

    // The background of the tab page, which may differ from the dialog's (dialog_background.cpp).
    void Find_Page_Colour();
    RECT Page_Of(const Control_State &tab_strip) const;
    bool On_Page(const Control_State &control) const;
    bool Erase(HDC dc);
    LRESULT Colour_Control(UINT message, HDC dc, HWND window, LRESULT usual);
    void Colours_Changed(UINT message, WPARAM wparam, LPARAM lparam);

    void Update_Bounds() override;
    POINT Corner_On_Screen() const;
    void Send_Window_Moved();
    void Handle_Scale_Message(int dots, const RECT *place);
    void Scale_Changed() override;
    void Show_Or_Hide() override;
    void Own_Aspect_Changed(platform::Aspect aspect) override;
    void Focus();
    HWND Control_Window(int index) const;
    /// Returns the control with this native window, null for other windows.
    const Control_State *Control_Of(HWND window) const;
    const Control_State *Tab_Strip() const;

    std::vector<Native> natives_;
    std::vector<Shared_Font> fonts_;
    Tooltips tooltips_;
    Slider_Tip slider_tip_;
    COLORREF page_colour_ = 0;
    Unique_Brush page_brush_;
    Point placed_; ///< the place last reported to the form, in twips on the screen
    bool is_placed_ = false;
    bool updating_ = false; ///< the program is changing a control, so its notifications are not user actions
};

/// The native identifier of the first control. Each control adds its index. Some lower identifiers have a
/// meaning for the system, such as IDCANCEL.
constexpr int First_Control_Id = 100;

} // namespace win32

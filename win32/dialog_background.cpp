// The background colours of the native controls in dialogs. The system may give the body of a tab strip
// another colour than the dialog. Controls on the body take the body's colour.
#include "win32/canvas.h"
#include "win32/dialog_window.h"
#include "win32/units.h"

#include <commctrl.h>

namespace win32 {

using platform::Control_Kind;
using platform::Control_State;

namespace {

constexpr Colour usual_fore_colour = System_Colour(18);
constexpr Colour usual_back_colour = System_Colour(15);

/// Returns whether a control of this kind shows the background behind the control.
bool Shows_Background(const Control_State &control) {
    switch (control.kind) {
    case Control_Kind::Text_Box:
    case Control_Kind::Combo_Box:
    case Control_Kind::List_Box:
    case Control_Kind::Tab_Strip:
    case Control_Kind::Progress_Bar:
        return false;
    default:
        return true;
    }
}

} // namespace

RECT Dialog_Window::Page_Of(const Control_State &tab_strip) const {
    RECT page = To_Pixels(platform::Place_On_Form(*Model(), tab_strip));
    SendMessageW(Control_Window(tab_strip.index), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
    return page;
}

void Dialog_Window::Find_Page_Colour() {
    page_colour_ = GetSysColor(COLOR_BTNFACE);
    page_brush_.reset();
    const Control_State *tabs = Tab_Strip();
    if (tabs == nullptr)
        return;
    // Let the tab strip paint itself at an offset, so that only the middle of its body lands on the
    // one-pixel bitmap.
    const RECT place = To_Pixels(platform::Place_On_Form(*Model(), *tabs));
    const RECT page = Page_Of(*tabs);
    const int x = static_cast<int>((page.left + page.right) / 2 - place.left);
    const int y = static_cast<int>((page.top + page.bottom) / 2 - place.top);
    Pixel_Buffer pixels;
    const Unique_Bitmap bitmap = Make_Pixel_Bitmap(1, 1, pixels);
    const Unique_Memory_Dc dc(CreateCompatibleDC(nullptr));
    if (!bitmap || !dc)
        return;
    const Selected_Object selected(dc.get(), bitmap.get());
    SetPixel(dc.get(), 0, 0, page_colour_);
    SetViewportOrgEx(dc.get(), -x, -y, nullptr);
    SendMessageW(Control_Window(tabs->index), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()),
                 PRF_CLIENT | PRF_ERASEBKGND);
    page_colour_ = GetPixel(dc.get(), x, y);
    page_brush_.reset(CreateSolidBrush(page_colour_));
}

bool Dialog_Window::On_Page(const Control_State &control) const {
    const Control_State *tabs = Tab_Strip();
    if (tabs == nullptr || tabs == &control || !page_brush_ || !platform::Is_Shown(*Model(), *tabs))
        return false;
    const RECT page = Page_Of(*tabs);
    const RECT place = To_Pixels(platform::Place_On_Form(*Model(), control));
    return PtInRect(&page, {(place.left + place.right) / 2, (place.top + place.bottom) / 2}) != FALSE;
}

bool Dialog_Window::Erase(HDC dc) {
    const Control_State *tabs = Tab_Strip();
    if (tabs == nullptr || !page_brush_ || !platform::Is_Shown(*Model(), *tabs))
        return false;
    const RECT page = Page_Of(*tabs);
    FillRect(dc, &page, page_brush_.get());
    const int before = SaveDC(dc);
    ExcludeClipRect(dc, page.left, page.top, page.right, page.bottom);
    DefDlgProcW(window_, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    RestoreDC(dc, before);
    return true;
}

LRESULT Dialog_Window::Colour_Control(UINT message, HDC dc, HWND window, LRESULT usual) {
    const Control_State *control = Control_Of(window);
    if (control == nullptr || !Shows_Background(*control))
        return usual;
    const bool label = control->kind == Control_Kind::Label && message == WM_CTLCOLORSTATIC;
    if (label && control->fore_colour != usual_fore_colour)
        SetTextColor(dc, static_cast<COLORREF>(platform::Resolve_Colour(control->fore_colour)));
    if (!label || control->painted || control->back_colour == usual_back_colour || control->transparent) {
        if (!On_Page(*control))
            return usual;
        SetBkColor(dc, page_colour_);
        return reinterpret_cast<LRESULT>(page_brush_.get());
    }
    Native &native = natives_[static_cast<std::size_t>(control->index)];
    const auto back = static_cast<COLORREF>(platform::Resolve_Colour(control->back_colour));
    if (!native.brush)
        native.brush.reset(CreateSolidBrush(back));
    SetBkColor(dc, back);
    return reinterpret_cast<LRESULT>(native.brush.get());
}

void Dialog_Window::Colours_Changed(UINT message, WPARAM wparam, LPARAM lparam) {
    for (Native &native : natives_) {
        native.brush.reset();
        // Pass on WM_SYSCOLORCHANGE, because the system sends it to the dialog alone, but the common
        // controls keep colours, too. WM_THEMECHANGED goes to all windows.
        if (message == WM_SYSCOLORCHANGE && native.window != nullptr && !native.painted)
            SendMessageW(native.window, message, wparam, lparam);
    }
    Find_Page_Colour();
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_FRAME);
}

} // namespace win32

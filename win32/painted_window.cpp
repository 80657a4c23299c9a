// Creates, places, shapes and paints the window. painted_input.cpp handles the mouse and the keys.
#include "win32/painted_window.h"

#include "win32/accessible.h"
#include "win32/canvas.h"
#include "win32/system_library.h"
#include "win32/units.h"
#include "win32/wide_text.h"
#include "win32/window_class.h"

#include <algorithm>
#include <string>

namespace win32 {

using platform::Aspect;
using platform::Control_State;

namespace {

/// WM_DPICHANGED_AFTERPARENT, which the system's headers define only for newer systems.
constexpr UINT Parent_Dots_Changed_Message = 0x02E3;

bool Is_Top_Level(HWND window) {
    return GetAncestor(window, GA_PARENT) == GetDesktopWindow();
}

/// Disables input methods in the window. Letters are commands there, and an open input method would swallow
/// them.
void Disable_Input_Method(HWND window) {
    static const auto associate = Look_Up<HANDLE WINAPI(HWND, HANDLE)>(L"imm32.dll", "ImmAssociateContext");
    if (associate != nullptr)
        associate(window, nullptr);
}

bool Equal_Rects(const std::vector<RECT> &a, const std::vector<RECT> &b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const RECT &x, const RECT &y) { return EqualRect(&x, &y) != FALSE; });
}

} // namespace

void Painted_Window::Create() {
    const std::wstring class_name = L"Vellatro_" + To_Wide(Model()->name);
    Register_Class(class_name.c_str(), Procedure, CS_DBLCLKS);
    const RECT place = To_Pixels(Model()->bounds);
    Adopt(CreateWindowExW(WS_EX_TOOLWINDOW, class_name.c_str(), To_Wide(Model()->title).c_str(),
                          WS_POPUP | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, place.left, place.top,
                          place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                          GetModuleHandleW(nullptr), nullptr));
    Disable_Input_Method(window_);
    Texts_Changed();
    // Check the scale once the form is complete: the window may lie on a screen with a scale of its own.
    PostMessageW(window_, Check_Dots_Message, 0, 0);
}

LRESULT CALLBACK Painted_Window::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return Receive(window, message, wparam, lparam, DefWindowProcW);
}

void Painted_Window::Window_Gone() {
    tooltips_.Window_Gone();
    Mirror::Window_Gone();
}

LRESULT Painted_Window::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
    LRESULT result = 0;
    if (Handle_Input(message, wparam, lparam, result))
        return result;
    if (Handle_Posted(message, wparam))
        return 0;
    if (message == WM_PAINT)
        whole_invalid_ = false;
    switch (message) {
    case WM_ERASEBKGND:
    case WM_PAINT:
    case WM_PRINTCLIENT:
        return Paint_Window(window_, message, wparam,
                            [this](HDC target, const RECT &area) { Paint_On(target, area); });
    case WM_WINDOWPOSCHANGING:
        // Repaint a child window after every change of place or region, because Wine hangs when it copies
        // pixels inside another process's window.
        if (!Is_Top_Level(window_))
            reinterpret_cast<WINDOWPOS *>(lparam)->flags |= SWP_NOCOPYBITS;
        break;
    case WM_SIZE:
        if (wparam == SIZE_RESTORED && has_clip_)
            Set_Region();
        break;
    case WM_SETCURSOR:
        if (LOWORD(lparam) != HTCLIENT)
            break;
        Set_Pointer();
        return TRUE;
    case WM_CLOSE:
        Send(platform::Input_Kind::Close);
        return 0;
    case WM_DPICHANGED:
    case Parent_Dots_Changed_Message:
        Check_Scale(false);
        return 0;
    case WM_GETOBJECT:
        return Answer_Get_Object(window_, wparam, lparam);
    case WM_NOTIFY:
        if (tooltips_.Answer(*reinterpret_cast<NMHDR *>(lparam)))
            return 0;
        break;
    default:
        break;
    }
    return DefWindowProcW(window_, message, wparam, lparam);
}

bool Painted_Window::Handle_Posted(UINT message, WPARAM wparam) {
    switch (message) {
    case Check_Dots_Message:
        Check_Scale(false);
        return true;
    case Default_Action_Message: {
        platform::Input_Event event{};
        event.kind = platform::Input_Kind::Default_Action;
        event.control = static_cast<int>(wparam);
        Send(event);
        return true;
    }
    case Update_Texts_Message:
        texts_dirty_ = false;
        tooltips_.Update(window_, *Model());
        announcements_.Update(window_, *Model());
        return true;
    default:
        return false;
    }
}

void Painted_Window::Paint_On(HDC target, const RECT &area) {
    if (area.left >= area.right || area.top >= area.bottom || !Model()->paint)
        return;
    platform::Canvas canvas(area);
    if (!canvas.Ok())
        return;
    Model()->paint(canvas, To_Covering_Twips(area));
    canvas.Copy_To(target);
}

void Painted_Window::Own_Aspect_Changed(Aspect aspect) {
    switch (aspect) {
    case Aspect::Appearance:
        Invalidate_Whole();
        break;
    case Aspect::Pointer: {
        POINT mouse = {};
        GetCursorPos(&mouse);
        if (WindowFromPoint(mouse) == window_)
            Set_Pointer();
        break;
    }
    case Aspect::Focus:
        Announce_Focus(window_, *Model());
        break;
    default:
        break;
    }
}

void Painted_Window::Control_Changed(const Control_State &control, Aspect aspect, const Rect &before) {
    switch (aspect) {
    case Aspect::Bounds:
        if (control.visible) {
            Invalidate(before);
            Invalidate(control.bounds);
        }
        break;
    case Aspect::Visible:
        Invalidate(control.bounds);
        break;
    case Aspect::Access:
    case Aspect::Tooltip:
    case Aspect::Pointer:
    case Aspect::Focus:
        break;
    default:
        if (control.visible)
            Invalidate(control.bounds);
        break;
    }
    const bool moves_tooltip =
        (aspect == Aspect::Bounds || aspect == Aspect::Visible) && !control.tooltip.empty();
    const bool announced = aspect == Aspect::Visible || aspect == Aspect::Access || aspect == Aspect::Caption;
    if (moves_tooltip || aspect == Aspect::Tooltip || announced)
        Texts_Changed();
}

void Painted_Window::Invalidate_Whole() {
    InvalidateRect(window_, nullptr, FALSE);
    // A hidden window has nothing to paint and gets no WM_PAINT.
    whole_invalid_ = GetUpdateRect(window_, nullptr, FALSE) != FALSE;
}

void Painted_Window::Invalidate(const Rect &bounds) const {
    // The next WM_PAINT covers the bounds too. A new month changes its boxes some 140 times, and each call to
    // the system takes 0.1 ms under Wine. A form that is not shown yet paints all of itself when it appears.
    if (whole_invalid_ || !Model()->visible)
        return;
    const RECT pixels = To_Pixels(bounds);
    if (pixels.left < pixels.right && pixels.top < pixels.bottom)
        InvalidateRect(window_, &pixels, FALSE);
}

void Painted_Window::Texts_Changed() {
    // Post one message for many changes: a new month changes the texts of all its days.
    if (!texts_dirty_)
        texts_dirty_ = PostMessageW(window_, Update_Texts_Message, 0, 0) != FALSE;
}

void Painted_Window::Clip(const std::vector<Rect> &rects) {
    has_clip_ = true;
    clip_ = rects;
    Set_Region();
}

void Painted_Window::Set_Region() {
    // Leave the region of a minimised window alone. Handle() sets it once the window is no longer minimised.
    if (IsIconic(window_))
        return;
    std::vector<RECT> pixels;
    pixels.reserve(clip_.size());
    for (const Rect &rect : clip_)
        pixels.push_back(To_Pixels(rect));
    const Unique_Region now(CreateRectRgn(0, 0, 0, 0));
    if (Equal_Rects(pixels, region_) && GetWindowRgn(window_, now.get()) != ERROR)
        return;
    Unique_Region whole(CreateRectRgn(0, 0, 0, 0));
    const Unique_Region part(CreateRectRgn(0, 0, 0, 0));
    for (const RECT &rect : pixels) {
        SetRectRgn(part.get(), rect.left, rect.top, rect.right, rect.bottom);
        CombineRgn(whole.get(), whole.get(), part.get(), RGN_OR);
    }
    // If the call succeeds, the system owns the region.
    if (!whole || SetWindowRgn(window_, whole.get(), TRUE) == 0)
        return;
    static_cast<void>(whole.release());
    region_ = std::move(pixels);
}

void Painted_Window::Shape(const std::vector<Point> &corners) {
    shape_ = corners;
    std::vector<POINT> pixels;
    pixels.reserve(corners.size());
    for (const Point &corner : corners)
        pixels.push_back({To_Pixels(corner.x), To_Pixels(corner.y)});
    Unique_Region region(CreatePolygonRgn(pixels.data(), static_cast<int>(pixels.size()), WINDING));
    if (region && SetWindowRgn(window_, region.get(), TRUE) != 0)
        static_cast<void>(region.release());
}

void Painted_Window::Update_Bounds() {
    RECT place = To_Pixels(Model()->bounds);
    // Map both corners, because a mirrored parent measures from its own right edge to the window's.
    if (!Is_Top_Level(window_))
        MapWindowPoints(nullptr, GetAncestor(window_, GA_PARENT), reinterpret_cast<POINT *>(&place), 2);
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOACTIVATE | SWP_NOZORDER);
}

void Painted_Window::Show_Or_Hide() {
    if (!Model()->visible) {
        ShowWindow(window_, SW_HIDE);
        return;
    }
    if (Floats()) {
        SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        return;
    }
    // Put the calendar below ordinary windows, because it belongs to the desktop.
    const bool to_bottom = Is_Top_Level(window_);
    SetWindowPos(window_, HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW | (to_bottom ? 0U : SWP_NOZORDER));
}

void Painted_Window::Bring_To_Front() {
    SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    SetForegroundWindow(window_);
    SetFocus(window_);
}

void Painted_Window::Scale_Changed() {
    Update_Bounds();
    if (has_clip_)
        Set_Region();
    if (!shape_.empty())
        Shape(shape_);
    Invalidate_Whole();
    Texts_Changed();
}

void Painted_Window::Set_Pointer() const {
    const bool moves = Model()->pointer == platform::Pointer_Shape::Move;
    SetCursor(Load_Pointer(moves ? System_Pointer::Move : System_Pointer::Arrow));
}

} // namespace win32

// The list of the forms' native windows, and the platform's calls to them.
#include "platform/forms.h"

#include "base/error.h"
#include "base/scoped_value.h"
#include "win32/dialog_window.h"
#include "win32/fonts.h"
#include "win32/menu_images.h"
#include "win32/mirror.h"
#include "win32/painted_window.h"
#include "win32/system_error.h"
#include "win32/units.h"
#include "win32/wide_text.h"

namespace win32 {

namespace {

std::vector<std::shared_ptr<Mirror>> mirrors;

void Forget_Mirror(const Mirror &mirror) {
    std::erase_if(mirrors, [&](const std::shared_ptr<Mirror> &each) { return each.get() == &mirror; });
}

} // namespace

std::vector<std::shared_ptr<Mirror>> All_Mirrors() {
    return mirrors;
}

std::shared_ptr<Mirror> Find_Mirror(const platform::Form_Model &model) {
    for (const std::shared_ptr<Mirror> &mirror : mirrors) {
        if (mirror->Model() == &model)
            return mirror;
    }
    return nullptr;
}

const platform::Form_Model *Form_Of_Window(HWND window) {
    for (const std::shared_ptr<Mirror> &mirror : mirrors) {
        if (mirror->Window() == window && window != nullptr)
            return mirror->Model();
    }
    return nullptr;
}

HWND Window_Of_Form(const platform::Form_Model &model) {
    const std::shared_ptr<Mirror> mirror = Find_Mirror(model);
    return mirror ? mirror->Window() : nullptr;
}

HWND Mirror::Require_Window(HWND window) {
    if (window == nullptr)
        throw Error("The window cannot be created: " + System_Error_Text(GetLastError()));
    return window;
}

void Mirror::Adopt(HWND window) {
    window_ = Require_Window(window);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

LRESULT Mirror::Receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam, WNDPROC usual) {
    auto *mirror = reinterpret_cast<Mirror *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (mirror == nullptr)
        return usual(window, message, wparam, lparam);
    try {
        const std::shared_ptr<Mirror> keep = mirror->weak_from_this().lock();
        if (message == WM_NCDESTROY) {
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
            mirror->Window_Gone();
        } else if (Answer_Menu_Image(message, lparam)) {
            return TRUE;
        } else if (mirror->Model() != nullptr) {
            const Scoped_Value scale(Dialog_Dots, mirror->dots_);
            return mirror->Handle(message, wparam, lparam);
        }
    } catch (...) {
        // Only an out-of-memory exception arrives here. It must not unwind the system's code that called
        // this procedure.
    }
    return usual(window, message, wparam, lparam);
}

void Mirror::Form_Changed(platform::Aspect aspect) {
    const Scoped_Value scale(Dialog_Dots, dots_);
    switch (aspect) {
    case platform::Aspect::Bounds:
        return Update_Bounds();
    case platform::Aspect::Visible:
        return Show_Or_Hide();
    case platform::Aspect::Caption:
        SetWindowTextW(window_, To_Wide(Model()->title).c_str());
        return;
    default:
        return Own_Aspect_Changed(aspect);
    }
}

void Mirror::Destroy() noexcept {
    const std::shared_ptr<Mirror> keep = weak_from_this().lock();
    model_ = nullptr;
    Forget_Mirror(*this);
    if (window_ != nullptr && IsWindow(window_))
        DestroyWindow(window_);
    window_ = nullptr;
}

void Mirror::Send(const platform::Input_Event &event) noexcept {
    if (model_ == nullptr || !model_->input)
        return;
    const Scoped_Value scale(Dialog_Dots, event.kind == platform::Input_Kind::Scale_Changed ? dots_ : 0);
    // Call a copy, because the handler may destroy the form that holds the original.
    const auto input = model_->input;
    input(event);
}

void Mirror::Send(platform::Input_Kind kind) noexcept {
    platform::Input_Event event{};
    event.kind = kind;
    Send(event);
}

void Mirror::Window_Gone() {
    window_ = nullptr;
    if (model_ == nullptr)
        return;
    const std::shared_ptr<Mirror> keep = weak_from_this().lock();
    const auto input = model_->input;
    model_ = nullptr;
    Forget_Mirror(*this);
    platform::Input_Event event{};
    event.kind = platform::Input_Kind::Window_Lost;
    if (input)
        input(event);
}

void Mirror::Apply_Scale(int dots) {
    dots_ = dots;
    if (window_ != nullptr) {
        const Scoped_Value scale(Dialog_Dots, dots_);
        Scale_Changed();
    }
    Send(platform::Input_Kind::Scale_Changed);
}

void Report_Lost_Windows() {
    for (const std::shared_ptr<Mirror> &mirror : All_Mirrors()) {
        if (mirror->window_ != nullptr && !IsWindow(mirror->window_))
            mirror->Window_Gone();
    }
}

void Check_Scale(bool fonts_changed) {
    HWND calendar = nullptr;
    for (const std::shared_ptr<Mirror> &mirror : mirrors) {
        const platform::Form_Model &form = *mirror->Model();
        if (calendar == nullptr && form.kind == platform::Form_Kind::Painted)
            calendar = mirror->Window();
    }
    if (fonts_changed)
        Clear_Font_Cache();
    if (!Refresh_Dots(calendar) && !fonts_changed)
        return;
    for (const std::shared_ptr<Mirror> &mirror : All_Mirrors()) {
        const platform::Form_Model *form = mirror->Model();
        if (form != nullptr)
            mirror->Apply_Scale(form->kind == platform::Form_Kind::Dialog ? Dots_Of(mirror->Window()) : 0);
    }
}

} // namespace win32

namespace platform {

void Create_Mirror(const Form_Model &model) {
    if (win32::Find_Mirror(model))
        return;
    std::shared_ptr<win32::Mirror> mirror;
    if (model.kind == Form_Kind::Dialog)
        mirror = std::make_shared<win32::Dialog_Window>(model);
    else
        mirror = std::make_shared<win32::Painted_Window>(model);
    win32::mirrors.push_back(mirror);
    try {
        mirror->Create();
        if (model.visible)
            mirror->Form_Changed(Aspect::Visible);
    } catch (...) {
        mirror->Destroy();
        throw;
    }
}

void Destroy_Mirror(const Form_Model &model) {
    if (const std::shared_ptr<win32::Mirror> mirror = win32::Find_Mirror(model))
        mirror->Destroy();
}

void Form_Changed(const Form_Model &model, Aspect aspect) {
    if (const std::shared_ptr<win32::Mirror> mirror = win32::Find_Mirror(model))
        mirror->Form_Changed(aspect);
}

void Control_Changed(const Form_Model &model, const Control_State &control, Aspect aspect,
                     const Rect &before) {
    if (const std::shared_ptr<win32::Mirror> mirror = win32::Find_Mirror(model)) {
        const Scoped_Value scale(win32::Dialog_Dots, mirror->Dots());
        mirror->Control_Changed(control, aspect, before);
    }
}

void Clip_Window(const Form_Model &model, const std::vector<Rect> &rects) {
    if (const std::shared_ptr<win32::Mirror> mirror = win32::Find_Mirror(model))
        mirror->Clip(rects);
}

void Shape_Window(const Form_Model &model, const std::vector<Point> &corners) {
    if (const std::shared_ptr<win32::Mirror> mirror = win32::Find_Mirror(model))
        mirror->Shape(corners);
}

std::optional<Point> Window_Corner(const Form_Model &model) {
    const HWND window = win32::Window_Of_Form(model);
    RECT place = {};
    if (window == nullptr || IsIconic(window) || !GetWindowRect(window, &place))
        return std::nullopt;
    return Point{place.left, place.top};
}

void Bring_To_Front(const Form_Model &model) {
    if (const std::shared_ptr<win32::Mirror> mirror = win32::Find_Mirror(model))
        mirror->Bring_To_Front();
}

} // namespace platform

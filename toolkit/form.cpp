#include "toolkit/form.h"

#include "platform/message_box.h"
#include "toolkit/guard.h"
#include "toolkit/handler.h"
#include "toolkit/painter.h"
#include "toolkit/units.h"

#include <algorithm>
#include <utility>

using platform::Aspect;
using platform::Form_Kind;
using platform::Input_Event;
using platform::Input_Kind;
using platform::Mouse_Button;

Form::Form(Form_Kind kind, const char *name) {
    model_.kind = kind;
    model_.name = name;
    model_.input = [this](const Input_Event &event) { Input(event); };
    model_.paint = [this](platform::Canvas &canvas, const Rect &clip) {
        try {
            Paint(canvas, clip);
        } catch (...) {
            // A message box would trigger another repaint, which would fail again. The next change repaints
            // the form.
        }
    };
}

void Form::Paint(platform::Canvas &canvas, const Rect &clip) const {
    Paint_Form(model_, canvas, clip);
}

Form::~Form() {
    Close();
}

void Form::Register(Control &control, platform::Control_State &state) {
    state.index = static_cast<int>(controls_.size());
    controls_.push_back(&control);
    model_.controls.push_back(&state);
}

void Form::Forget(const Control &control) {
    Close();
    std::erase(controls_, &control);
    std::erase(model_.controls, &control.State());
}

void Form::Notify_Mirror(Aspect aspect) {
    if (created_)
        platform::Form_Changed(model_, aspect);
}

Point Form::Corner() const {
    // Return the form's own twips if they match the window's pixels, because repeated conversion would make
    // the position drift.
    const std::optional<Point> pixels = created_ ? platform::Window_Corner(model_) : std::nullopt;
    const Point put = Requested_Position();
    if (!pixels || *pixels == Point{Twips_To_Pixels(put.x), Twips_To_Pixels(put.y)})
        return put;
    return {Pixels_To_Twips(pixels->x), Pixels_To_Twips(pixels->y)};
}

void Form::Move(int left, int top) {
    const bool there = Corner() == Point{left, top};
    model_.bounds.left = left;
    model_.bounds.top = top;
    if (!there)
        Notify_Mirror(Aspect::Bounds);
}

void Form::Restore_Position() {
    if (const Point now = Corner(); now != Requested_Position()) {
        if (now == stuck_at_)
            return;
        Notify_Mirror(Aspect::Bounds);
    }
    // Give up only if two attempts leave the window at the same place, because the window's parent may have
    // changed during the first.
    const Point left_at = Corner();
    if (left_at == Requested_Position())
        left_at_ = stuck_at_ = std::nullopt;
    else if (std::exchange(left_at_, left_at) == left_at)
        stuck_at_ = left_at;
}

void Form::Resize(int width, int height) {
    if (width == Width() && height == Height())
        return;
    model_.bounds.width = width;
    model_.bounds.height = height;
    Notify_Mirror(Aspect::Bounds);
}

void Form::Make_Window(bool visible) {
    model_.visible = visible;
    try {
        platform::Create_Mirror(model_);
    } catch (...) {
        model_.visible = false;
        throw;
    }
    created_ = true;
    if (clip_)
        platform::Clip_Window(model_, *clip_);
    if (!shape_.empty())
        platform::Shape_Window(model_, shape_);
}

void Form::Create() {
    if (!created_)
        Make_Window(false);
}

void Form::Show() {
    // Create a clipped window hidden, so that it appears in its final shape.
    if (!created_)
        Make_Window(!clip_ && shape_.empty());
    if (!std::exchange(model_.visible, true))
        Notify_Mirror(Aspect::Visible);
}

void Form::Close() {
    captured_ = nullptr;
    model_.visible = false;
    if (std::exchange(created_, false))
        platform::Destroy_Mirror(model_);
}

void Form::Set_Title(std::string_view title) {
    if (model_.title == title)
        return;
    model_.title = title;
    Notify_Mirror(Aspect::Caption);
}

void Form::Set_Back_Colour(Colour colour) {
    if (std::exchange(model_.back_colour, colour) != colour)
        Notify_Mirror(Aspect::Appearance);
}

void Form::Set_Pointer(platform::Pointer_Shape shape) {
    if (std::exchange(model_.pointer, shape) != shape)
        Notify_Mirror(Aspect::Pointer);
}

void Form::Set_Focus(const Control &control) {
    // Always notify the mirror: the form does not record when the user moves the focus to another native
    // control.
    model_.focused = control.State().index;
    Notify_Mirror(Aspect::Focus);
}

void Form::Clip(std::vector<Rect> rects) {
    if (clip_ == rects)
        return;
    clip_ = std::move(rects);
    if (created_)
        platform::Clip_Window(model_, *clip_);
}

void Form::Shape(std::vector<Point> corners) {
    shape_ = std::move(corners);
    if (created_)
        platform::Shape_Window(model_, shape_);
}

Control *Form::Control_At(Point point) {
    const auto found = std::find_if(controls_.rbegin(), controls_.rend(), [point](const Control *control) {
        return control->Visible() && control->Bounds().Contains(point);
    });
    return found == controls_.rend() ? nullptr : *found;
}

void Form::Set_Blocked_By(Form *modal) {
    modal_ = modal;
    captured_ = nullptr;
    if (std::exchange(model_.enabled, modal == nullptr) != model_.enabled)
        Notify_Mirror(Aspect::Enabled);
}

void Form::Bring_To_Front() {
    platform::Bring_To_Front(modal_ == nullptr ? model_ : modal_->model_);
}

bool Form::Blocked(const Input_Event &event) {
    const bool beside_box = platform::Modal_Box_Is_Open();
    switch (event.kind) {
    case Input_Kind::Window_Moved:
    case Input_Kind::Window_Lost:
    case Input_Kind::Focus_Changed:
    case Input_Kind::Capture_Lost:
    case Input_Kind::Scale_Changed:
        return false;
    case Input_Kind::Close:
        return beside_box;
    case Input_Kind::Text_Changed:
        // While a message box is open, only another program can change the text. Accept the change, because
        // the native control already shows it.
        return modal_ != nullptr;
    case Input_Kind::Mouse_Down:
    case Input_Kind::Double_Click:
    case Input_Kind::Key_Down:
    case Input_Kind::Default_Action:
        if (modal_ != nullptr && !beside_box)
            Bring_To_Front();
        [[fallthrough]];
    default:
        return beside_box || modal_ != nullptr;
    }
}

void Form::Input(const Input_Event &event) {
    Run_Guarded([this, &event] {
        if (!Blocked(event))
            Handle(event);
    });
}

void Form::Handle(const Input_Event &event) {
    switch (event.kind) {
    case Input_Kind::Mouse_Down:
    case Input_Kind::Mouse_Up:
    case Input_Kind::Mouse_Move:
    case Input_Kind::Double_Click:
        return Handle_Mouse(event);
    case Input_Kind::Clicked:
    case Input_Kind::Text_Changed:
    case Input_Kind::Selected:
    case Input_Kind::Scrolled:
    case Input_Kind::Item_Activated:
    case Input_Kind::Default_Action:
        return Handle_Native(event);
    case Input_Kind::Key_Down: {
        const Control *control = Control_Of(event);
        return Fire(control != nullptr && control->On_Key_Down ? control->On_Key_Down : On_Key_Down, event);
    }
    case Input_Kind::Key_Up:
        return Fire(On_Key_Up, event);
    case Input_Kind::Close:
        return On_Close ? Fire(On_Close) : Close();
    case Input_Kind::Window_Lost:
        captured_ = nullptr;
        created_ = false;
        return Fire(On_Window_Lost);
    case Input_Kind::Focus_Changed:
        return Fire(On_Focus_Changed, event.checked);
    case Input_Kind::Capture_Lost:
        captured_ = nullptr;
        return Fire(On_Capture_Lost);
    case Input_Kind::Scale_Changed:
        return Fire(On_Dots_Changed);
    case Input_Kind::Window_Moved:
        model_.bounds.left = event.point.x;
        model_.bounds.top = event.point.y;
        return;
    }
}

Control *Form::Control_Of(const Input_Event &event) const {
    return event.control < 0 || event.control >= static_cast<int>(controls_.size())
               ? nullptr
               : controls_[static_cast<std::size_t>(event.control)];
}

bool Form::Takes_Input(const Control *control) const {
    return control != nullptr && platform::Is_Usable(model_, control->State()) &&
           platform::Is_Shown(model_, control->State());
}

void Form::Press(Control *control, const Input_Event &event, Point point) {
    if (captured_ == nullptr) {
        captured_ = control;
        captured_by_ = event.button;
    }
    if (!Takes_Input(control))
        return;
    // Only the left button double-clicks. A quick second press of another button is a plain press.
    const bool is_double = event.kind == Input_Kind::Double_Click && event.button == Mouse_Button::Left;
    double_clicked_ = is_double && control->On_Double_Click;
    if (is_double)
        return Fire(control->On_Double_Click);
    Fire(control->On_Mouse_Down, event.button, point);
}

void Form::Handle_Mouse(const Input_Event &event) {
    // A press of the same button, or a move without a button, shows that the release went elsewhere, such as
    // to a menu or a message box.
    const bool pressed = event.kind == Input_Kind::Mouse_Down || event.kind == Input_Kind::Double_Click;
    const bool loose = event.kind == Input_Kind::Mouse_Move && event.button == Mouse_Button::None;
    if (loose || (pressed && event.button == captured_by_))
        captured_ = nullptr;
    const bool own_window = event.control >= 0;
    Control *control = captured_ != nullptr ? captured_
                       : own_window         ? Control_Of(event)
                                            : Control_At(event.point);
    Point point = event.point;
    if (control != nullptr && !own_window)
        point = {point.x - control->Left(), point.y - control->Top()};
    if (pressed)
        return Press(control, event, point);

    const bool released = event.kind == Input_Kind::Mouse_Up;
    // A release without a press here belongs to a click on a window that covered the form.
    if (released && captured_ == nullptr)
        return;
    if (released && event.button == captured_by_)
        captured_ = nullptr;
    if (!Takes_Input(control))
        return;
    if (!released)
        return Fire(control->On_Mouse_Move, event.button, point);
    const bool clicked = event.button == Mouse_Button::Left && !double_clicked_ &&
                         Rect{0, 0, control->Width(), control->Height()}.Contains(point);
    const auto on_click = clicked ? control->On_Click : nullptr;
    Fire(control->On_Mouse_Up, event.button, point);
    Fire(on_click);
}

void Form::Handle_Native(const Input_Event &event) {
    Control *control = Control_Of(event);
    if (!Takes_Input(control))
        return;
    if (event.kind == Input_Kind::Default_Action)
        return Fire(control->On_Default_Action);
    control->Handle_Event(event);
}

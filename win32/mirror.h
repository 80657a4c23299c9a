// The base class of the native windows of forms, and the list of all mirrors.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

#include <memory>
#include <vector>

namespace win32 {

/// The native window of one form. A window procedure keeps its mirror alive with weak_from_this().lock()
/// while a handler runs, because handlers may close their own form. Model() is null once the form is closed.
class Mirror : public std::enable_shared_from_this<Mirror> {
public:
    explicit Mirror(const platform::Form_Model &model) : model_(&model) {}
    Mirror(const Mirror &) = delete;
    Mirror &operator=(const Mirror &) = delete;
    virtual ~Mirror() = default;

    const platform::Form_Model *Model() const { return model_; }
    HWND Window() const { return window_; }

    /// Creates the window with its contents. Call this once. Throws Error on failure.
    virtual void Create() = 0;
    void Form_Changed(platform::Aspect aspect);
    virtual void Control_Changed(const platform::Control_State &control, platform::Aspect aspect,
                                 const Rect &before) = 0;
    virtual void Clip(const std::vector<Rect> &) {}
    virtual void Shape(const std::vector<Point> &) {}
    virtual void Bring_To_Front() = 0;
    /// Sets the window's dots per inch, 0 for the calendar's, and makes the form lay itself out again. Call
    /// this also after a change of the system's fonts.
    void Apply_Scale(int dots);
    int Dots() const { return dots_; }
    /// Handles a message from the queue before the message loop dispatches it. Returns whether the message
    /// needs no further handling.
    virtual bool Preprocess_Message(const MSG &) { return false; }

    /// Destroys the window without sending an event to the form.
    void Destroy() noexcept;
    /// Sends a user action to the form. Afterwards the form may be gone.
    void Send(const platform::Input_Event &event) noexcept;
    void Send(platform::Input_Kind kind) noexcept;

protected:
    /// Returns `window`, the result of a creation call. Throws Error if it is null.
    static HWND Require_Window(HWND window);
    /// Takes over a new window, so that its messages go to this mirror. Throws Error if `window` is null.
    void Adopt(HWND window);
    /// Implements the window procedures: passes the messages of adopted windows to their mirrors, and all
    /// others to `usual`.
    static LRESULT Receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam, WNDPROC usual);
    virtual LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam) = 0;
    /// Gives the window the model's position and size.
    virtual void Update_Bounds() = 0;
    /// Shows or hides the window as the model says.
    virtual void Show_Or_Hide() = 0;
    /// Handles a change of the dots per inch or of the system's fonts.
    virtual void Scale_Changed() = 0;
    /// Handles a change of an aspect that each kind of window shows in its own way.
    virtual void Own_Aspect_Changed(platform::Aspect aspect) = 0;
    /// Handles the destruction of the window. Sends Window_Lost to the form, unless Destroy() destroyed the
    /// window.
    virtual void Window_Gone();
    HWND window_ = nullptr;
    int dots_ = 0; ///< dots per inch of a dialog's own screen, 0 for the calendar's

private:
    friend void Report_Lost_Windows();
    const platform::Form_Model *model_;
};

/// Returns all mirrors in the order of their creation. The list is a copy, because handlers may close forms.
std::vector<std::shared_ptr<Mirror>> All_Mirrors();

/// Returns the mirror of a form, null if the form has no window.
std::shared_ptr<Mirror> Find_Mirror(const platform::Form_Model &model);

/// Returns the form that owns `window`, null for other windows.
const platform::Form_Model *Form_Of_Window(HWND window);

/// Returns the native window of a form, null if it has none.
HWND Window_Of_Form(const platform::Form_Model &model);

/// Sends Window_Lost to each form whose window vanished without a message, as when the process of its parent
/// window dies.
void Report_Lost_Windows();

/// The message that makes a dialog apply its own scale, or makes a painted window check the calendar's. Post
/// it if the work must wait for the message loop.
constexpr UINT Check_Dots_Message = WM_APP + 3;

/// Looks up the calendar's dots per inch again, after a change of its screen, its parent window or the
/// settings. Makes all forms lay themselves out again if the dots changed or `fonts_changed` is true.
void Check_Scale(bool fonts_changed);

} // namespace win32

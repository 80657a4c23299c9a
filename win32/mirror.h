// What the native windows of forms have in common, and the list of those that exist.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

#include <memory>
#include <vector>

namespace win32 {

/// The native window of one form. A window procedure keeps its mirror alive with weak_from_this().lock()
/// while a handler runs: handlers may close their own form, after which Model() is null.
class Mirror : public std::enable_shared_from_this<Mirror> {
public:
    explicit Mirror(const platform::Form_Model &model) : model_(&model) {}
    Mirror(const Mirror &) = delete;
    Mirror &operator=(const Mirror &) = delete;
    virtual ~Mirror() = default;

    const platform::Form_Model *Model() const { return model_; }
    HWND Window() const { return window_; }

    /// Makes the window with what it shows. Called once. Throws Error when the system refuses.
    virtual void Create() = 0;
    void Form_Changed(platform::Aspect aspect);
    virtual void Control_Changed(const platform::Control_State &control, platform::Aspect aspect,
                                 const Rect &before) = 0;
    virtual void Clip(const std::vector<Rect> &) {}
    virtual void Shape(const std::vector<Point> &) {}
    virtual void Bring_To_Front() = 0;
    /// Takes the dots per inch of a dialog's own screen, 0 for the calendar's, or the system's new fonts, and
    /// has the form lay itself out anew.
    void Apply_Scale(int dots);
    int Dots() const { return dots_; }
    /// Looks at a message before the system does what is usual with it. Returns whether that was all.
    virtual bool Preprocess_Message(const MSG &) { return false; }

    /// Takes the window down without an event.
    void Destroy() noexcept;
    /// Gives a user action to the form. Afterwards the form may be gone.
    void Send(const platform::Input_Event &event) noexcept;
    void Send(platform::Input_Kind kind) noexcept;

protected:
    /// A window that the system has just been asked for. Throws Error when there is none.
    static HWND Require_Window(HWND window);
    /// Takes a window that has just been made as this mirror's; from then on its messages arrive.
    void Adopt(HWND window);
    /// What the window procedures do: gives the messages of adopted windows to their mirrors, and all others
    /// to the `usual` procedure.
    static LRESULT Receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam, WNDPROC usual);
    virtual LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam) = 0;
    /// Brings the window to where the model says, and shows or hides it.
    virtual void Update_Bounds() = 0;
    virtual void Show_Or_Hide() = 0;
    /// The dots per inch or the system's fonts changed.
    virtual void Scale_Changed() = 0;
    /// The aspects of a form that each kind of window has its own way with.
    virtual void Own_Aspect_Changed(platform::Aspect aspect) = 0;
    /// The window is gone, whoever took it down: tells the form, unless Destroy did it.
    virtual void Window_Gone();
    HWND window_ = nullptr;
    int dots_ = 0; ///< per inch of a dialog's own screen, 0: the calendar's count

private:
    friend void Find_Lost_Windows();
    const platform::Form_Model *model_;
};

/// All mirrors, in the order of their making. A copy, since handlers may close forms.
std::vector<std::shared_ptr<Mirror>> All_Mirrors();

/// The mirror of a form, null when it has no window.
std::shared_ptr<Mirror> Find_Mirror(const platform::Form_Model &model);

/// The form whose own native window `window` is, null for all other windows.
const platform::Form_Model *Form_Of_Window(HWND window);

/// The native window of a form, null when it has none.
HWND Window_Of_Form(const platform::Form_Model &model);

/// Tells the forms whose windows vanished without a message, as they do when the process of their parent
/// window is killed.
void Find_Lost_Windows();

/// Has the window's own scale, or the calendar's, looked at once it is served again.
constexpr UINT Check_Dots_Message = WM_APP + 3;

/// Looks the dots per inch up again, after the screen, the window's parent or the settings changed. A change
/// of them, or of the system's fonts, is told to all forms, which lay themselves out anew.
void Check_Scale(bool fonts_changed);

} // namespace win32

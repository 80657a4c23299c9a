// The native tooltips of a form: one tool for each visible control with a tooltip text.
#pragma once

#include "platform/forms.h"
#include "win32/handles.h"

#include <commctrl.h>

#include <string>
#include <vector>

namespace win32 {

class Tooltips {
public:
    Tooltips() = default;
    Tooltips(const Tooltips &) = delete;
    Tooltips &operator=(const Tooltips &) = delete;
    ~Tooltips() { Window_Gone(); }

    /// Updates the tools to match the controls. Creates the tooltip window with the first text. For a painted
    /// form it waits for the first Relay, so that the program starts faster. `windows` holds the controls'
    /// own windows, null for a control without one. It is empty for a painted form.
    void Update(HWND owner, const platform::Form_Model &model, std::vector<HWND> windows = {});
    /// Passes a mouse message of a painted form's window to the tooltip window, which then need not subclass
    /// the form's window. Under Wine, a subclass costs three requests to the server for each message. The
    /// first call creates the tools.
    void Relay(HWND owner, const platform::Form_Model &model, UINT message, WPARAM wparam, LPARAM lparam);
    /// Hides the visible tip, because the user is doing something else.
    void Pop() const;
    /// Answers WM_NOTIFY of the owner's window: gives the tip its text, or no text if the tip would be in
    /// the way. Returns whether `notice` asked for the text.
    bool Answer(NMHDR &notice);
    /// Destroys the tooltip window. Call this during or after the destruction of the owner's window.
    void Window_Gone();

private:
    /// The state of one control's tool in the tooltip window.
    struct Tool {
        bool present = false;
        RECT rect = {};
        std::string text;
    };

    bool Make_Window();
    bool In_The_Way() const;
    void Update_Tool(HWND owner, std::size_t index, Tool wanted);
    TTTOOLINFOW Tool_Of(HWND owner, std::size_t index) const;

    HWND window_ = nullptr;
    bool hovered_ = false; ///< Relay has been called
    std::vector<HWND> windows_;
    std::vector<Tool> tools_;
    std::wstring shown_; ///< the text of the last tip, which the system reads from here
};

} // namespace win32

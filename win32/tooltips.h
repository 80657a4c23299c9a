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

    /// Brings the tools up to date with the controls. The tooltip window is made with the first text.
    /// Controls that are windows themselves have theirs in `windows`.
    void Update(HWND owner, const platform::Form_Model &model, std::vector<HWND> windows = {});
    /// Takes the tip that is seen away: the user does something else.
    void Pop() const;
    /// What the owner's window is told by WM_NOTIFY: gives the tip its text, and none where a tip would be
    /// in the way. Returns whether that was asked.
    bool Answer(NMHDR &notice);
    /// The owner's window is gone, or goes now.
    void Window_Gone();

private:
    /// What the tooltip window knows of one control.
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
    std::vector<HWND> windows_;
    std::vector<Tool> tools_;
    std::wstring shown_; ///< the text of the tip that appeared last, which the system reads from here
};

} // namespace win32

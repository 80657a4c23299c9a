// The shell: platform/shell.h over Win32.
#include "platform/shell.h"

#include "win32/mirror.h"
#include "win32/system_library.h"
#include "win32/wide_text.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

namespace {

/// Of the list view of the common controls, written out to spare their header.
constexpr UINT Get_Text_Background = 0x1025; // LVM_GETTEXTBKCOLOR
constexpr UINT Get_Text_Colour = 0x1023;     // LVM_GETTEXTCOLOR

HWND Window_Of(Shell_Window id) {
    return reinterpret_cast<HWND>(id);
}

Shell_Window Id_Of(HWND window) {
    return reinterpret_cast<Shell_Window>(window);
}

void Change_Style(HWND window, DWORD take, DWORD give) {
    const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    SetWindowLongW(window, GWL_STYLE, static_cast<LONG>((style & ~take) | give));
}

std::optional<Colour> Ask_Colour(HWND list, UINT question, UINT patience) {
    DWORD_PTR answer = 0;
    if (SendMessageTimeoutW(list, question, 0, 0, SMTO_ABORTIFHUNG, patience, &answer) == 0)
        return std::nullopt;
    return static_cast<Colour>(answer);
}

} // namespace

// The shell's windows, from the top of each level to its bottom:
//
//   Progman "Program Manager"      the desktop window
//     Vellatro_Calendar            ours, once it is attached: above the icons
//     SHELLDLL_DefView             the view
//       SysListView32              the icon list
//   WorkerW                        none, or some, empty
//
// Some pictures and programs make the shell move the view into a WorkerW. Then there is no view in Progman,
// and the calendar stays a window of its own below all others, as it does under another shell and while the
// shell hangs. When the shell ends, its windows take the calendar's down with them.

Shell_Window Find_Desktop_Window() {
    return Id_Of(FindWindowW(L"Progman", L"Program Manager"));
}

Shell_Window Find_Shell_View(Shell_Window desktop) {
    return Id_Of(FindWindowExW(Window_Of(desktop), nullptr, L"SHELLDLL_DefView", nullptr));
}

Shell_Window Find_Icon_List(Shell_Window view) {
    return Id_Of(FindWindowExW(Window_Of(view), nullptr, L"SysListView32", nullptr));
}

std::optional<Label_Colours> Icon_Label_Colours(Shell_Window list, unsigned patience) {
    const std::optional<Colour> background = Ask_Colour(Window_Of(list), Get_Text_Background, patience);
    if (!background)
        return std::nullopt;
    const std::optional<Colour> text = Ask_Colour(Window_Of(list), Get_Text_Colour, patience);
    if (!text)
        return std::nullopt;
    return Label_Colours{*background, *text};
}

void Attach_To_Desktop(const Form_Model &model, Shell_Window desktop) {
    const HWND window = win32::Window_Of_Form(model);
    if (window == nullptr)
        return;
    // A child only for the length of the call, as its documentation asks; Wine would also give a pop-up
    // window the keyboard, whatever the user is typing in. Afterwards it is a pop-up again: the keyboard of a
    // child belongs to the window at the top, here the shell's, and comes to the calendar under Windows only
    // as long as the shell answers, and under Wine never. A pop-up window is activated by itself. Its place,
    // drawing, region and end follow from the parent, whatever the style.
    Change_Style(window, WS_POPUP, WS_CHILD);
    SetParent(window, Window_Of(desktop));
    Change_Style(window, WS_CHILD, WS_POPUP);
    if (GetAncestor(window, GA_PARENT) != Window_Of(desktop))
        return;
    // A parent takes a new child in above the others; the calendar relies on standing above the icons.
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    win32::Check_Scale(false);
    Form_Changed(model, Aspect::Bounds);
}

void Open_Web_Page(const char *address) {
    if (const auto execute = win32::Look_Up<decltype(ShellExecuteW)>(L"shell32.dll", "ShellExecuteW"))
        execute(nullptr, nullptr, win32::To_Wide(address).c_str(), nullptr, L"C:\\", SW_SHOWNORMAL);
}

} // namespace platform

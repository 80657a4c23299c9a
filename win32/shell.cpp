#include "platform/shell.h"

#include "win32/mirror.h"
#include "win32/system_library.h"
#include "win32/wide_text.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

namespace {

/// Messages of the list view control. Defining them here avoids the control's large header.
constexpr UINT Get_Text_Background = 0x1025; // LVM_GETTEXTBKCOLOR
constexpr UINT Get_Text_Colour = 0x1023;     // LVM_GETTEXTCOLOR

HWND Window_Of(Shell_Window id) {
    return reinterpret_cast<HWND>(id);
}

Shell_Window Id_Of(HWND window) {
    return reinterpret_cast<Shell_Window>(window);
}

/// The style of a window without a surface of its own (WS_EX_NOREDIRECTIONBITMAP).
constexpr DWORD Without_Surface = 0x00200000;

void Change_Style(HWND window, DWORD take, DWORD give) {
    const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    SetWindowLongW(window, GWL_STYLE, static_cast<LONG>((style & ~take) | give));
}

HWND View_In(HWND holder) {
    return FindWindowExW(holder, nullptr, L"SHELLDLL_DefView", nullptr);
}

bool Has_Extended(HWND window, DWORD style) {
    return (static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE)) & style) != 0;
}

/// Gives the window a fully opaque surface of its own by making it layered, or takes the surface away.
void Set_Layered(HWND window, bool layered) {
    if (Has_Extended(window, WS_EX_LAYERED) == layered)
        return;
    const LONG style = GetWindowLongW(window, GWL_EXSTYLE);
    SetWindowLongW(window, GWL_EXSTYLE, style ^ WS_EX_LAYERED);
    // The system shows a layered window only once it has attributes.
    if (layered && !SetLayeredWindowAttributes(window, 0, 255, LWA_ALPHA)) {
        SetWindowLongW(window, GWL_EXSTYLE, style);
        return;
    }
    InvalidateRect(window, nullptr, FALSE);
}

/// Returns whether `upper` is above its sibling `lower`.
bool Is_Above(HWND upper, HWND lower) {
    HWND above = lower;
    while (above != nullptr && above != upper)
        above = GetWindow(above, GW_HWNDPREV);
    return above != nullptr;
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
//   WorkerW                        any number, most of them empty
//   Progman "Program Manager"      the desktop window
//     Vellatro_Calendar            the calendar, if attached: above the icons
//     SHELLDLL_DefView             the view
//       SysListView32              the icon list
//     WorkerW                      on newer systems the wallpaper of a raised desktop, below the view
//
// "Show desktop", slide shows, the fade from one wallpaper to the next and some programs make the shell move
// the view into a WorkerW at the top, and back later. A WorkerW that holds the view covers Progman and its
// children, so the calendar belongs beside the view. Under another shell, and while the shell hangs, the
// calendar is a separate window below all others. When the shell ends, its windows take the calendar's
// window with them.

Shell_Window Find_Desktop_Window() {
    return Id_Of(FindWindowW(L"Progman", L"Program Manager"));
}

std::optional<Icon_View> Find_Icon_View(Shell_Window desktop) {
    HWND view = View_In(Window_Of(desktop));
    HWND worker = nullptr;
    while (view == nullptr && (worker = FindWindowExW(nullptr, worker, L"WorkerW", nullptr)) != nullptr)
        view = View_In(worker);
    if (view == nullptr)
        return std::nullopt;
    const HWND holder = GetAncestor(view, GA_PARENT);
    const HWND list = FindWindowExW(view, nullptr, L"SysListView32", nullptr);
    if (holder == nullptr || list == nullptr)
        return std::nullopt;
    return Icon_View{Id_Of(holder), Id_Of(view), Id_Of(list)};
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

bool Attach_To_Desktop(const Form_Model &model, Shell_Window holder) {
    const HWND window = win32::Window_Of_Form(model);
    if (window == nullptr)
        return false;
    // The window must not be layered during SetParent.
    Set_Layered(window, false);
    // SetParent requires a child window, so give the window that style during the call. With the pop-up
    // style, Wine would also move the keyboard focus to the window, away from the program that the user is
    // typing in. Give the window the pop-up style again afterwards. The keyboard input of a child belongs to
    // its top-level window, here the shell's: on Windows the child gets keys only while the shell responds,
    // on Wine never. The system activates a pop-up window on its own. With either style, its position,
    // drawing, region and destruction depend on the parent.
    Change_Style(window, WS_POPUP, WS_CHILD);
    SetParent(window, Window_Of(holder));
    Change_Style(window, WS_CHILD, WS_POPUP);
    if (GetAncestor(window, GA_PARENT) != Window_Of(holder))
        return false;
    Set_Layered(window, Has_Extended(Window_Of(holder), Without_Surface));
    // SetParent usually puts a new child above the others. Make sure of that, because the calendar must be
    // above the icons.
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    win32::Check_Scale(false);
    Form_Changed(model, Aspect::Bounds);
    return true;
}

void Keep_Over_View(const Form_Model &model, Shell_Window view) {
    const HWND window = win32::Window_Of_Form(model);
    const HWND holder = GetAncestor(Window_Of(view), GA_PARENT);
    if (window == nullptr || holder == nullptr)
        return;
    Set_Layered(window, Has_Extended(holder, Without_Surface));
    if (Is_Above(Window_Of(view), window))
        SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Open_Web_Page(const char *address) {
    if (const auto execute = win32::Look_Up<decltype(ShellExecuteW)>(L"shell32.dll", "ShellExecuteW"))
        execute(nullptr, nullptr, win32::To_Wide(address).c_str(), nullptr, L"C:\\", SW_SHOWNORMAL);
}

} // namespace platform

#include "win32/tooltips.h"

#include "base/cut_text.h"
#include "base/reading_direction.h"
#include "win32/broadcasts.h"
#include "win32/mirror.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace win32 {

namespace {

/// The most UTF-16 units of a tip. Longer texts fit on no screen and take long to lay out.
constexpr std::size_t longest_text = 32000;

/// The usual width of a tip, which a long text may exceed, and the space that a tip needs besides its text.
/// Both are in pixels at 96 dots per inch.
constexpr int usual_width = 300;
constexpr int border = 16;

void Truncate(std::wstring &text, std::size_t length) {
    text.resize(Whole_Code_Points(text, length));
    text += L"...";
}

/// Returns the size of the text when wrapped at `width`. The text is wider than `width` only if a single word
/// is.
SIZE Measure_Text(HDC dc, const std::wstring &text, LONG width) {
    RECT rect = {0, 0, width, 0};
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXTERNALLEADING);
    return {rect.right, rect.bottom};
}

/// Returns the text with line breaks inside words that are wider than `width`, because the system does not
/// break words.
std::wstring With_Broken_Words(HDC dc, std::wstring_view text, LONG width) {
    std::wstring broken;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of(L" \t\r\n");
        const std::wstring_view word = text.substr(0, end == std::wstring_view::npos ? end : end + 1);
        // No line on a screen has more characters.
        const std::size_t looked_at = std::min<std::size_t>(word.size(), 4096);
        int fitting = 0;
        SIZE size = {};
        GetTextExtentExPointW(dc, word.data(), static_cast<int>(looked_at), static_cast<int>(width), &fitting,
                              nullptr, &size);
        // The blank after a word needs no space.
        const auto taken = static_cast<std::size_t>(std::max(fitting, 2));
        if (taken + 1 >= word.size()) {
            broken += word;
            text.remove_prefix(word.size());
        } else {
            const std::size_t part = Whole_Code_Points(word, taken);
            (broken += word.substr(0, part)) += L'\n';
            text.remove_prefix(part);
        }
    }
    return broken;
}

/// Makes the text fit into `room`, the space on the screen. Breaks words that are too wide, and cuts the text
/// only if it is too long even at the full width. Returns the width at which to wrap the text.
LONG Fit_Text(HDC dc, std::wstring &text, const SIZE &room) {
    if (text.size() > longest_text)
        Truncate(text, longest_text);
    LONG width = std::min<LONG>(Scale_Nearest(usual_width, platform::Dots_Per_Inch(), 96), room.cx);
    SIZE size = Measure_Text(dc, text, width);
    if (size.cx > room.cx) {
        text = With_Broken_Words(dc, text, room.cx);
        width = room.cx;
        size = Measure_Text(dc, text, width);
    }
    while (size.cy > room.cy && width < room.cx) {
        width = std::min(width + width / 2, room.cx);
        size = Measure_Text(dc, text, width);
    }
    while (size.cy > room.cy && room.cy > 0 && text.size() > 64) {
        // Cut slightly more than in proportion, so that the loop ends soon.
        Truncate(text, text.size() * static_cast<std::size_t>(room.cy) / static_cast<std::size_t>(size.cy) *
                           15 / 16);
        size = Measure_Text(dc, text, width);
    }
    return width;
}

} // namespace

TTTOOLINFOW Tooltips::Tool_Of(HWND owner, std::size_t index) const {
    TTTOOLINFOW tool = {};
    // All versions of the common controls accept the size of the first version.
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = owner;
    tool.uId = index + 1;
    if (!windows_.empty()) {
        tool.uFlags = TTF_SUBCLASS | TTF_IDISHWND;
        tool.uId = reinterpret_cast<UINT_PTR>(windows_[index]);
    }
    // Let the system ask for the text when the tip appears, because each tip has its own width.
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    return tool;
}

bool Tooltips::Make_Window() {
    if (window_ != nullptr && IsWindow(window_))
        return true;
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    // Create the window without an owner. The owner would be the shell's window that holds the calendar, and
    // the system would destroy the tooltip window with it.
    window_ = CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    tools_.clear();
    // Keep the tip while the mouse rests, because a long text takes time to read. 32767 ms is the maximum.
    SendMessageW(window_, TTM_SETDELAYTIME, TTDT_AUTOPOP, MAKELPARAM(32767, 0));
    return window_ != nullptr;
}

void Tooltips::Update(HWND owner, const platform::Form_Model &model, std::vector<HWND> windows) {
    windows_ = std::move(windows);
    if (windows_.empty() && !hovered_)
        return;
    bool any = false;
    for (const platform::Control_State *control : model.controls)
        any = any || (control->visible && !control->tooltip.empty());
    if (!any && tools_.empty())
        return;
    if (!Make_Window())
        return;
    tools_.resize(model.controls.size());
    for (std::size_t i = 0; i < tools_.size(); ++i) {
        const platform::Control_State &control = *model.controls[i];
        Tool wanted;
        // The system hides the tool of a hidden window.
        wanted.present =
            !control.tooltip.empty() && (windows_.empty() ? control.visible : windows_[i] != nullptr);
        if (wanted.present) {
            wanted.rect = To_Pixels(control.bounds);
            wanted.text = control.tooltip;
        }
        Update_Tool(owner, i, std::move(wanted));
    }
}

void Tooltips::Update_Tool(HWND owner, std::size_t index, Tool wanted) {
    Tool &known = tools_[index];
    TTTOOLINFOW tool = Tool_Of(owner, index);
    const auto pointer = reinterpret_cast<LPARAM>(&tool);
    if (!wanted.present) {
        if (known.present)
            SendMessageW(window_, TTM_DELTOOLW, 0, pointer);
    } else if (!known.present) {
        tool.rect = wanted.rect;
        wanted.present = SendMessageW(window_, TTM_ADDTOOLW, 0, pointer) != FALSE;
    } else {
        tool.rect = wanted.rect;
        if (!EqualRect(&known.rect, &wanted.rect))
            SendMessageW(window_, TTM_NEWTOOLRECTW, 0, pointer);
        if (std::exchange(known.text, wanted.text) != wanted.text)
            SendMessageW(window_, TTM_UPDATETIPTEXTW, 0, pointer);
    }
    known = std::move(wanted);
}

void Tooltips::Relay(HWND owner, const platform::Form_Model &model, UINT message, WPARAM wparam,
                     LPARAM lparam) {
    if (!std::exchange(hovered_, true))
        Update(owner, model);
    if (window_ == nullptr)
        return;
    MSG relayed = {owner, message, wparam, lparam, 0, {}};
    // Since Windows 7, the extra information tells a touch from the mouse. Older systems ignore it.
    SendMessageW(window_, TTM_RELAYEVENT, static_cast<WPARAM>(GetMessageExtraInfo()),
                 reinterpret_cast<LPARAM>(&relayed));
}

void Tooltips::Pop() const {
    if (window_ != nullptr)
        SendMessageW(window_, TTM_POP, 0, 0);
}

/// Returns whether a tip would be in the user's way: while the user holds a mouse button, has a menu open or
/// moves a window. For a painted form, also returns true while a dialog of the program is visible.
bool Tooltips::In_The_Way() const {
    if (platform::Mouse_Button_Held() || In_Menu_Or_Move())
        return true;
    const auto mirrors = All_Mirrors();
    return windows_.empty() && std::any_of(mirrors.begin(), mirrors.end(), [](const auto &mirror) {
               const platform::Form_Model *form = mirror->Model();
               return form != nullptr && form->kind == platform::Form_Kind::Dialog && form->visible;
           });
}

bool Tooltips::Answer(NMHDR &notice) {
    if (notice.hwndFrom != window_ || window_ == nullptr || notice.code != TTN_GETDISPINFOW)
        return false;
    const auto window = std::find(windows_.begin(), windows_.end(), reinterpret_cast<HWND>(notice.idFrom));
    const std::size_t index =
        windows_.empty() ? notice.idFrom - 1 : static_cast<std::size_t>(window - windows_.begin());
    if (index >= tools_.size())
        return false;
    auto &answer = reinterpret_cast<NMTTDISPINFOW &>(notice);
    shown_ = In_The_Way() ? std::wstring() : To_Wide(tools_[index].text);
    POINT mouse = {};
    GetCursorPos(&mouse);
    const Rect area = platform::Work_Area_Around({mouse.x, mouse.y});
    const int around = Scale_Nearest(border, platform::Dots_Per_Inch(), 96);
    const Window_Dc dc(window_);
    const Selected_Object font(dc.Get(), reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0)));
    const LONG width = Fit_Text(dc.Get(), shown_, {area.width - around, area.height - around});
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, width);
    answer.lpszText = shown_.data();
    if (Is_Right_To_Left(tools_[index].text))
        answer.uFlags |= TTF_RTLREADING;
    return true;
}

void Tooltips::Window_Gone() {
    if (window_ != nullptr && IsWindow(window_))
        DestroyWindow(window_);
    window_ = nullptr;
    tools_.clear();
}

} // namespace win32

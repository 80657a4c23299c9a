// Native tooltips over the controls of painted forms.
#include "win32/tooltips.h"

#include "win32/units.h"
#include "win32/wide_text.h"

#include <commctrl.h>

namespace win32 {

namespace {

/// A text that fills the screen helps nobody, and laying it out takes time.
constexpr std::size_t longest_text = 4000;

constexpr int width_at_96_dots = 300;

std::wstring Tip_Text(const std::string &text) {
    std::wstring wide = To_Wide(text);
    if (wide.size() > longest_text) {
        wide.resize(longest_text - ((wide[longest_text] & 0xFC00) == 0xDC00 ? 1 : 0));
        wide += L"...";
    }
    return wide;
}

TTTOOLINFOW Tool_Of(HWND owner, std::size_t index) {
    TTTOOLINFOW tool = {};
    // The first version's size is the one that all versions of the common controls take.
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = owner;
    tool.uId = index + 1;
    return tool;
}

} // namespace

bool Tooltips::Make_Window(HWND owner) {
    if (window_ != nullptr && IsWindow(window_))
        return true;
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    window_ = CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr, GetModuleHandleW(nullptr), nullptr);
    tools_.clear();
    // As long as the mouse rests there: a long text takes its time to read. 32767 ms is the most.
    SendMessageW(window_, TTM_SETDELAYTIME, TTDT_AUTOPOP, MAKELPARAM(32767, 0));
    return window_ != nullptr;
}

void Tooltips::Update(HWND owner, const platform::Form_Model &model) {
    bool any = false;
    for (const platform::Control_State *control : model.controls)
        any = any || (control->visible && !control->tooltip.empty());
    if (!any && tools_.empty())
        return;
    if (!Make_Window(owner))
        return;
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0,
                 Scale_Nearest(width_at_96_dots, platform::Dots_Per_Inch(), 96));
    tools_.resize(model.controls.size());
    for (std::size_t i = 0; i < tools_.size(); ++i) {
        const platform::Control_State &control = *model.controls[i];
        Tool wanted;
        wanted.present = control.visible && !control.tooltip.empty();
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
        std::wstring text = Tip_Text(wanted.text);
        tool.rect = wanted.rect;
        tool.lpszText = text.data();
        wanted.present = SendMessageW(window_, TTM_ADDTOOLW, 0, pointer) != FALSE;
    } else {
        tool.rect = wanted.rect;
        if (!EqualRect(&known.rect, &wanted.rect))
            SendMessageW(window_, TTM_NEWTOOLRECTW, 0, pointer);
        if (known.text != wanted.text) {
            std::wstring text = Tip_Text(wanted.text);
            tool.lpszText = text.data();
            SendMessageW(window_, TTM_UPDATETIPTEXTW, 0, pointer);
        }
    }
    known = std::move(wanted);
}

void Tooltips::Window_Gone() {
    if (window_ != nullptr && IsWindow(window_))
        DestroyWindow(window_);
    window_ = nullptr;
    tools_.clear();
}

} // namespace win32

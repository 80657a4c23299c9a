#include "win32/dialog_lists.h"

#include "win32/fonts.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string>

namespace win32 {

using platform::Control_Kind;
using platform::Control_State;

namespace {

constexpr int most_items_shown = 12;
constexpr int around_text = 2 * 15; ///< total space above and below the text of a combo box, in twips

/// A fast measure for many texts in one font: the width of a pure ASCII text is the sum of tabulated
/// character widths.
class Text_Measure {
public:
    explicit Text_Measure(const platform::Font &font) : dc_(Measuring_Dc(font)) {
        for (wchar_t character = 0; character < static_cast<wchar_t>(widths_.size()); ++character)
            widths_[character] = Extent(std::wstring(1, character));
    }

    int Width(const std::wstring &text) const {
        int width = 0;
        for (const wchar_t character : text) {
            if (character >= widths_.size())
                return Extent(text);
            width += widths_[character];
        }
        return width;
    }

private:
    int Extent(const std::wstring &text) const {
        SIZE size = {};
        // No list is wide enough to show more characters.
        const std::size_t length = std::min<std::size_t>(text.size(), 8192);
        GetTextExtentPoint32W(dc_, text.data(), static_cast<int>(length), &size);
        return static_cast<int>(size.cx);
    }

    HDC dc_;
    std::array<int, 128> widths_ = {};
};

int Widest_Item(const Control_State &control) {
    const Text_Measure measure(control.font);
    int widest = 0;
    for (const std::string &item : control.items)
        widest = std::max(widest, measure.Width(To_Wide(item)));
    // The system's 16-bit coordinates end at 32767.
    return std::min(widest, 30000);
}

LRESULT Send_Text(HWND window, UINT message, const std::string &text) {
    return SendMessageW(window, message, 0, reinterpret_cast<LPARAM>(To_Wide(text).c_str()));
}

void Fill_List_Box(HWND list, const Control_State &control) {
    const LRESULT top = SendMessageW(list, LB_GETTOPINDEX, 0, 0);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    SendMessageW(list, LB_INITSTORAGE, control.items.size(), static_cast<LPARAM>(control.items.size()) * 64);
    for (const std::string &item : control.items)
        Send_Text(list, LB_ADDSTRING, item);
    SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void Fill_Tab_Strip(HWND tabs, const Control_State &control) {
    SendMessageW(tabs, TCM_DELETEALLITEMS, 0, 0);
    for (std::size_t i = 0; i < control.items.size(); ++i) {
        std::wstring text = To_Wide(control.items[i]);
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        SendMessageW(tabs, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
}

void Fill_Combo_Box(HWND combo, const Control_State &control) {
    SendMessageW(combo, CB_RESETCONTENT, 0, 0);
    for (const std::string &item : control.items)
        Send_Text(combo, CB_ADDSTRING, item);
}

} // namespace

void Fill_List(HWND window, const Control_State &control) {
    if (control.kind == Control_Kind::List_Box)
        Fill_List_Box(window, control);
    else if (control.kind == Control_Kind::Combo_Box)
        Fill_Combo_Box(window, control);
    else
        Fill_Tab_Strip(window, control);
    Fit_Widest_Item(window, control);
}

void Fit_Widest_Item(HWND window, const Control_State &control) {
    const int margin = 2 * GetSystemMetrics(SM_CXEDGE) + To_Pixels(60);
    if (control.kind == Control_Kind::List_Box) {
        SendMessageW(window, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(Widest_Item(control) + margin), 0);
    } else if (control.kind == Control_Kind::Combo_Box) {
        const int bar = GetSystemMetrics(SM_CXVSCROLL);
        const int room = GetSystemMetrics(SM_CXSCREEN);
        // The system uses the combo box's own width if that is larger.
        const int width = std::min(Widest_Item(control) + margin + bar, room);
        SendMessageW(window, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width), 0);
    }
}

void Set_Combo_Heights(HWND combo, int pixels, const Control_State &control) {
    constexpr auto field = static_cast<WPARAM>(-1);
    RECT now = {};
    GetWindowRect(combo, &now);
    const auto field_height = static_cast<int>(SendMessageW(combo, CB_GETITEMHEIGHT, field, 0));
    const int around = static_cast<int>(now.bottom - now.top) - field_height;
    const int needed = To_Pixels(platform::Line_Height(control.font));
    // Some systems draw the text at the top of the field, so make the field hardly higher than its text.
    // Centre the whole combo box in its place instead.
    const int wanted = std::clamp(pixels - around, needed, needed + To_Pixels(around_text));
    if (around > 0 && wanted != field_height)
        SendMessageW(combo, CB_SETITEMHEIGHT, field, wanted);
    // The height of a combo box includes its open list. Newer systems use the number of items from
    // CB_SETMINVISIBLE instead, by default 30.
    SendMessageW(combo, CB_SETMINVISIBLE, most_items_shown, 0);
    const int shown = std::clamp(static_cast<int>(control.items.size()), 1, most_items_shown);
    const auto item_height = static_cast<int>(SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0));
    const int whole = wanted + around + shown * item_height + 2 * GetSystemMetrics(SM_CYEDGE);
    GetWindowRect(combo, &now);
    MapWindowPoints(nullptr, GetParent(combo), reinterpret_cast<POINT *>(&now), 2);
    SetWindowPos(combo, nullptr, now.left, now.top + std::max(0, (pixels - wanted - around) / 2),
                 now.right - now.left, whole, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Select_Item(HWND window, const Control_State &control, int item) {
    const UINT message = control.kind == Control_Kind::List_Box    ? LB_SETCURSEL
                         : control.kind == Control_Kind::Combo_Box ? CB_SETCURSEL
                                                                   : TCM_SETCURSEL;
    SendMessageW(window, message, static_cast<WPARAM>(item), 0);
}

int Selected_Item(HWND window, const Control_State &control) {
    const UINT message = control.kind == Control_Kind::List_Box    ? LB_GETCURSEL
                         : control.kind == Control_Kind::Combo_Box ? CB_GETCURSEL
                                                                   : TCM_GETCURSEL;
    return static_cast<int>(SendMessageW(window, message, 0, 0));
}

} // namespace win32

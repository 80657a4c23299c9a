#include "platform/menu.h"

#include "win32/menu_images.h"
#include "win32/mirror.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <cstdlib>
#include <optional>
#include <utility>

namespace platform {

namespace {

/// Makes the menu show bitmaps in the check mark column, because no item is ever checked. Removes that column
/// if the pictures are owner-drawn, because these have a column of their own.
void Set_Check_Column(HMENU menu) {
    MENUINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIM_STYLE;
    info.dwStyle = win32::Menu_Images::Show_Transparency() ? MNS_CHECKORBMP : MNS_NOCHECK;
    SetMenuInfo(menu, &info);
}

void Append_Line(HMENU menu) {
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    info.fType = MFT_SEPARATOR;
    InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
}

void Append_Item(HMENU menu, const Menu_Item &item, win32::Menu_Images &images) {
    if (item.separator_before)
        Append_Line(menu);
    std::wstring text = win32::To_Wide(item.text);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_STRING | MIIM_STATE;
    info.fState = item.enabled ? MFS_ENABLED : MFS_GRAYED;
    info.wID = static_cast<UINT>(item.id);
    info.dwTypeData = text.data();
    images.Set(info, item.image);
    InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
}

/// The press of the right button that opens a menu. While this object exists, a release of the button soon
/// after the press, or near it, completes a click and chooses no item: a hand moves a little during a click.
/// At most one object exists.
class Opening_Press {
public:
    Opening_Press() : place_(GetMessagePos()), time_(GetMessageTime()) {
        open_ = this;
        hook_ = SetWindowsHookExW(WH_MSGFILTER, Filter, nullptr, GetCurrentThreadId());
    }
    ~Opening_Press() {
        UnhookWindowsHookEx(hook_);
        open_ = nullptr;
    }
    Opening_Press(const Opening_Press &) = delete;
    Opening_Press &operator=(const Opening_Press &) = delete;

private:
    /// Filters the menu's messages before the menu gets them. Returns 1 to drop a message.
    static LRESULT CALLBACK Filter(int code, WPARAM wparam, LPARAM message_address) {
        const auto &message = *reinterpret_cast<const MSG *>(message_address);
        if (code == MSGF_MENU && open_ != nullptr && open_->Is_Click(message))
            return 1;
        return CallNextHookEx(nullptr, code, wparam, message_address);
    }

    /// Returns whether `message` is the release of the right button and completes a click.
    bool Is_Click(const MSG &message) {
        const bool released = message.message == WM_RBUTTONUP;
        if (!released && message.message != WM_RBUTTONDOWN)
            return false;
        if (!std::exchange(held_, false) || !released)
            return false;
        constexpr DWORD short_time = 250; // milliseconds
        const POINTS pressed = MAKEPOINTS(place_);
        return message.time - static_cast<DWORD>(time_) < short_time ||
               (std::abs(message.pt.x - pressed.x) <= GetSystemMetrics(SM_CXDRAG) &&
                std::abs(message.pt.y - pressed.y) <= GetSystemMetrics(SM_CYDRAG));
    }

    static inline Opening_Press *open_ = nullptr;
    HHOOK hook_ = nullptr;
    DWORD place_; ///< packed screen coordinates, as from GetMessagePos
    LONG time_;   ///< in milliseconds, as in MSG
    bool held_ = true;
};

} // namespace

int Track_Popup_Menu(const Form_Model &owner, const std::vector<Menu_Item> &items, const Point *at) {
    const HWND window = win32::Window_Of_Form(owner);
    win32::Menu_Images images;
    const win32::Unique_Menu menu(CreatePopupMenu());
    if (window == nullptr || !menu)
        return 0;
    Set_Check_Column(menu.get());
    for (const Menu_Item &item : items)
        Append_Item(menu.get(), item, images);
    POINT place = {};
    GetCursorPos(&place);
    if (at != nullptr) {
        place = {win32::To_Pixels(at->x), win32::To_Pixels(at->y)};
        ClientToScreen(window, &place);
    }
    // If the window were not in the foreground, a click elsewhere would not close the menu. The WM_NULL below
    // keeps the next menu from closing at once.
    SetForegroundWindow(window);
    std::optional<Opening_Press> press;
    if (at == nullptr)
        press.emplace();
    constexpr UINT flags = TPM_RETURNCMD | TPM_NONOTIFY | TPM_CENTERALIGN | TPM_RIGHTBUTTON;
    static_assert(flags == 390);
    const BOOL chosen = TrackPopupMenu(menu.get(), flags, place.x, place.y, 0, window, nullptr);
    PostMessageW(window, WM_NULL, 0, 0);
    return static_cast<int>(chosen);
}

} // namespace platform

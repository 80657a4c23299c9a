// The native controls of dialogs, driven as the system drives them: the form receives what the user does, and
// nothing about its own changes. These tests need Windows.
#ifdef _WIN32
#include "base/twips.h"
#include "platform/forms.h"
#include "platform/message_box.h"
#include "platform/message_loop.h"
#include "platform/screen.h"
#include "tests/contract/contract.h"
#include "win32/dialog_edit.h"
#include "win32/mirror.h"
#include "win32/modal.h"

#include <windows.h>

#include <commctrl.h>

namespace {

using platform::Aspect;
using platform::Control_Kind;
using platform::Control_State;
using platform::Input_Event;
using platform::Input_Kind;

enum { Tabs, Page, Group, Opt_1, Opt_2, Check, Combo, Typed, List, Thumb, Bar, Field, Picture, Over, Shut };

constexpr const char *event_names[] = {"down",  "up",   "move",     "double", "key",       "keyup",
                                       "click", "text", "selected", "scroll", "activated", "default"};

/// A dialog with a control of each kind. Its form follows the user's input like a toolkit form.
class Dialog_Contract : public ::testing::Test {
protected:
    Dialog_Contract() {
        using enum Control_Kind;
        const Control_Kind kinds[] = {Tab_Strip,    Frame,     Frame,       Option_Button, Option_Button,
                                      Check_Box,    Combo_Box, Combo_Box,   List_Box,      Slider,
                                      Progress_Bar, Text_Box,  Picture_Box, Label,         Label};
        for (int i = 0; i <= Shut; ++i) {
            Control_State &control = controls_[i];
            control.kind = kinds[i];
            control.index = i;
            control.container = i < Group ? -1 : i == Opt_1 || i == Opt_2 ? Group : Page;
            control.bounds = {0, 15 * 20 * i, 1500, 300};
            control.items = {"One", "Two", "Three"};
            control.painted = i == Picture || i == Over;
            control.paint = [](platform::Canvas &canvas, const Rect &) {
                platform::Fill_Rect(canvas, {0, 0, 750, 300}, Rgb(10, 200, 30));
            };
            model_.controls.push_back(&control);
        }
        controls_[Tabs].bounds = controls_[Page].bounds = {0, 0, 6000, 9000};
        controls_[Over].bounds = controls_[Picture].bounds;
        controls_[Over].bounds.width = 300;
        controls_[Group].caption = controls_[Field].caption = controls_[List].tooltip = "Text";
        controls_[Typed].editable = controls_[Field].read_only = controls_[Picture].tab_stop = true;
        controls_[Thumb].minimum = controls_[Thumb].value = 1;
        controls_[Shut].enabled = controls_[Over].visible = false;
        model_.name = "Contract_Frm";
        model_.bounds = {300, 300, 6000, 9000};
        model_.visible = true;
        model_.input = [this](const Input_Event &event) { Follow(event); };
        platform::Create_Mirror(model_);
        window_ = FindWindowW(L"Vellatro_Contract_Frm", nullptr);
    }
    ~Dialog_Contract() override { platform::Destroy_Mirror(model_); }

    void Follow(const Input_Event &event) {
        if (event.kind == Input_Kind::Window_Moved)
            moved_to_ = event.point;
        (event.kind == Input_Kind::Scale_Changed ? laid_out_at_ : heard_at_) = platform::Dots_Per_Inch();
        if (event.control < 0 || platform::Modal_Box_Is_Open())
            return;
        Control_State &control = controls_[event.control];
        if (event.kind == Input_Kind::Clicked)
            control.checked = event.checked;
        (control.kind == Control_Kind::Slider ? control.value : control.selected) = event.selected;
        log_ += event_names[static_cast<int>(event.kind)] + (" " + std::to_string(event.control)) + " ";
        log_ += event.kind == Input_Kind::Text_Changed ? event.text
                : event.kind == Input_Kind::Clicked    ? (event.checked ? "on" : "off")
                : event.kind == Input_Kind::Key_Down   ? std::to_string(event.key)
                : event.kind <= Input_Kind::Mouse_Move
                    ? "-LRM"[static_cast<int>(event.button)] + std::to_string(event.point.x)
                    : std::to_string(event.selected);
        log_ += "; ";
    }

    std::string Take_Log() { return std::exchange(log_, {}); }
    HWND Native(int index) const { return GetDlgItem(window_, 100 + index); }
    HWND Typed_Text() const { return GetWindow(Native(Typed), GW_CHILD); }
    void Change(int index, Aspect aspect) {
        platform::Control_Changed(model_, controls_[index], aspect, controls_[index].bounds);
    }
    LRESULT Send(int index, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
        return SendMessageW(Native(index), message, wparam, lparam);
    }
    /// Sends the dialog a standard control's notification.
    void Notify(int index, int code) {
        SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(MAKELONG(100 + index, code)),
                     reinterpret_cast<LPARAM>(Native(index)));
    }
    void Press_Tab(WPARAM item) {
        RECT place = {};
        Send(Tabs, TCM_GETITEMRECT, item, reinterpret_cast<LPARAM>(&place));
        Send(Tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.left + 5, place.top + 5));
        Send(Tabs, WM_LBUTTONUP, 0, MAKELPARAM(place.left + 5, place.top + 5));
    }
    /// Sends a key through the message queue, with or without Ctrl.
    void Type(int index, WPARAM key, bool with_control = false) {
        BYTE keys[256] = {};
        keys[VK_CONTROL] = with_control ? 0x80 : 0;
        SetKeyboardState(keys);
        PostMessageW(index == Typed ? Typed_Text() : Native(index), WM_KEYDOWN, key, 1);
        platform::Process_Waiting_Messages();
        SetKeyboardState(std::fill_n(keys, 256, BYTE{0}) - 256);
    }

    Control_State controls_[Shut + 1];
    platform::Form_Model model_;
    HWND window_ = nullptr;
    std::string log_;
    Point moved_to_;
    int laid_out_at_ = 0, heard_at_ = 0;
};

TEST_F(Dialog_Contract, The_Form_Hears_What_The_User_Does) {
    const auto twips = [](int pixels) {
        return std::to_string(Pixels_To_Twips(pixels, platform::Dots_Per_Inch()));
    };
    const std::pair<std::function<void()>, std::string> cases[] = {
        {[this] { Notify(Opt_1, BN_CLICKED); }, ""}, // as when it gets the focus by keyboard
        {[this] { Send(Opt_2, BM_CLICK); }, "click 4 on; "},
        {[this] { Send(Check, BM_CLICK), Send(Check, BM_CLICK); }, "click 5 on; click 5 off; "},
        // Esc, with a disabled cancel button.
        {[this] { controls_[Shut].is_cancel = true, SendMessageW(window_, WM_COMMAND, IDCANCEL, 0); }, ""},
        {[this] { Send(Combo, CB_SETCURSEL, 2), Notify(Combo, CBN_SELCHANGE); }, "selected 6 2; "},
        // A list that closes with another item than it opened with.
        {[this] { Send(Combo, CB_SETCURSEL, 1), Notify(Combo, CBN_CLOSEUP); }, "selected 6 1; "},
        {[this] { SendMessageA(Typed_Text(), WM_CHAR, 'x', 0); }, "text 7 x; "},
        {[this] { SendMessageA(Typed_Text(), EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(" yz ")); },
         "text 7 x yz ; "},
        {[this] { Type(Typed, VK_BACK, true); }, "text 7 x ; "},
        {[this] { SendMessageW(Typed_Text(), WM_CHAR, L'\u65E5', 0); }, "text 7 x \u65E5; "},
        {[this] { Send(Typed, CB_SETCURSEL, 1), Notify(Typed, CBN_CLOSEUP); }, "text 7 Two; "},
        // A text that is only read.
        {[this] { Send(Field, EM_SETSEL, 0, -1), Send(Field, WM_COPY), Send(Field, WM_PASTE); }, ""},
        {[this] { Send(List, LB_SETCURSEL, 1), Notify(List, LBN_SELCHANGE); }, "selected 8 1; "},
        {[this] { Notify(List, LBN_DBLCLK); }, "activated 8 1; "},
        {[this] { Type(List, VK_DELETE), Type(List, VK_RETURN); }, "key 8 46; key 8 13; "},
        {[this] { Press_Tab(1); }, "selected 0 1; "},
        {[this] { Type(List, VK_TAB, true); }, "selected 0 2; "},
        {[this] { Type(Check, VK_NEXT, true), Type(Check, VK_PRIOR, true); }, "selected 0 0; selected 0 2; "},
        // A slider that does not move.
        {[this] { Send(Thumb, WM_KEYDOWN, VK_LEFT), Send(Thumb, WM_KEYUP, VK_LEFT); }, ""},
        {[this] { Send(Thumb, WM_KEYDOWN, VK_RIGHT), Send(Thumb, WM_KEYUP, VK_RIGHT); },
         "scroll 9 2; selected 9 2; "},
        {[this] { Send(Picture, WM_LBUTTONDOWN, MK_LBUTTON, 4); }, "down 12 L" + twips(4) + "; "},
        {[this] { Send(Picture, WM_LBUTTONUP, 0, 6); }, "up 12 L" + twips(6) + "; "},
        {[this] { Type(Picture, VK_LEFT), Type(Picture, VK_SPACE); }, "key 12 37; click 12 off; "},
        {[this] { Send(Picture, WM_KEYDOWN, VK_SPACE, KF_REPEAT << 16); }, ""}, // held down
        {[this] { Type(Picture, VK_RETURN); }, ""}, // the default button gets the key
        {[this] { controls_[Picture].access.default_action = "Pick", Type(Picture, VK_RETURN); },
         "key 12 13; "},
    };
    for (const auto &[act, expected] : cases) {
        act();
        EXPECT_EQ(Take_Log(), expected);
    }
    {
        const win32::Modal_Scope box(nullptr); // beside a message box nothing changes
        Send(Opt_1, BM_CLICK), Send(Check, BM_CLICK), Press_Tab(0);
        EXPECT_TRUE(Send(Opt_1, BM_GETCHECK) == BST_UNCHECKED && Send(Opt_2, BM_GETCHECK) == BST_CHECKED);
        EXPECT_TRUE(Send(Check, BM_GETCHECK) == BST_UNCHECKED && Send(Tabs, TCM_GETCURSEL) == 2);
    }
    SetWindowPos(window_, nullptr, 45, 67, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowWindow(window_, SW_MINIMIZE); // which is no place to store
    EXPECT_EQ(std::to_string(moved_to_.x) + std::to_string(moved_to_.y), twips(45) + twips(67));
}

TEST_F(Dialog_Contract, Its_Own_Changes_Show_And_Are_Not_Told) {
    for (const int index : {Tabs, Combo, Typed, List}) {
        controls_[index].items = {"A", "B & C", "D", "E"};
        controls_[index].selected = 3;
        Change(index, Aspect::Items);
    }
    controls_[Thumb].value = 40, controls_[Bar].value = 60;
    controls_[Opt_2].checked = controls_[Check].checked = true;
    Change(Thumb, Aspect::Selected), Change(Bar, Aspect::Selected);
    Change(Opt_2, Aspect::Checked), Change(Check, Aspect::Checked);
    EXPECT_TRUE(Send(Tabs, TCM_GETCURSEL) == 3 && Send(Combo, CB_GETCURSEL) == 3 &&
                Send(List, LB_GETCURSEL) == 3 && Send(Combo, CB_GETCOUNT) == 4);
    EXPECT_TRUE(Send(Thumb, TBM_GETPOS) == 40 && Send(Bar, PBM_GETPOS) == 60);
    EXPECT_TRUE(Send(Opt_2, BM_GETCHECK) == BST_CHECKED && Send(Check, BM_GETCHECK) == BST_CHECKED);
    const auto has_stop = [this](int index) { return GetWindowLongW(Native(index), GWL_STYLE) & WS_TABSTOP; };
    EXPECT_TRUE(has_stop(Opt_2) && !has_stop(Opt_1)) << "the Tab key would check the other option";
    const LRESULT font = Send(List, WM_GETFONT); // all controls take new fonts of the system
    win32::Check_Scale(true);
    EXPECT_EQ(GetObjectType(reinterpret_cast<HGDIOBJ>(Send(List, WM_GETFONT))), DWORD{OBJ_FONT});
    EXPECT_TRUE(Send(List, WM_GETFONT) == Send(Check, WM_GETFONT) && Send(List, WM_GETFONT) != font);
    EXPECT_EQ(Take_Log(), "");
    NMTTDISPINFOW asked = {};
    asked.hdr = {Own_Window(TOOLTIPS_CLASSW), reinterpret_cast<UINT_PTR>(Native(List)), TTN_GETDISPINFOW};
    SendMessageW(window_, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&asked));
    EXPECT_STREQ(asked.lpszText, L"Text") << "the tip";
    controls_[Thumb].caption = "9 days";
    SendMessageW(window_, WM_HSCROLL, TB_THUMBTRACK, reinterpret_cast<LPARAM>(Native(Thumb)));
    controls_[Thumb].caption = "10 days";
    Change(Thumb, Aspect::Caption);
    EXPECT_EQ(win32::Window_Text(Own_Window(TOOLTIPS_CLASSW)), L"10 days");
    Send(List, LB_SETTOPINDEX, 2), controls_[List].selected = -1, Change(List, Aspect::Items);
    EXPECT_EQ(Send(List, LB_GETTOPINDEX), 2) << "a list that is filled again stays in its place";
    controls_[Typed].caption = "a\r\nb";
    Change(Typed, Aspect::Caption);
    model_.enabled = false; // a disabled form rejects text, which is restored
    platform::Form_Changed(model_, Aspect::Enabled);
    SendMessageW(Typed_Text(), WM_CHAR, 'x', 0);
    EXPECT_TRUE(!IsWindowEnabled(window_) && GetWindowTextLengthW(Typed_Text()) == 3);
}

TEST_F(Dialog_Contract, On_A_Screen_Of_Another_Scale_It_Follows_That_And_Nothing_Else_Does) {
    const int calendar_dots = platform::Dots_Per_Inch();
    for (const int dots : {192, 144, 0, calendar_dots}) {
        RECT wanted = {40, 50, 400, 500}, client = {}, part = {};
        SendMessageW(window_, WM_DPICHANGED, static_cast<WPARAM>(MAKELONG(dots, dots)),
                     reinterpret_cast<LPARAM>(&wanted));
        platform::Process_Waiting_Messages();
        const int now = dots == 0 ? 144 : dots; // a scale of 0 is ignored
        EXPECT_EQ(laid_out_at_, now);
        EXPECT_EQ(platform::Dots_Per_Inch(), calendar_dots);
        GetClientRect(window_, &client);
        EXPECT_EQ(client.right, Twips_To_Pixels(6000, now));
        GetWindowRect(Native(List), &part);
        MapWindowPoints(nullptr, window_, reinterpret_cast<POINT *>(&part), 2);
        EXPECT_EQ(part.top, Twips_To_Pixels(controls_[List].bounds.top, now));
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HGDIOBJ>(Send(List, WM_GETFONT)), sizeof font, &font);
        EXPECT_EQ(font.lfHeight, -Scale_Nearest(controls_[List].font.tenth_points, now, 720));
        Take_Log(), Send(Picture, WM_LBUTTONDOWN, MK_LBUTTON, 40), Send(Picture, WM_LBUTTONUP, 0, 40);
        const std::string at = " 12 L" + std::to_string(Pixels_To_Twips(40, now)) + "; ";
        EXPECT_EQ(Take_Log(), "down" + at + "up" + at);
        EXPECT_EQ(heard_at_, calendar_dots) << "the form's own code";
    }
}

TEST_F(Dialog_Contract, A_Page_Is_Made_In_Its_Place_When_It_Is_First_Shown) {
    platform::Destroy_Mirror(model_);
    controls_[Page].visible = false;
    controls_[Shut].container = -1;
    platform::Create_Mirror(model_);
    window_ = FindWindowW(L"Vellatro_Contract_Frm", nullptr);
    EXPECT_TRUE(Native(Shut) && !Native(List) && !Native(Opt_1));
    controls_[List].items = {"One"};
    Change(List, Aspect::Items);
    controls_[Page].visible = true;
    Change(Page, Aspect::Visible);
    EXPECT_TRUE(IsWindowVisible(Native(List)) && IsWindowVisible(Native(Opt_1)));
    SetFocus(Native(Opt_1));
    controls_[Group].enabled = controls_[Page].visible = false;
    Change(Group, Aspect::Enabled), Change(Page, Aspect::Visible);
    EXPECT_FALSE(IsWindowVisible(Native(List)) || IsWindowEnabled(Native(Opt_1)));
    EXPECT_EQ(GetFocus(), Native(Tabs)) << "the keyboard left with the page";
    EXPECT_EQ(Send(List, LB_GETCOUNT), 1);
    EXPECT_EQ(GetWindow(Native(Shut), GW_HWNDPREV), Native(Picture));
    EXPECT_EQ(GetWindow(Native(Shut), GW_HWNDNEXT), Native(Tabs));
}

/// Where the picture paints nothing, it shows the colour of the page. Later controls lie above it.
TEST_F(Dialog_Contract, What_Paints_Itself_Lies_On_The_Page) {
    const win32::Unique_Memory_Dc dc(CreateCompatibleDC(nullptr));
    const win32::Unique_Bitmap bitmap(CreateBitmap(100, 20, 1, 32, nullptr));
    const win32::Selected_Object selected(dc.get(), bitmap.get());
    Send(Picture, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT);
    EXPECT_EQ(GetPixel(dc.get(), 40, 10), RGB(10, 200, 30));
    const COLORREF bare = GetPixel(dc.get(), 90, 10);
    for (const COLORREF colour : {RGB(0, 0, 255), RGB(255, 0, 0)}) {
        controls_[Shut].back_colour = static_cast<Colour>(colour);
        Change(Shut, Aspect::Appearance);
        Send(Shut, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT);
        EXPECT_EQ(GetPixel(dc.get(), 40, 10), colour);
    }
    SetFocus(Native(Picture));
    Send(Picture, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT);
    EXPECT_NE(GetPixel(dc.get(), 40, 1), GetPixel(dc.get(), 41, 1)) << "the focus is seen";
    SetViewportOrgEx(dc.get(), -200, -300, nullptr);
    Send(Tabs, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT | PRF_ERASEBKGND);
    EXPECT_EQ(bare, GetPixel(dc.get(), 210, 310));
    EXPECT_EQ(GetWindow(Native(Over), GW_HWNDNEXT), Native(Picture));
    EXPECT_EQ(GetWindow(Native(Tabs), GW_HWNDNEXT), nullptr);
}

} // namespace
#endif

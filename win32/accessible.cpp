// The accessible object of painted forms, and of painted controls in dialogs. It keeps only the handle of its
// window and looks up the form on each call, because assistive technology may keep the object longer than the
// form lives.
#include "win32/accessible.h"

#include "platform/message_box.h"
#include "win32/mirror.h"
#include "win32/painted_window.h"
#include "win32/system_library.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <oleacc.h>

#include <new>
#include <optional>

// The system's interfaces have no virtual destructor, and no code deletes objects through them.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace win32 {

namespace {

using platform::Access_Role;
using platform::Access_State;
using platform::Control_State;
using platform::Form_Model;

/// IID_IAccessible, defined here because linking its import library would load oleacc.dll at every start.
constexpr GUID accessible_interface = {
    0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

/// The target of a child number: a control, or the form itself if `control` is null.
struct Target {
    const Form_Model *form = nullptr;
    const Control_State *control = nullptr;
    HRESULT error = S_OK;
};

BSTR New_String(const std::string &text) {
    static const auto allocate =
        Look_Up<BSTR WINAPI(const OLECHAR *, UINT)>(L"oleaut32.dll", "SysAllocStringLen");
    const std::wstring wide = To_Wide(text);
    return allocate == nullptr ? nullptr : allocate(wide.data(), static_cast<UINT>(wide.size()));
}

/// Stores a copy of the text in `out`. Returns S_FALSE for an empty text.
HRESULT Set_Result(const std::string &text, BSTR *out) {
    if (text.empty())
        return S_FALSE;
    *out = New_String(text);
    return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

/// Stores the number in `out`. Returns S_FALSE if there is none.
HRESULT Set_Result(std::optional<long> number, VARIANT *out) {
    if (!number)
        return S_FALSE;
    out->vt = VT_I4;
    out->lVal = *number;
    return S_OK;
}

long Role_Of(Access_Role role) {
    switch (role) {
    case Access_Role::Button:
        return ROLE_SYSTEM_PUSHBUTTON;
    case Access_Role::Header:
        return ROLE_SYSTEM_COLUMNHEADER;
    case Access_Role::Cell:
        return ROLE_SYSTEM_CELL;
    case Access_Role::Choice:
        return ROLE_SYSTEM_RADIOBUTTON;
    case Access_Role::Link:
        return ROLE_SYSTEM_LINK;
    default:
        // A title is plain text, too, because screen readers take the title bar role for the window's own
        // title bar.
        return ROLE_SYSTEM_STATICTEXT;
    }
}

long State_Of(const Form_Model &form, const Control_State &control, bool window_has_focus) {
    if (!Is_Presented(control))
        return STATE_SYSTEM_INVISIBLE;
    long state = control.enabled && !platform::Modal_Box_Is_Open() ? 0 : STATE_SYSTEM_UNAVAILABLE;
    // The keyboard reaches every day's cell, so each cell is focusable.
    if (control.access.role == Access_Role::Cell)
        state |= STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;
    if (control.access.current)
        state |= STATE_SYSTEM_SELECTED | STATE_SYSTEM_SELECTABLE;
    if (form.focused == control.index)
        state |= STATE_SYSTEM_FOCUSABLE | (window_has_focus ? STATE_SYSTEM_FOCUSED : 0);
    if (control.access.role != Access_Role::Button && control.access.default_action.empty())
        state |= STATE_SYSTEM_READONLY;
    return state;
}

/// Returns the state of a painted control in a dialog, which has a window of its own.
long State_Of(HWND window, const Control_State &control) {
    const bool usable = IsWindowEnabled(window) && !platform::Modal_Box_Is_Open();
    long state = (IsWindowVisible(window) ? 0L : STATE_SYSTEM_INVISIBLE) |
                 (usable ? 0L : STATE_SYSTEM_UNAVAILABLE) |
                 (control.tab_stop ? STATE_SYSTEM_FOCUSABLE : STATE_SYSTEM_READONLY) |
                 (GetFocus() == window ? STATE_SYSTEM_FOCUSED : 0L);
    if (control.access.role == Access_Role::Link)
        state |= STATE_SYSTEM_LINKED;
    return control.access.current ? state | STATE_SYSTEM_CHECKED : state;
}

/// The client object of a form or of a dialog's painted control, and the enumerator of the form's children.
/// A client's proxy keeps its first enumerator as long as the proxy lives, so the enumerator looks up the
/// children on each call.
class Accessible_Form final : public IAccessible, public IEnumVARIANT {
public:
    /// `only` is -1 for the window of a form, else the index of the painted control that owns `window`.
    explicit Accessible_Form(HWND window, int only) : window_(window), painted_control_(only) {}
    Accessible_Form(const Accessible_Form &) = delete;
    Accessible_Form &operator=(const Accessible_Form &) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void **object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++owners_; }
    ULONG STDMETHODCALLTYPE Release() override;

    // No client needs these four: clients get the type library from oleacc and do not call by name.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo **) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR *, UINT, LCID, DISPID *) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS *, VARIANT *, EXCEPINFO *,
                                     UINT *) override {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch **parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(long *count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch **object) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR *out) override {
        return Return_Text(child, out, [](const Target &target) {
            return target.control == nullptr ? target.form->title : Access_Name(*target.control);
        });
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR *out) override {
        return Return_Text(child, out, &Access_State::value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR *out) override {
        return Return_Text(child, out, [](const Target &target) {
            return target.control == nullptr ? target.form->description : std::string();
        });
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT *role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT *state) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR *out) override { return No_Text(child, out); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR *, VARIANT, long *) override {
        return DISP_E_MEMBERNOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR *out) override {
        return No_Text(child, out);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT *child) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT *children) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR *out) override {
        return Return_Text(child, out, &Access_State::default_action);
    }
    HRESULT STDMETHODCALLTYPE accSelect(long, VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE accLocation(long *left, long *top, long *width, long *height,
                                          VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT *end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT *child) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT *children, ULONG *fetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override {
        last_ = CHILDID_SELF;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT **copy) override;

private:
    ~Accessible_Form() = default;

    const Form_Model *Form() const {
        return Form_Of_Window(painted_control_ < 0 ? window_ : GetParent(window_));
    }
    long Last_Child(const Form_Model &form) const {
        return painted_control_ < 0 ? static_cast<long>(form.controls.size()) : CHILDID_SELF;
    }
    Target Find(const VARIANT &child) const;
    std::optional<long> Nearest(const Form_Model &form, long start, long step) const;

    /// Stores in `out` the text that `pick` returns for a child. Returns S_FALSE for an empty text.
    template <typename Pick>
    HRESULT Return_Text(const VARIANT &child, BSTR *out, const Pick &pick) const {
        if (out == nullptr)
            return E_POINTER;
        *out = nullptr;
        const Target target = Find(child);
        try {
            return FAILED(target.error) ? target.error : Set_Result(pick(target), out);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

    /// Stores in `out` the member `text` of the child's Access_State. The form itself has no such text.
    HRESULT Return_Text(const VARIANT &child, BSTR *out, std::string Access_State::*text) const {
        return Return_Text(child, out, [text](const Target &target) {
            return target.control == nullptr ? std::string() : target.control->access.*text;
        });
    }
    HRESULT No_Text(const VARIANT &child, BSTR *out) const {
        return Return_Text(child, out, [](const Target &) { return std::string(); });
    }

    /// Stores in `out` the number that `pick` returns for a child.
    template <typename Pick>
    HRESULT Return_Number(const VARIANT &child, VARIANT *out, const Pick &pick) const {
        if (out == nullptr)
            return E_POINTER;
        out->vt = VT_EMPTY;
        const Target target = Find(child);
        return FAILED(target.error) ? target.error : Set_Result(pick(target), out);
    }

    /// Stores in `out` the child number that `pick` returns for the form, or returns S_FALSE without one.
    template <typename Pick>
    HRESULT Return_Child(VARIANT *out, const Pick &pick) const {
        if (out == nullptr)
            return E_POINTER;
        out->vt = VT_EMPTY;
        const Form_Model *form = Form();
        return form == nullptr ? CO_E_OBJNOTCONNECTED : Set_Result(pick(*form), out);
    }

    ULONG owners_ = 1;
    HWND window_;
    int painted_control_;      ///< index of the control that owns the window; -1: the form owns the window
    long last_ = CHILDID_SELF; ///< number of the child that the enumerator returned or skipped last
};

HRESULT Accessible_Form::QueryInterface(REFIID id, void **object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) || IsEqualIID(id, accessible_interface))
        *object = static_cast<IAccessible *>(this);
    else if (IsEqualIID(id, IID_IEnumVARIANT))
        *object = static_cast<IEnumVARIANT *>(this);
    else
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG Accessible_Form::Release() {
    const ULONG left = --owners_;
    if (left == 0)
        delete this;
    return left;
}

Target Accessible_Form::Find(const VARIANT &child) const {
    const Form_Model *form = Form();
    if (form == nullptr)
        return {nullptr, nullptr, CO_E_OBJNOTCONNECTED};
    if (child.vt != VT_I4 || child.lVal < 0 || child.lVal > Last_Child(*form))
        return {form, nullptr, E_INVALIDARG};
    if (child.lVal == CHILDID_SELF)
        return {form,
                painted_control_ < 0 ? nullptr : form->controls[static_cast<std::size_t>(painted_control_)],
                S_OK};
    const Control_State *control = form->controls[static_cast<std::size_t>(child.lVal - 1)];
    if (control->access.role == Access_Role::None)
        return {form, nullptr, E_INVALIDARG};
    return {form, control, S_OK};
}

/// Returns the presented child nearest to the number `start`, upwards (step 1) or downwards (step -1).
std::optional<long> Accessible_Form::Nearest(const Form_Model &form, long start, long step) const {
    for (long number = start + step; number > 0 && number <= Last_Child(form); number += step) {
        if (Is_Presented(*form.controls[static_cast<std::size_t>(number - 1)]))
            return number;
    }
    return std::nullopt;
}

HRESULT Accessible_Form::get_accParent(IDispatch **parent) {
    if (parent == nullptr)
        return E_POINTER;
    *parent = nullptr;
    static const auto object_of_window =
        Look_Up<HRESULT WINAPI(HWND, DWORD, REFIID, void **)>(L"oleacc.dll", "AccessibleObjectFromWindow");
    if (Form() == nullptr || object_of_window == nullptr)
        return CO_E_OBJNOTCONNECTED;
    return object_of_window(window_, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                            reinterpret_cast<void **>(parent));
}

HRESULT Accessible_Form::get_accChildCount(long *count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    const Form_Model *form = Form();
    if (form == nullptr)
        return CO_E_OBJNOTCONNECTED;
    for (auto child = Nearest(*form, CHILDID_SELF, 1); child; child = Nearest(*form, *child, 1))
        ++*count;
    return S_OK;
}

HRESULT Accessible_Form::Next(ULONG wanted, VARIANT *children, ULONG *fetched) {
    if (fetched != nullptr)
        *fetched = 0;
    if (children == nullptr)
        return E_POINTER;
    const Form_Model *form = Form();
    if (form == nullptr)
        return CO_E_OBJNOTCONNECTED;
    ULONG given = 0;
    for (; given < wanted; ++given) {
        const std::optional<long> child = Nearest(*form, last_, 1);
        if (!child)
            break;
        last_ = *child;
        Set_Result(child, &children[given]);
    }
    if (fetched != nullptr)
        *fetched = given;
    return given == wanted ? S_OK : S_FALSE;
}

HRESULT Accessible_Form::Skip(ULONG count) {
    HRESULT result = S_OK;
    VARIANT passed = {};
    for (; count > 0 && result == S_OK; --count)
        result = Next(1, &passed, nullptr);
    return result;
}

HRESULT Accessible_Form::Clone(IEnumVARIANT **copy) {
    if (copy == nullptr)
        return E_POINTER;
    auto *clone = new (std::nothrow) Accessible_Form(window_, painted_control_);
    *copy = clone;
    if (clone == nullptr)
        return E_OUTOFMEMORY;
    clone->last_ = last_;
    return S_OK;
}

HRESULT Accessible_Form::get_accChild(VARIANT child, IDispatch **object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    // The children are simple elements without objects of their own. Callers reach them through this object.
    const HRESULT error = Find(child).error;
    return FAILED(error) ? error : S_FALSE;
}

HRESULT Accessible_Form::get_accRole(VARIANT child, VARIANT *role) {
    return Return_Number(child, role, [this](const Target &target) -> long {
        if (painted_control_ >= 0 && target.control->access.role == Access_Role::None)
            return target.control->kind == platform::Control_Kind::Label ? ROLE_SYSTEM_STATICTEXT
                                                                         : ROLE_SYSTEM_GRAPHIC;
        return target.control == nullptr ? ROLE_SYSTEM_CLIENT : Role_Of(target.control->access.role);
    });
}

HRESULT Accessible_Form::get_accState(VARIANT child, VARIANT *state) {
    return Return_Number(child, state, [this](const Target &target) {
        if (painted_control_ >= 0)
            return State_Of(window_, *target.control);
        const bool focus = GetFocus() == window_;
        if (target.control != nullptr)
            return State_Of(*target.form, *target.control, focus);
        return (IsWindowVisible(window_) ? 0L : STATE_SYSTEM_INVISIBLE) |
               (platform::Modal_Box_Is_Open() ? STATE_SYSTEM_UNAVAILABLE : 0L) | STATE_SYSTEM_FOCUSABLE |
               (focus ? STATE_SYSTEM_FOCUSED : 0L);
    });
}

HRESULT Accessible_Form::get_accFocus(VARIANT *child) {
    return Return_Child(child, [this](const Form_Model &form) -> std::optional<long> {
        if (GetFocus() != window_)
            return std::nullopt;
        VARIANT number = {};
        number.vt = VT_I4;
        number.lVal = form.focused + 1;
        return Find(number).control != nullptr ? number.lVal : CHILDID_SELF;
    });
}

HRESULT Accessible_Form::get_accSelection(VARIANT *children) {
    return Return_Child(children, [this](const Form_Model &form) -> std::optional<long> {
        for (const Control_State *control : form.controls) {
            if (painted_control_ < 0 && Is_Presented(*control) && control->access.current)
                return Child_Number(*control);
        }
        return std::nullopt;
    });
}

HRESULT Accessible_Form::accLocation(long *left, long *top, long *width, long *height, VARIANT child) {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr)
        return E_POINTER;
    *left = *top = *width = *height = 0;
    const Target target = Find(child);
    if (FAILED(target.error))
        return target.error;
    RECT place = {};
    if (target.control != nullptr && painted_control_ < 0)
        place = To_Pixels(target.control->bounds);
    else
        GetClientRect(window_, &place);
    POINT corner = {place.left, place.top};
    ClientToScreen(window_, &corner);
    *left = corner.x;
    *top = corner.y;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
}

HRESULT Accessible_Form::accNavigate(long direction, VARIANT start, VARIANT *end) {
    return Return_Number(start, end, [&](const Target &target) -> std::optional<long> {
        const bool from_form = start.lVal == CHILDID_SELF;
        if (direction == (from_form ? NAVDIR_FIRSTCHILD : NAVDIR_NEXT))
            return Nearest(*target.form, start.lVal, 1);
        if (direction == (from_form ? NAVDIR_LASTCHILD : NAVDIR_PREVIOUS))
            return Nearest(*target.form, from_form ? Last_Child(*target.form) + 1 : start.lVal, -1);
        return std::nullopt;
    });
}

HRESULT Accessible_Form::accHitTest(long x, long y, VARIANT *child) {
    return Return_Child(child, [&](const Form_Model &form) -> std::optional<long> {
        POINT point = {x, y};
        ScreenToClient(window_, &point);
        RECT all = {};
        GetClientRect(window_, &all);
        if (!PtInRect(&all, point))
            return std::nullopt;
        // The topmost controls come last in the form's order.
        for (auto control = form.controls.rbegin(); control != form.controls.rend(); ++control) {
            const RECT place = To_Pixels((*control)->bounds);
            if (painted_control_ < 0 && Is_Presented(**control) && PtInRect(&place, point))
                return Child_Number(**control);
        }
        return CHILDID_SELF;
    });
}

HRESULT Accessible_Form::accDoDefaultAction(VARIANT child) {
    const Target target = Find(child);
    if (FAILED(target.error))
        return target.error;
    if (target.control == nullptr || target.control->access.default_action.empty())
        return DISP_E_MEMBERNOTFOUND;
    if (platform::Modal_Box_Is_Open())
        return E_FAIL;
    // Post the request. The action may show a dialog, and the caller would wait until the dialog closes.
    const auto index = static_cast<WPARAM>(target.control->index);
    return PostMessageW(window_, Default_Action_Message, index, 0) ? S_OK : E_FAIL;
}

} // namespace

LRESULT Answer_Get_Object(HWND window, WPARAM wparam, LPARAM lparam, int only) {
    // Only the low 32 bits of the object identifier are reliable.
    if (static_cast<LONG>(lparam) != OBJID_CLIENT)
        return DefWindowProcW(window, WM_GETOBJECT, wparam, lparam);
    static const auto result_of_object =
        Look_Up<LRESULT WINAPI(REFIID, WPARAM, IUnknown *)>(L"oleacc.dll", "LresultFromObject");
    static const auto initialise = Look_Up<HRESULT WINAPI(void *)>(L"ole32.dll", "CoInitialize");
    if (result_of_object == nullptr || initialise == nullptr)
        return 0;
    // Initialise COM once and for the thread's whole life, because clients call the objects through the
    // message loop.
    static const HRESULT initialised = initialise(nullptr);
    if (FAILED(initialised))
        return 0;
    auto *object = new (std::nothrow) Accessible_Form(window, only);
    if (object == nullptr)
        return 0;
    const LRESULT result = result_of_object(accessible_interface, wparam, static_cast<IAccessible *>(object));
    object->Release();
    return result;
}

} // namespace win32

// The accessible object of painted forms. It knows its window only by handle and asks for the form at each
// call, because assistive technology may keep it longer than the form lives.
#include "win32/accessible.h"

#include "win32/accessible_children.h"
#include "win32/mirror.h"
#include "win32/painted_window.h"
#include "win32/system_library.h"
#include "win32/units.h"
#include "win32/wide_text.h"

#include <oleacc.h>

#include <algorithm>
#include <new>

namespace win32 {

namespace {

using platform::Access_Role;
using platform::Control_State;
using platform::Form_Model;

/// IAccessible's own identifier: the import library would bind oleacc to the start of the program for it.
constexpr GUID accessible_interface = {
    0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

/// What a child number of a call stands for: a control, or the form itself.
struct Target {
    Form_Model *form = nullptr;
    const Control_State *control = nullptr;
    HRESULT error = S_OK;
};

BSTR New_String(const std::string &text) {
    static const auto allocate =
        Look_Up<BSTR WINAPI(const OLECHAR *, UINT)>(L"oleaut32.dll", "SysAllocStringLen");
    const std::wstring wide = To_Wide(text);
    return allocate == nullptr ? nullptr : allocate(wide.data(), static_cast<UINT>(wide.size()));
}

/// Hands a text out; an empty one is none.
HRESULT Give(const std::string &text, BSTR *out) {
    if (text.empty())
        return S_FALSE;
    *out = New_String(text);
    return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

/// Hands a number out.
HRESULT Give(long number, VARIANT *out) {
    out->vt = VT_I4;
    out->lVal = number;
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
    default:
        // Also a title: screen readers take a title bar for the window's own.
        return ROLE_SYSTEM_STATICTEXT;
    }
}

long State_Of(const Form_Model &form, const Control_State &control, bool window_has_focus) {
    if (!Is_Presented(control))
        return STATE_SYSTEM_INVISIBLE;
    long state = control.enabled ? 0 : STATE_SYSTEM_UNAVAILABLE;
    if (control.access.current)
        state |= STATE_SYSTEM_SELECTED | STATE_SYSTEM_SELECTABLE;
    if (form.focused == control.index)
        state |= STATE_SYSTEM_FOCUSABLE | (window_has_focus ? STATE_SYSTEM_FOCUSED : 0);
    if (control.access.role != Access_Role::Button && control.access.default_action.empty())
        state |= STATE_SYSTEM_READONLY;
    return state;
}

class Accessible_Form final : public IAccessible {
public:
    explicit Accessible_Form(HWND window) : window_(window) {}
    Accessible_Form(const Accessible_Form &) = delete;
    Accessible_Form &operator=(const Accessible_Form &) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void **object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++owners_; }
    ULONG STDMETHODCALLTYPE Release() override;

    // Nobody calls by name: oleacc brings the type library along.
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
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR *name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR *value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR *out) override {
        return No_Text(child, out);
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
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR *action) override;
    HRESULT STDMETHODCALLTYPE accSelect(long, VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE accLocation(long *left, long *top, long *width, long *height,
                                          VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT *end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT *child) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~Accessible_Form() = default;

    Target Find(const VARIANT &child) const;
    HRESULT No_Text(const VARIANT &child, BSTR *out) const;
    /// The numbers of all children, in order; false when the form is gone.
    bool Children(std::vector<long> &numbers) const;

    /// Runs a call's work; want of memory becomes its error code.
    template <typename Work>
    static HRESULT Guarded(const Work &work) {
        try {
            return work();
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

    ULONG owners_ = 1;
    HWND window_;
};

HRESULT Accessible_Form::QueryInterface(REFIID id, void **object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) ||
        IsEqualIID(id, accessible_interface)) {
        *object = static_cast<IAccessible *>(this);
        AddRef();
        return S_OK;
    }
    if (!IsEqualIID(id, IID_IEnumVARIANT))
        return E_NOINTERFACE;
    return Guarded([&] {
        std::vector<long> numbers;
        if (!Children(numbers))
            return CO_E_OBJNOTCONNECTED;
        *object = static_cast<IEnumVARIANT *>(new Child_List(std::move(numbers)));
        return S_OK;
    });
}

ULONG Accessible_Form::Release() {
    const ULONG left = --owners_;
    if (left == 0)
        delete this;
    return left;
}

Target Accessible_Form::Find(const VARIANT &child) const {
    Form_Model *form = Form_Of_Window(window_);
    if (form == nullptr)
        return {nullptr, nullptr, CO_E_OBJNOTCONNECTED};
    const auto count = static_cast<long>(form->controls.size());
    if (child.vt != VT_I4 || child.lVal < 0 || child.lVal > count)
        return {form, nullptr, E_INVALIDARG};
    if (child.lVal == CHILDID_SELF)
        return {form, nullptr, S_OK};
    const Control_State *control = form->controls[static_cast<std::size_t>(child.lVal - 1)];
    if (control->access.role == Access_Role::None)
        return {form, nullptr, E_INVALIDARG};
    return {form, control, S_OK};
}

HRESULT Accessible_Form::No_Text(const VARIANT &child, BSTR *out) const {
    if (out == nullptr)
        return E_POINTER;
    *out = nullptr;
    const HRESULT error = Find(child).error;
    return FAILED(error) ? error : S_FALSE;
}

bool Accessible_Form::Children(std::vector<long> &numbers) const {
    const Form_Model *form = Form_Of_Window(window_);
    if (form == nullptr)
        return false;
    for (const Control_State *control : form->controls) {
        if (Is_Presented(*control))
            numbers.push_back(Child_Number(*control));
    }
    return true;
}

HRESULT Accessible_Form::get_accParent(IDispatch **parent) {
    if (parent == nullptr)
        return E_POINTER;
    *parent = nullptr;
    static const auto object_of_window =
        Look_Up<HRESULT WINAPI(HWND, DWORD, REFIID, void **)>(L"oleacc.dll", "AccessibleObjectFromWindow");
    if (Form_Of_Window(window_) == nullptr || object_of_window == nullptr)
        return CO_E_OBJNOTCONNECTED;
    return object_of_window(window_, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                            reinterpret_cast<void **>(parent));
}

HRESULT Accessible_Form::get_accChildCount(long *count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return Guarded([&] {
        std::vector<long> numbers;
        if (!Children(numbers))
            return CO_E_OBJNOTCONNECTED;
        *count = static_cast<long>(numbers.size());
        return S_OK;
    });
}

HRESULT Accessible_Form::get_accChild(VARIANT child, IDispatch **object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    // The children are simple: they are asked for through this object.
    const HRESULT error = Find(child).error;
    return FAILED(error) ? error : S_FALSE;
}

HRESULT Accessible_Form::get_accName(VARIANT child, BSTR *name) {
    if (name == nullptr)
        return E_POINTER;
    *name = nullptr;
    return Guarded([&] {
        const Target target = Find(child);
        if (FAILED(target.error))
            return target.error;
        if (target.control == nullptr)
            return Give(target.form->title, name);
        const std::string &own = target.control->access.name;
        return Give(own.empty() ? target.control->caption : own, name);
    });
}

HRESULT Accessible_Form::get_accValue(VARIANT child, BSTR *value) {
    if (value == nullptr)
        return E_POINTER;
    *value = nullptr;
    return Guarded([&] {
        const Target target = Find(child);
        if (FAILED(target.error))
            return target.error;
        return target.control == nullptr ? S_FALSE : Give(target.control->access.value, value);
    });
}

HRESULT Accessible_Form::get_accRole(VARIANT child, VARIANT *role) {
    if (role == nullptr)
        return E_POINTER;
    role->vt = VT_EMPTY;
    const Target target = Find(child);
    if (FAILED(target.error))
        return target.error;
    return Give(target.control == nullptr ? ROLE_SYSTEM_CLIENT : Role_Of(target.control->access.role), role);
}

HRESULT Accessible_Form::get_accState(VARIANT child, VARIANT *state) {
    if (state == nullptr)
        return E_POINTER;
    state->vt = VT_EMPTY;
    const Target target = Find(child);
    if (FAILED(target.error))
        return target.error;
    const bool focus = GetFocus() == window_;
    if (target.control != nullptr)
        return Give(State_Of(*target.form, *target.control, focus), state);
    const long shown = IsWindowVisible(window_) ? 0 : STATE_SYSTEM_INVISIBLE;
    return Give(shown | STATE_SYSTEM_FOCUSABLE | (focus ? STATE_SYSTEM_FOCUSED : 0), state);
}

HRESULT Accessible_Form::get_accFocus(VARIANT *child) {
    if (child == nullptr)
        return E_POINTER;
    child->vt = VT_EMPTY;
    const Form_Model *form = Form_Of_Window(window_);
    if (form == nullptr)
        return CO_E_OBJNOTCONNECTED;
    if (GetFocus() != window_)
        return S_FALSE;
    VARIANT number = {};
    number.vt = VT_I4;
    number.lVal = form->focused + 1;
    return Give(Find(number).control != nullptr ? number.lVal : CHILDID_SELF, child);
}

HRESULT Accessible_Form::get_accSelection(VARIANT *children) {
    if (children == nullptr)
        return E_POINTER;
    children->vt = VT_EMPTY;
    const Form_Model *form = Form_Of_Window(window_);
    if (form == nullptr)
        return CO_E_OBJNOTCONNECTED;
    for (const Control_State *control : form->controls) {
        if (Is_Presented(*control) && control->access.current)
            return Give(Child_Number(*control), children);
    }
    return S_FALSE;
}

HRESULT Accessible_Form::get_accDefaultAction(VARIANT child, BSTR *action) {
    if (action == nullptr)
        return E_POINTER;
    *action = nullptr;
    return Guarded([&] {
        const Target target = Find(child);
        if (FAILED(target.error))
            return target.error;
        return target.control == nullptr ? S_FALSE : Give(target.control->access.default_action, action);
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
    if (target.control != nullptr)
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
    if (end == nullptr)
        return E_POINTER;
    end->vt = VT_EMPTY;
    return Guarded([&]() -> HRESULT {
        const Target target = Find(start);
        std::vector<long> numbers;
        if (FAILED(target.error) || !Children(numbers))
            return FAILED(target.error) ? target.error : CO_E_OBJNOTCONNECTED;
        const bool from_self = start.lVal == CHILDID_SELF;
        if (from_self && direction == NAVDIR_FIRSTCHILD)
            return numbers.empty() ? S_FALSE : Give(numbers.front(), end);
        if (from_self && direction == NAVDIR_LASTCHILD)
            return numbers.empty() ? S_FALSE : Give(numbers.back(), end);
        if (from_self)
            return S_FALSE;
        if (direction == NAVDIR_NEXT) {
            const auto next = std::upper_bound(numbers.begin(), numbers.end(), start.lVal);
            return next == numbers.end() ? S_FALSE : Give(*next, end);
        }
        if (direction == NAVDIR_PREVIOUS) {
            const auto here = std::lower_bound(numbers.begin(), numbers.end(), start.lVal);
            return here == numbers.begin() ? S_FALSE : Give(*(here - 1), end);
        }
        return S_FALSE;
    });
}

HRESULT Accessible_Form::accHitTest(long x, long y, VARIANT *child) {
    if (child == nullptr)
        return E_POINTER;
    child->vt = VT_EMPTY;
    const Form_Model *form = Form_Of_Window(window_);
    if (form == nullptr)
        return CO_E_OBJNOTCONNECTED;
    POINT point = {x, y};
    ScreenToClient(window_, &point);
    RECT all = {};
    GetClientRect(window_, &all);
    if (!PtInRect(&all, point))
        return S_FALSE;
    // The top-most first.
    for (auto control = form->controls.rbegin(); control != form->controls.rend(); ++control) {
        const RECT place = To_Pixels((*control)->bounds);
        if (Is_Presented(**control) && PtInRect(&place, point))
            return Give(Child_Number(**control), child);
    }
    return Give(CHILDID_SELF, child);
}

HRESULT Accessible_Form::accDoDefaultAction(VARIANT child) {
    const Target target = Find(child);
    if (FAILED(target.error))
        return target.error;
    if (target.control == nullptr || target.control->access.default_action.empty())
        return DISP_E_MEMBERNOTFOUND;
    // Later, because the action may show a dialog, and the caller would wait for its end.
    const auto index = static_cast<WPARAM>(target.control->index);
    return PostMessageW(window_, Default_Action_Message, index, 0) ? S_OK : E_FAIL;
}

} // namespace

LRESULT Answer_Get_Object(HWND window, WPARAM wparam, LPARAM lparam) {
    // Only the low half of the identifier is sure to arrive.
    if (static_cast<LONG>(lparam) != OBJID_CLIENT)
        return DefWindowProcW(window, WM_GETOBJECT, wparam, lparam);
    static const auto result_of_object =
        Look_Up<LRESULT WINAPI(REFIID, WPARAM, IUnknown *)>(L"oleacc.dll", "LresultFromObject");
    static const auto initialise = Look_Up<HRESULT WINAPI(void *)>(L"ole32.dll", "CoInitialize");
    if (result_of_object == nullptr || initialise == nullptr)
        return 0;
    // Once, and for the thread's whole life: the objects are called through the message loop.
    static const HRESULT initialised = initialise(nullptr);
    if (FAILED(initialised))
        return 0;
    auto *object = new (std::nothrow) Accessible_Form(window);
    if (object == nullptr)
        return 0;
    const LRESULT result = result_of_object(accessible_interface, wparam, object);
    object->Release();
    return result;
}

} // namespace win32

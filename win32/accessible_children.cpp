// Stepping through a form's children.
#include "win32/accessible_children.h"

#include <new>

namespace win32 {

HRESULT Child_List::QueryInterface(REFIID id, void **object) {
    if (object == nullptr)
        return E_POINTER;
    *object = nullptr;
    if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IEnumVARIANT))
        return E_NOINTERFACE;
    *object = static_cast<IEnumVARIANT *>(this);
    AddRef();
    return S_OK;
}

ULONG Child_List::AddRef() {
    return ++owners_;
}

ULONG Child_List::Release() {
    const ULONG left = --owners_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT Child_List::Next(ULONG wanted, VARIANT *children, ULONG *fetched) {
    if (children == nullptr)
        return E_POINTER;
    ULONG given = 0;
    for (; given < wanted && next_ < numbers_.size(); ++given, ++next_) {
        children[given] = {};
        children[given].vt = VT_I4;
        children[given].lVal = numbers_[next_];
    }
    if (fetched != nullptr)
        *fetched = given;
    return given == wanted ? S_OK : S_FALSE;
}

HRESULT Child_List::Skip(ULONG count) {
    const std::size_t left = numbers_.size() - next_;
    next_ += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
}

HRESULT Child_List::Reset() {
    next_ = 0;
    return S_OK;
}

HRESULT Child_List::Clone(IEnumVARIANT **copy) {
    if (copy == nullptr)
        return E_POINTER;
    *copy = nullptr;
    try {
        auto *list = new Child_List(numbers_);
        list->next_ = next_;
        *copy = list;
        return S_OK;
    } catch (const std::bad_alloc &) {
        return E_OUTOFMEMORY;
    }
}

} // namespace win32

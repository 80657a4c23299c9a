// Stepping through a form's children.
#include "win32/accessible_children.h"

#include <algorithm>
#include <new>

namespace win32 {

HRESULT Child_Position::Next(const std::vector<long> &numbers, ULONG wanted, VARIANT *children,
                             ULONG *fetched) {
    if (children == nullptr)
        return E_POINTER;
    ULONG given = 0;
    auto next = std::upper_bound(numbers.begin(), numbers.end(), last);
    for (; given < wanted && next != numbers.end(); ++given, ++next) {
        children[given] = {};
        children[given].vt = VT_I4;
        children[given].lVal = last = *next;
    }
    if (fetched != nullptr)
        *fetched = given;
    return given == wanted ? S_OK : S_FALSE;
}

HRESULT Child_Position::Skip(const std::vector<long> &numbers, ULONG count) {
    const auto next = std::upper_bound(numbers.begin(), numbers.end(), last);
    const auto left = static_cast<ULONG>(numbers.end() - next);
    const ULONG skipped = std::min(count, left);
    if (skipped > 0)
        last = next[static_cast<std::ptrdiff_t>(skipped) - 1];
    return skipped == count ? S_OK : S_FALSE;
}

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
    return position_.Next(numbers_, wanted, children, fetched);
}

HRESULT Child_List::Skip(ULONG count) {
    return position_.Skip(numbers_, count);
}

HRESULT Child_List::Reset() {
    position_ = {};
    return S_OK;
}

HRESULT Child_List::Clone(IEnumVARIANT **copy) {
    if (copy == nullptr)
        return E_POINTER;
    *copy = nullptr;
    try {
        *copy = new Child_List(numbers_, position_);
        return S_OK;
    } catch (const std::bad_alloc &) {
        return E_OUTOFMEMORY;
    }
}

} // namespace win32

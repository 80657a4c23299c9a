// Stepping through a form's children, as assistive technology does it.
#pragma once

#include "win32/handles.h"

#include <oaidl.h>
#include <vector>

// The system's interfaces have no virtual destructor: nobody deletes through them.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace win32 {

/// A place among child numbers, which rise and may be others at the next step: behind the number `last`.
struct Child_Position {
    long last = 0;

    /// As the procedures of IEnumVARIANT.
    HRESULT Next(const std::vector<long> &numbers, ULONG wanted, VARIANT *children, ULONG *fetched);
    HRESULT Skip(const std::vector<long> &numbers, ULONG count);
};

/// Steps through child numbers as they were. It counts its owners and deletes itself after the last.
class Child_List final : public IEnumVARIANT {
public:
    Child_List(std::vector<long> numbers, Child_Position position)
        : position_(position), numbers_(std::move(numbers)) {}
    Child_List(const Child_List &) = delete;
    Child_List &operator=(const Child_List &) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void **object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT *children, ULONG *fetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT **copy) override;

private:
    ~Child_List() = default;

    ULONG owners_ = 1;
    Child_Position position_;
    std::vector<long> numbers_;
};

} // namespace win32

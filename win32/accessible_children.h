// The list of a form's children as assistive technology steps through it.
#pragma once

#include "win32/handles.h"

#include <oaidl.h>
#include <vector>

// The system's interfaces have no virtual destructor: nobody deletes through them.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace win32 {

/// Steps through child numbers. It counts its owners and deletes itself after the last.
class Child_List final : public IEnumVARIANT {
public:
    explicit Child_List(std::vector<long> numbers) : numbers_(std::move(numbers)) {}
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
    std::size_t next_ = 0;
    std::vector<long> numbers_;
};

} // namespace win32

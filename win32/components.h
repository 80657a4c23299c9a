// COM helpers: an owner of an interface pointer, and COM initialisation for a scope.
#pragma once

#include "win32/handles.h"
#include "win32/system_library.h"

#include <memory>
#include <unknwn.h>

namespace win32 {

struct Releaser {
    void operator()(IUnknown *object) const { object->Release(); }
};

template <typename Interface>
using Unique_Interface = std::unique_ptr<Interface, Releaser>;

/// Initialises COM on the calling thread for a scope. No COM object may outlive the session.
class Component_Session {
public:
    Component_Session() {
        auto *const begin = Look_Up<HRESULT WINAPI(void *)>(L"ole32.dll", "CoInitialize");
        initialized_ = begin != nullptr && SUCCEEDED(begin(nullptr));
    }
    ~Component_Session() {
        auto *const end = Look_Up<void WINAPI()>(L"ole32.dll", "CoUninitialize");
        if (initialized_ && end != nullptr)
            end();
    }
    Component_Session(const Component_Session &) = delete;
    Component_Session &operator=(const Component_Session &) = delete;

private:
    bool initialized_ = false;
};

} // namespace win32

#include "win32/system_library.h"

#include "platform/libraries.h"
#include "win32/handles.h"

#include <string>

namespace win32 {

void *System_Function(const wchar_t *library, const char *function) {
    HMODULE module = GetModuleHandleW(library);
    if (module == nullptr) {
        // Load the library by its full path, so that the system ignores a library of the same name in the
        // program's folder.
        wchar_t folder[MAX_PATH] = {};
        const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
        if (length == 0 || length >= MAX_PATH)
            return nullptr;
        module = LoadLibraryW((std::wstring(folder, length) + L"\\" + library).c_str());
    }
    return module == nullptr ? nullptr : reinterpret_cast<void *>(GetProcAddress(module, function));
}

} // namespace win32

void platform::Load_From_System_Only() {
    const auto set = win32::Look_Up<BOOL WINAPI(DWORD)>(L"kernel32.dll", "SetDefaultDllDirectories");
    if (set != nullptr)
        set(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

// Creates dialog windows from a template in memory.
#include "win32/dialog_template.h"

#include "win32/window_class.h"

#include <cstring>
#include <vector>

namespace win32 {

HWND Make_Dialog(const std::wstring &class_name, WNDPROC procedure) {
    Register_Class(class_name.c_str(), procedure, 0, true);
    DLGTEMPLATE head = {};
    head.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_3DLOOK;
    head.dwExtendedStyle = WS_EX_CONTROLPARENT;
    // The menu (none), the class and the title (none) follow the header, each ended by a NUL.
    const std::size_t text_bytes = (class_name.size() + 3) * sizeof(wchar_t);
    std::vector<DWORD> bytes((sizeof head + text_bytes) / sizeof(DWORD) + 1);
    auto *place = reinterpret_cast<unsigned char *>(bytes.data());
    std::memcpy(place, &head, sizeof head);
    class_name.copy(reinterpret_cast<wchar_t *>(place + sizeof head) + 1, class_name.size());
    return CreateDialogIndirectParamW(
        GetModuleHandleW(nullptr), reinterpret_cast<const DLGTEMPLATE *>(bytes.data()), nullptr, nullptr, 0);
}

} // namespace win32

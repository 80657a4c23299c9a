#include "platform/text.h"

#include "win32/handles.h"
#include "win32/wide_text.h"

namespace platform {

namespace {

/// Returns the ANSI code page of the system's locale. Returns 1252 (Western) if the locale has no code page,
/// or has UTF-8, which older programs did not write.
UINT Ansi_Code_Page() {
    DWORD page = 0;
    GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<wchar_t *>(&page), sizeof page / sizeof(wchar_t));
    return page == 0 || page == CP_UTF8 || !IsValidCodePage(page) ? 1252 : page;
}

} // namespace

std::string Ansi_To_Utf8(std::string_view bytes) {
    return win32::From_Wide(win32::Decode(Ansi_Code_Page(), bytes));
}

} // namespace platform

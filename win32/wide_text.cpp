// Conversions between the program's text and wide text.
#include "win32/wide_text.h"

#include "win32/handles.h"

#include <algorithm>
#include <climits>

namespace win32 {

namespace {

/// The system's calls count in int.
int Length_For_Call(std::size_t length) {
    return static_cast<int>(std::min<std::size_t>(length, INT_MAX / 4));
}

/// The user's own ANSI code page, which the process's is not when the manifest makes that UTF-8.
UINT Locale_Code_Page() {
    wchar_t digits[8] = {};
    UINT page = 0;
    if (GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE, digits, 8) != 0) {
        for (const wchar_t *digit = digits; *digit >= L'0' && *digit <= L'9'; ++digit)
            page = page * 10 + static_cast<UINT>(*digit - L'0');
    }
    // Locales without an ANSI code page answer 0; Western text is the likeliest then.
    return page == 0 || page == CP_UTF8 ? 1252 : page;
}

std::wstring Decode(UINT page, DWORD flags, std::string_view text) {
    const int length = Length_For_Call(text.size());
    const int needed = MultiByteToWideChar(page, flags, text.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(std::max(needed, 0)), L'\0');
    if (needed > 0)
        MultiByteToWideChar(page, flags, text.data(), length, wide.data(), needed);
    return wide;
}

} // namespace

std::wstring To_Wide(std::string_view text) {
    if (text.empty())
        return {};
    const bool ascii = std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
    if (ascii)
        return std::wstring(text.begin(), text.end());
    if (GetACP() == CP_UTF8) {
        std::wstring wide = Decode(CP_UTF8, MB_ERR_INVALID_CHARS, text);
        if (!wide.empty())
            return wide;
        wide = Decode(Locale_Code_Page(), 0, text);
        if (!wide.empty())
            return wide;
    }
    return Decode(CP_ACP, 0, text);
}

std::string From_Wide(std::wstring_view text) {
    if (text.empty())
        return {};
    const int length = Length_For_Call(text.size());
    const int needed = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(std::max(needed, 0)), '\0');
    if (needed > 0)
        WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(), needed, nullptr, nullptr);
    return narrow;
}

} // namespace win32

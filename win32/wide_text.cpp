#include "win32/wide_text.h"

#include "base/characters.h"
#include "win32/handles.h"

#include <algorithm>
#include <climits>

namespace win32 {

std::wstring Decode(unsigned code_page, std::string_view bytes) {
    // Cut a longer text, because the system counts in int.
    const auto length = static_cast<int>(std::min<std::size_t>(bytes.size(), INT_MAX / 4));
    const int needed = MultiByteToWideChar(code_page, 0, bytes.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(std::max(needed, 0)), L'\0');
    MultiByteToWideChar(code_page, 0, bytes.data(), length, wide.data(), needed);
    return wide;
}

std::wstring To_Wide(std::string_view text) {
    return Decode(CP_UTF8, text);
}

std::string From_Wide(std::wstring_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t code = text[i];
        if (IS_HIGH_SURROGATE(code) && i + 1 < text.size() && IS_LOW_SURROGATE(text[i + 1]))
            code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00U);
        Append_Utf8(narrow, code);
    }
    return narrow;
}

} // namespace win32

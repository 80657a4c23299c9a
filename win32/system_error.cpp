#include "win32/system_error.h"

#include "win32/handles.h"
#include "win32/wide_text.h"

namespace win32 {

std::string System_Error_Text(unsigned long code) {
    wchar_t sentence[512];
    DWORD length = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
        code, 0, sentence, static_cast<DWORD>(sizeof sentence / sizeof *sentence), nullptr);
    while (length > 0 && sentence[length - 1] <= L' ')
        --length;
    if (length == 0)
        return "Error " + std::to_string(code);
    return From_Wide({sentence, length});
}

} // namespace win32

// Stepping through texts: platform/text.h over Win32.
#include "platform/text.h"

#include "platform/characters.h"
#include "win32/handles.h"

namespace platform {

namespace {

/// In a code page with two-byte characters the bytes before `end - 1` that can lead are counted: characters
/// end before them, so an odd number makes the last byte a trailing one.
Code_Step Step_Back_Code_Page(std::string_view text, std::size_t end) {
    std::size_t begin = end - 1;
    std::size_t first_lead = begin;
    while (first_lead > 0 && IsDBCSLeadByte(static_cast<BYTE>(text[first_lead - 1])))
        --first_lead;
    if ((begin - first_lead) % 2 == 1)
        --begin;
    wchar_t wide[2] = {};
    const int units =
        MultiByteToWideChar(CP_ACP, 0, text.data() + begin, static_cast<int>(end - begin), wide, 2);
    return {begin, units == 1 ? wide[0] : No_Character};
}

} // namespace

std::size_t Previous_Character(std::string_view text, std::size_t end) {
    return Character_Begin(text, end, GetACP() == CP_UTF8 ? Step_Back_Utf8 : Step_Back_Code_Page);
}

} // namespace platform

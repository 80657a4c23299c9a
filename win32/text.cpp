// Stepping through texts: platform/text.h over Win32.
#include "platform/text.h"

#include "win32/handles.h"

#include <algorithm>
#include <cstdint>

namespace platform {

namespace {

/// What stands for bytes that are no character.
constexpr std::uint32_t No_Character = 0xFFFFFFFF;
constexpr std::uint32_t Zero_Width_Joiner = 0x200D;

struct Step {
    std::size_t begin;
    std::uint32_t code;
};

unsigned Byte_At(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

/// True for what belongs to the character before it.
bool Extends_Previous(std::uint32_t code) {
    struct Range {
        std::uint32_t first, last;
    };
    constexpr Range ranges[] = {{0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200D, 0x200D},
                                {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}};
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [&](const Range &range) { return code >= range.first && code <= range.last; });
}

/// The code of the `length` bytes from `begin`, or No_Character when they are not one well-formed character.
std::uint32_t Decode_Utf8(std::string_view text, std::size_t begin, std::size_t length) {
    const unsigned lead = Byte_At(text, begin);
    if (length == 1)
        return lead < 0x80 ? lead : No_Character;
    constexpr unsigned marks[] = {0, 0, 0xC0, 0xE0, 0xF0};
    constexpr unsigned masks[] = {0, 0, 0xE0, 0xF0, 0xF8};
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if ((lead & masks[length]) != marks[length])
        return No_Character;
    std::uint32_t code = lead & ~masks[length];
    for (std::size_t i = 1; i < length; ++i)
        code = (code << 6) | (Byte_At(text, begin + i) & 0x3F);
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < smallest[length] || code > 0x10FFFF || surrogate ? No_Character : code;
}

Step Step_Back_Utf8(std::string_view text, std::size_t end) {
    std::size_t begin = end - 1;
    while (begin > 0 && end - begin < 4 && (Byte_At(text, begin) & 0xC0) == 0x80)
        --begin;
    const std::uint32_t code = Decode_Utf8(text, begin, end - begin);
    return code == No_Character ? Step{end - 1, No_Character} : Step{begin, code};
}

/// In a code page with two-byte characters the bytes before `end - 1` that can lead are counted: characters
/// end before them, so an odd number makes the last byte a trailing one.
Step Step_Back_Code_Page(std::string_view text, std::size_t end) {
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
    const auto step_back = GetACP() == CP_UTF8 ? Step_Back_Utf8 : Step_Back_Code_Page;
    Step step = step_back(text, end);
    while (step.begin > 0) {
        const Step before = step_back(text, step.begin);
        if (!Extends_Previous(step.code) && before.code != Zero_Width_Joiner)
            break;
        step = before;
    }
    return step.begin;
}

} // namespace platform

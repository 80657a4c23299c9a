// Characters of UTF-8, whatever the building machine's own encoding is.
#include "platform/text.h"

#include <array>
#include <cstdint>

namespace platform {

namespace {

constexpr std::uint32_t joiner = 0x200D;

std::uint32_t Byte(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

/// Where the code point that ends before `end` begins; its value goes to `code`. A byte that belongs to no
/// valid sequence counts by itself and has the value 0xFFFD.
std::size_t Previous_Code(std::string_view text, std::size_t end, std::uint32_t &code) {
    static constexpr std::array<std::uint32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
    std::size_t begin = end - 1;
    while (begin > 0 && end - begin < 4 && (Byte(text, begin) & 0xC0U) == 0x80U)
        --begin;
    const std::size_t length = end - begin;
    const std::uint32_t lead = Byte(text, begin);
    if (length == 1 && lead < 0x80U) {
        code = lead;
        return begin;
    }
    const std::size_t wanted = (lead & 0xE0U) == 0xC0U   ? 2
                               : (lead & 0xF0U) == 0xE0U ? 3
                               : (lead & 0xF8U) == 0xF0U ? 4
                                                         : 0;
    code = 0xFFFD;
    if (length != wanted)
        return end - 1;
    std::uint32_t value = lead & (0xFFU >> (wanted + 1));
    for (std::size_t i = begin + 1; i < end; ++i)
        value = (value << 6U) | (Byte(text, i) & 0x3FU);
    if (value < least[wanted] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return end - 1;
    code = value;
    return begin;
}

bool Combines(std::uint32_t code) {
    return (code >= 0x0300 && code <= 0x036F) || (code >= 0x1AB0 && code <= 0x1AFF) ||
           (code >= 0x1DC0 && code <= 0x1DFF) || (code >= 0x20D0 && code <= 0x20FF) ||
           (code >= 0xFE00 && code <= 0xFE0F) || (code >= 0xFE20 && code <= 0xFE2F) || code == joiner ||
           (code >= 0x1F3FB && code <= 0x1F3FF);
}

} // namespace

std::size_t Previous_Character(std::string_view text, std::size_t end) {
    std::uint32_t code = 0;
    std::size_t begin = Previous_Code(text, end, code);
    while (begin > 0) {
        std::uint32_t before = 0;
        const std::size_t earlier = Previous_Code(text, begin, before);
        if (!Combines(code) && before != joiner)
            break;
        begin = earlier;
        code = before;
    }
    return begin;
}

} // namespace platform

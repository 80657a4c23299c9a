// The characters of UTF-8 texts: which bytes are valid, and which code points combine with the previous one.
// Nothing here calls the system.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

/// Marks bytes that are not a valid character.
constexpr std::uint32_t No_Character = 0xFFFFFFFF;

/// A code point and the index of its first byte.
struct Code_Step {
    std::size_t begin;
    std::uint32_t code;
};

/// The code points from `first` to `last`, both included.
struct Code_Range {
    std::uint16_t first;
    std::uint16_t last;
};

/// The combining marks, vowel signs, joiners and variation selectors below U+10000, in ascending order.
/// Ranges may include unassigned code points.
inline constexpr Code_Range Combining_Ranges[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x05BF, 0x05BF}, {0x05C1, 0x05C2},
    {0x05C4, 0x05C5}, {0x05C7, 0x05C7}, {0x0610, 0x061A}, {0x064B, 0x065F}, {0x0670, 0x0670},
    {0x06D6, 0x06DC}, {0x06DF, 0x06E4}, {0x06E7, 0x06E8}, {0x06EA, 0x06ED}, {0x0711, 0x0711},
    {0x0730, 0x074A}, {0x07A6, 0x07B0}, {0x07EB, 0x07F3}, {0x07FD, 0x07FD}, {0x0816, 0x0819},
    {0x081B, 0x0823}, {0x0825, 0x0827}, {0x0829, 0x082D}, {0x0859, 0x085B}, {0x0898, 0x089F},
    {0x08CA, 0x08E1}, {0x08E3, 0x0903}, {0x093A, 0x093C}, {0x093E, 0x094F}, {0x0951, 0x0957},
    {0x0962, 0x0963}, {0x0981, 0x0983}, {0x09BC, 0x09BC}, {0x09BE, 0x09CD}, {0x09D7, 0x09D7},
    {0x09E2, 0x09E3}, {0x09FE, 0x0A03}, {0x0A3C, 0x0A51}, {0x0A70, 0x0A71}, {0x0A75, 0x0A75},
    {0x0A81, 0x0A83}, {0x0ABC, 0x0ABC}, {0x0ABE, 0x0ACD}, {0x0AE2, 0x0AE3}, {0x0AFA, 0x0B03},
    {0x0B3C, 0x0B3C}, {0x0B3E, 0x0B57}, {0x0B62, 0x0B63}, {0x0B82, 0x0B82}, {0x0BBE, 0x0BCD},
    {0x0BD7, 0x0BD7}, {0x0C00, 0x0C04}, {0x0C3C, 0x0C3C}, {0x0C3E, 0x0C56}, {0x0C62, 0x0C63},
    {0x0C81, 0x0C83}, {0x0CBC, 0x0CBC}, {0x0CBE, 0x0CD6}, {0x0CE2, 0x0CE3}, {0x0D00, 0x0D03},
    {0x0D3B, 0x0D3C}, {0x0D3E, 0x0D4D}, {0x0D57, 0x0D57}, {0x0D62, 0x0D63}, {0x0D81, 0x0D83},
    {0x0DCA, 0x0DDF}, {0x0DF2, 0x0DF3}, {0x0E31, 0x0E31}, {0x0E34, 0x0E3A}, {0x0E47, 0x0E4E},
    {0x0EB1, 0x0EB1}, {0x0EB4, 0x0EBC}, {0x0EC8, 0x0ECD}, {0x0F18, 0x0F19}, {0x0F35, 0x0F35},
    {0x0F37, 0x0F37}, {0x0F39, 0x0F39}, {0x0F3E, 0x0F3F}, {0x0F71, 0x0F84}, {0x0F86, 0x0F87},
    {0x0F8D, 0x0FBC}, {0x0FC6, 0x0FC6}, {0x102B, 0x103E}, {0x1056, 0x1059}, {0x105E, 0x1060},
    {0x1062, 0x1064}, {0x1067, 0x106D}, {0x1071, 0x1074}, {0x1082, 0x108D}, {0x108F, 0x108F},
    {0x109A, 0x109D}, {0x1160, 0x11FF}, {0x135D, 0x135F}, {0x1712, 0x1715}, {0x1732, 0x1734},
    {0x1752, 0x1753}, {0x1772, 0x1773}, {0x17B4, 0x17D3}, {0x17DD, 0x17DD}, {0x180B, 0x180D},
    {0x180F, 0x180F}, {0x1885, 0x1886}, {0x18A9, 0x18A9}, {0x1920, 0x193B}, {0x1A17, 0x1A1B},
    {0x1A55, 0x1A7F}, {0x1AB0, 0x1B04}, {0x1B34, 0x1B44}, {0x1B6B, 0x1B73}, {0x1B80, 0x1B82},
    {0x1BA1, 0x1BAD}, {0x1BE6, 0x1BF3}, {0x1C24, 0x1C37}, {0x1CD0, 0x1CD2}, {0x1CD4, 0x1CE8},
    {0x1CED, 0x1CED}, {0x1CF4, 0x1CF4}, {0x1CF7, 0x1CF9}, {0x1DC0, 0x1DFF}, {0x200C, 0x200D},
    {0x20D0, 0x20F0}, {0x2CEF, 0x2CF1}, {0x2D7F, 0x2D7F}, {0x2DE0, 0x2DFF}, {0x302A, 0x302F},
    {0x3099, 0x309A}, {0xA66F, 0xA672}, {0xA674, 0xA67D}, {0xA69E, 0xA69F}, {0xA6F0, 0xA6F1},
    {0xA802, 0xA802}, {0xA806, 0xA806}, {0xA80B, 0xA80B}, {0xA823, 0xA827}, {0xA82C, 0xA82C},
    {0xA880, 0xA881}, {0xA8B4, 0xA8C5}, {0xA8E0, 0xA8F1}, {0xA8FF, 0xA8FF}, {0xA926, 0xA92D},
    {0xA947, 0xA953}, {0xA980, 0xA983}, {0xA9B3, 0xA9C0}, {0xA9E5, 0xA9E5}, {0xAA29, 0xAA36},
    {0xAA43, 0xAA43}, {0xAA4C, 0xAA4D}, {0xAA7B, 0xAA7D}, {0xAAB0, 0xAAB0}, {0xAAB2, 0xAAB4},
    {0xAAB7, 0xAAB8}, {0xAABE, 0xAABF}, {0xAAC1, 0xAAC1}, {0xAAEB, 0xAAEF}, {0xAAF5, 0xAAF6},
    {0xABE3, 0xABEA}, {0xABEC, 0xABED}, {0xFB1E, 0xFB1E}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F},
    {0xFF9E, 0xFF9F}};

/// Returns whether a code point lies in one of the ranges, which must be in ascending order.
template <std::size_t Count>
bool In_Ranges(const Code_Range (&ranges)[Count], std::uint32_t code) {
    const Code_Range *range =
        std::lower_bound(std::begin(ranges), std::end(ranges), code,
                         [](const Code_Range &each, std::uint32_t wanted) { return each.last < wanted; });
    return range != std::end(ranges) && range->first <= code;
}

/// Returns whether a code point always combines with the one before it.
inline bool Extends_Previous(std::uint32_t code) {
    if (code > 0xFFFF) {
        const bool skin_tone = code >= 0x1F3FB && code <= 0x1F3FF;
        const bool tag = code >= 0xE0020 && code <= 0xE007F;
        return skin_tone || tag || (code >= 0xE0100 && code <= 0xE01EF);
    }
    return In_Ranges(Combining_Ranges, code);
}

/// Returns whether a code point is a regional indicator. Two of them form a flag.
inline bool Is_Flag_Letter(std::uint32_t code) {
    return code >= 0x1F1E6 && code <= 0x1F1FF;
}

/// Returns the code point of the `length` bytes (1 to 4, all inside the text) from `begin`, or No_Character
/// if they are not exactly one well-formed character.
inline std::uint32_t Decode_Utf8(std::string_view text, std::size_t begin, std::size_t length) {
    static constexpr unsigned marks[] = {0, 0, 0xC0, 0xE0, 0xF0};
    static constexpr unsigned masks[] = {0, 0x80, 0xE0, 0xF0, 0xF8};
    static constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const unsigned lead = static_cast<unsigned char>(text[begin]);
    if ((lead & masks[length]) != marks[length])
        return No_Character;
    std::uint32_t code = lead & ~masks[length];
    for (std::size_t i = begin + 1; i < begin + length; ++i) {
        const unsigned byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U)
            return No_Character;
        code = (code << 6) | (byte & 0x3FU);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < smallest[length] || code > 0x10FFFF || surrogate ? No_Character : code;
}

/// Returns the number of bytes of a well-formed character that begins with `first`.
inline std::size_t Length_Utf8(char first) {
    const unsigned lead = static_cast<unsigned char>(first);
    return lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// Returns the code point that begins at byte `begin`, or No_Character if none does.
inline std::uint32_t Code_At(std::string_view text, std::size_t begin) {
    const std::size_t length = Length_Utf8(text[begin]);
    return text.size() - begin < length ? No_Character : Decode_Utf8(text, begin, length);
}

/// Returns the code point that ends before byte `end`. Returns the last byte alone, as No_Character, if it
/// does not end a valid character.
inline Code_Step Step_Back_Utf8(std::string_view text, std::size_t end) {
    std::size_t begin = end - 1;
    while (begin > 0 && end - begin < 4 && (static_cast<unsigned char>(text[begin]) & 0xC0U) == 0x80U)
        --begin;
    const std::uint32_t code = Decode_Utf8(text, begin, end - begin);
    return code == No_Character ? Code_Step{end - 1, code} : Code_Step{begin, code};
}

/// Returns whether the text is well-formed UTF-8: without overlong forms, surrogates or code points above
/// U+10FFFF.
inline bool Is_Utf8(std::string_view text) {
    constexpr std::uint64_t high_bits = 0x8080808080808080U;
    constexpr std::size_t block = 64;
    for (std::size_t at = 0; at < text.size();) {
        // Most bytes are ASCII, so check a block at a time.
        std::uint64_t bits = high_bits;
        if (text.size() - at >= block) {
            bits = 0;
            for (std::size_t i = 0; i < block; i += sizeof bits) {
                std::uint64_t eight = 0;
                std::memcpy(&eight, text.data() + at + i, sizeof eight);
                bits |= eight;
            }
        }
        const std::size_t end = std::min(at + block, text.size());
        if ((bits & high_bits) == 0)
            at = end;
        while (at < end) {
            if (Code_At(text, at) == No_Character)
                return false;
            at += Length_Utf8(text[at]);
        }
    }
    return true;
}

/// Appends a code point as UTF-8. A value that is not a character, such as half of a surrogate pair, becomes
/// U+FFFD.
inline void Append_Utf8(std::string &text, std::uint32_t code) {
    if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        code = 0xFFFD;
    const unsigned shift = code < 0x80 ? 0 : code < 0x800 ? 6 : code < 0x10000 ? 12 : 18;
    constexpr unsigned marks[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(marks[shift / 6] | (code >> shift));
    for (unsigned left = shift; left > 0; left -= 6)
        text += static_cast<char>(0x80U | ((code >> (left - 6)) & 0x3FU));
}

/// Returns the index of the first byte of the character that ends before byte `end` (1 to text.size()). A
/// character includes its combining marks, all parts of a joined emoji, and both letters of a flag. An
/// invalid byte counts as one character.
inline std::size_t Previous_Character(std::string_view text, std::size_t end) {
    constexpr std::uint32_t joiner = 0x200D;
    Code_Step step = Step_Back_Utf8(text, end);
    while (step.begin > 0) {
        const Code_Step before = Step_Back_Utf8(text, step.begin);
        if (Is_Flag_Letter(step.code) && Is_Flag_Letter(before.code)) {
            // Regional indicators pair up from the start of their run.
            std::size_t letters_before = 1;
            for (Code_Step more = before; more.begin > 0; ++letters_before) {
                more = Step_Back_Utf8(text, more.begin);
                if (!Is_Flag_Letter(more.code))
                    break;
            }
            return letters_before % 2 == 1 ? before.begin : step.begin;
        }
        if (!Extends_Previous(step.code) && before.code != joiner)
            break;
        step = before;
    }
    return step.begin;
}

// The reading direction of a text.
#pragma once

#include "base/characters.h"

/// Letters of the right-to-left scripts, with their marks.
inline constexpr Code_Range Right_To_Left_Ranges[] = {{0x0590, 0x065F}, {0x066A, 0x06EF}, {0x06FA, 0x08FF},
                                                      {0x200F, 0x200F}, {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFE}};

/// Characters without a direction of their own: digits, marks and signs.
inline constexpr Code_Range Neutral_Ranges[] = {
    {0x0000, 0x0040}, {0x005B, 0x0060}, {0x007B, 0x00A9}, {0x00AB, 0x00B4}, {0x00B6, 0x00B9},
    {0x00BB, 0x00BF}, {0x00D7, 0x00D7}, {0x00F7, 0x00F7}, {0x02B9, 0x02BA}, {0x02C2, 0x02CF},
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0660, 0x0669}, {0x06F0, 0x06F9},
    {0x2000, 0x200D}, {0x2010, 0x2070}, {0x2074, 0x207E}, {0x2080, 0x208E}, {0x20A0, 0x20FF},
    {0x2190, 0x2335}, {0x237B, 0x2394}, {0x2396, 0x249B}, {0x24EA, 0x26AB}, {0x26AD, 0x27FF},
    {0x2900, 0x2BFF}, {0x3000, 0x3004}, {0x3008, 0x3020}, {0x302A, 0x3030}, {0xFE00, 0xFE6F},
    {0xFEFF, 0xFF20}, {0xFF3B, 0xFF40}, {0xFF5B, 0xFF65}};

/// Returns whether the first character of a UTF-8 text that has a direction belongs to a right-to-left
/// script.
inline bool Is_Right_To_Left(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::uint32_t code = Code_At(text, at);
        // This also skips the bytes inside a character.
        if (code == No_Character)
            continue;
        constexpr std::uint32_t pictures = 0x1F000;
        constexpr std::uint32_t pictures_end = 0x1FB00;
        if (code > 0xFFFF && (code < pictures || code >= pictures_end))
            return (code >= 0x10800 && code <= 0x10FFF) || (code >= 0x1E800 && code <= 0x1EFFF);
        if (code <= 0xFFFF && !In_Ranges(Neutral_Ranges, code))
            return In_Ranges(Right_To_Left_Ranges, code);
    }
    return false;
}

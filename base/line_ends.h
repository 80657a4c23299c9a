// Line breaking rules for Chinese, Japanese and Korean, which allow breaks inside words.
#pragma once

#include "base/characters.h"

#include <string_view>

/// Chinese, Japanese and Korean characters below U+10000, including their punctuation.
inline constexpr Code_Range Cjk_Ranges[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xA960, 0xA97F},
                                            {0xAC00, 0xD7FF}, {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},
                                            {0xFF00, 0xFFEF}};

/// Characters that must not begin a line: closing punctuation, small kana, prolonged sound and iteration
/// marks.
inline constexpr std::u16string_view No_Line_Start =
    u"!\"%'),-./:;?]}\u00A0»‐‑‒–’”‥…‰‱′″›‼⁇⁈⁉\u2060℃、。々〉》」』】〕〗〙〛〜〞〟〻ぁぃぅぇぉっゃゅょゎゕ"
    u"ゖ゛゜ゝゞ゠ァィゥェォッャュョヮヵヶ・ーヽヾㇰㇱㇲㇳㇴㇵㇶㇷㇸㇹㇺㇻㇼㇽㇾㇿ"
    u"﹐﹑﹒﹓﹔﹕﹖﹗﹚﹜﹞！"
    u"％），．：；？］｝｠｡｣､･ｧｨｩｪｫｬｭｮｯｰﾞﾟ";

/// Characters that must not end a line: opening punctuation and currency signs.
inline constexpr std::u16string_view No_Line_End =
    u"\"$'([{\u00A0£¥«‘“‹\u2060〈《「『【〔〖〘〚〝﹙﹛﹝＄（［｛｟｢￡￥￦";

inline bool Contains(std::u16string_view characters, std::uint32_t code) {
    return code <= 0xFFFF && characters.find(static_cast<char16_t>(code)) != std::u16string_view::npos;
}

inline bool Is_Cjk(std::uint32_t code) {
    constexpr std::uint32_t rare_first = 0x20000;
    constexpr std::uint32_t rare_last = 0x3FFFF;
    return (code >= rare_first && code <= rare_last) || In_Ranges(Cjk_Ranges, code);
}

/// Returns whether a line of a UTF-8 text may break before byte `at`, which is 1 to text.size() - 1. It may
/// break before a blank, and next to a Chinese, Japanese or Korean character unless one of the lists above
/// forbids it.
inline bool Line_May_End(std::string_view text, std::size_t at) {
    if (text[at] == ' ')
        return true;
    // Fast path for nearly all texts: between two ASCII characters only a blank allows a break.
    if (static_cast<unsigned char>(text[at]) < 0x80 && static_cast<unsigned char>(text[at - 1]) < 0x80)
        return false;
    const std::uint32_t after = Code_At(text, at);
    Code_Step before = Step_Back_Utf8(text, at);
    if (after == No_Character || before.code == ' ' || Extends_Previous(after))
        return false;
    while (before.begin > 0 && Extends_Previous(before.code))
        before = Step_Back_Utf8(text, before.begin);
    return (Is_Cjk(before.code) || Is_Cjk(after)) && !Contains(No_Line_Start, after) &&
           !Contains(No_Line_End, before.code);
}

// Letter case of ASCII letters, for comparing file names, keywords and headings. Other letters stay unchanged
// under all regional settings.
#pragma once

#include <string>
#include <string_view>

constexpr char To_Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline std::string To_Upper(std::string_view text) {
    std::string capitals(text);
    for (char &c : capitals)
        c = To_Upper(c);
    return capitals;
}

// Taking the line breaks out of texts, narrow or wide. It knows nothing of characters.
#pragma once

#include <string>

/// `text` with a blank for each line break: CR, LF or both.
template <typename Unit>
std::basic_string<Unit> Without_Line_Breaks(std::basic_string<Unit> text) {
    std::size_t kept = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n')
            continue;
        text[kept++] = text[at] == '\r' || text[at] == '\n' ? Unit{' '} : text[at];
    }
    text.resize(kept);
    return text;
}

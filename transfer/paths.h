// Comparing the names of files as the file system does, for ASCII letters.
#pragma once

#include <string>

inline std::string Lower_Case(std::string text) {
    for (char &character : text)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return text;
}

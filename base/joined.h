// Concatenation of several texts.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// Returns the concatenated parts. A chain of "+" would create a string, and the code to destroy it, at each
/// step.
inline std::string Joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

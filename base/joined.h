// Texts put together from several parts.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// The parts one behind the other. A chain of "+" makes a string, and the code that takes it down again, at
/// each of its steps.
inline std::string Joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

// The base of the program's own exceptions.
#pragma once

#include <exception>
#include <string>
#include <string_view>

/// An error that can be told to the user in the words of what().
class Error : public std::exception {
public:
    explicit Error(std::string_view text) : text_(text) {}
    // The runtime's own exceptions with a text bring 50 KB of another, older string class, which this avoids.
    const char *what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

// The base class of the program's own exceptions.
#pragma once

#include <exception>
#include <string>
#include <string_view>

/// An error whose what() is a text for the user.
class Error : public std::exception {
public:
    explicit Error(std::string_view text) : text_(text) {}
    // std::runtime_error would add 50 KB: the runtime's exceptions with a text still use an older string
    // class.
    const char *what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

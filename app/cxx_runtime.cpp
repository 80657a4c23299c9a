// Replacements of C++ runtime functions. The linker prefers these to the library's, whose terminate handler
// decodes names for a console and whose logic errors hold their text in an older string class, 120 KB
// together.
#include "base/error.h"

#include <cstdlib>
#include <new>

// The library prescribes these names and parameters.
// NOLINTBEGIN(cert-dcl50-cpp,cert-dcl58-cpp,readability-redundant-declaration)
namespace __gnu_cxx {

void __verbose_terminate_handler();
void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx

// Thrown by std::string and std::vector.
namespace std {

void __throw_length_error(const char *what) {
    throw Error(what);
}

void __throw_logic_error(const char *what) {
    throw Error(what);
}

void __throw_out_of_range(const char *what) {
    throw Error(what);
}

/// The text stays as it is written, without the numbers.
void __throw_out_of_range_fmt(const char *what, ...) {
    throw Error(what);
}

void __throw_bad_alloc() {
    throw std::bad_alloc();
}

void __throw_bad_array_new_length() {
    throw std::bad_alloc();
}

} // namespace std
// NOLINTEND(cert-dcl50-cpp,cert-dcl58-cpp,readability-redundant-declaration)

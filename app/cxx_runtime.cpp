// Replacements for functions of the C++ runtime library. The linker prefers them to the originals, which
// saves 120 KB: the original terminate handler demangles names for a console, and the original logic errors
// use an older string class.
#include "base/error.h"

#include <cstdlib>
#include <new>

// The library defines these names and parameters.
// NOLINTBEGIN(cert-dcl50-cpp,cert-dcl58-cpp,readability-redundant-declaration)
namespace __gnu_cxx {

void __verbose_terminate_handler();
void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx

// std::string and std::vector call these to throw.
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

/// Throws an Error with the unexpanded format string.
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

// What the program answers in the place of the C++ runtime, whose own versions bring 120 KB that it never
// needs: the decoding of names for a text on a console, and exceptions that hold their text in a string class
// of old. The linker takes these and leaves the library's out.
#include "base/error.h"

#include <cstdlib>
#include <memory>
#include <new>

// What mends addresses of variables in DLLs at start. The program uses none; the linker is told to refuse
// one.
extern "C" void _pei386_runtime_relocator() {
}

// The library's names and its way of parameters are what the linker looks for.
// NOLINTBEGIN(cert-dcl50-cpp,cert-dcl58-cpp,readability-redundant-declaration)
namespace __gnu_cxx {

void __verbose_terminate_handler();
void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx

// Tells make_shared's objects where there is no RTTI and two modules may differ; the program is one module.
bool std::_Sp_make_shared_tag::_S_eq(const type_info &) noexcept {
    return false;
}

// Where std::string and std::vector find that they are used wrongly.
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

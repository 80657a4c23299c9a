// The program's entry; all else is in program.cpp.
#include "app/program.h"

#include <cstdlib>

namespace __gnu_cxx {

/// Stands in for the C++ runtime's own, which would bring 77 KB of name decoding for a text on a console that
/// a desktop program does not have.
void __verbose_terminate_handler();
void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx

int main() {
    return Run_Program();
}

// The value that the compiler puts behind the arrays of a function to detect overflows. The compiler's own
// library gets a random value from the Windows cryptography libraries, which every start would have to load.
#include "win32/handles.h"

#include <cstdint>

// The compiler prescribes these two names.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" {

extern std::uintptr_t __stack_chk_guard;
[[gnu::used]] std::uintptr_t __stack_chk_guard = 0;

[[noreturn]] void __stack_chk_fail();
[[gnu::used]] void __stack_chk_fail() {
    __builtin_trap();
}

} // extern "C"

namespace {

/// Chooses the stack guard's value before all other constructors run. Must not be protected itself, because
/// its own guard changes.
__attribute__((constructor(101), no_stack_protector)) void Draw_Stack_Guard() {
    LARGE_INTEGER ticks = {};
    QueryPerformanceCounter(&ticks);
    __stack_chk_guard = ticks.LowPart ^ GetCurrentProcessId() ^ reinterpret_cast<std::uintptr_t>(&ticks);
}

} // namespace
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

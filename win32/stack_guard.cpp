// Provides the value that the compiler puts behind a function's arrays to detect overflows. The compiler's
// own library would load the Windows cryptography libraries at every start to get a random value.
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

/// Chooses the stack guard's value before all other constructors run. This function must have no guard
/// itself, because it changes the value.
__attribute__((constructor(101), no_stack_protector)) void Draw_Stack_Guard() {
    LARGE_INTEGER ticks = {};
    QueryPerformanceCounter(&ticks);
    __stack_chk_guard = ticks.LowPart ^ GetCurrentProcessId() ^ reinterpret_cast<std::uintptr_t>(&ticks);
}

} // namespace
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

// Two names that GoogleTest's header mentions and that the standard library of the compiler variant without
// a thread library lacks. They stand in one class for GoogleTest's own tests, which nobody here uses: they
// do nothing. Included by force before GoogleTest; no file of the project includes it.
#pragma once

#include <mutex>

#ifndef _GLIBCXX_HAS_GTHREADS
namespace std {

struct mutex {
    void lock() {}
    void unlock() {}
};

struct condition_variable {
    void notify_all() {}
    template <typename Lock, typename Condition>
    void wait(Lock &, Condition) {}
};

} // namespace std
#endif

// Stubs of std::mutex and std::condition_variable, which GoogleTest's header mentions and which the compiler
// variant without a thread library lacks. GoogleTest uses them only in a class for its own tests. The build
// includes this file before GoogleTest by a compiler option.
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

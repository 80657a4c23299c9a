// What runs when an event is raised, and the raising.
#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <new>
#include <type_traits>

/// A lambda that holds no more than three pointers or plain values, mostly the `this` of its form. So its
/// copies need neither memory nor a clean-up, which keeps the wiring of a hundred events small. Empty or null
/// it does nothing and must not be called.
template <typename... Params>
class Handler {
public:
    Handler() = default;
    Handler(std::nullptr_t) {}
    template <typename Lambda>
    requires(!std::same_as<Lambda, Handler> && std::invocable<const Lambda &, Params...>)
        Handler(const Lambda &lambda)
        : run_([](const void *held, Params... params) { (*static_cast<const Lambda *>(held))(params...); }) {
        static_assert(std::is_trivially_copyable_v<Lambda> && sizeof(Lambda) <= sizeof held_,
                      "a handler holds at most three pointers or plain values");
        new (held_) Lambda(lambda);
    }

    explicit operator bool() const { return run_ != nullptr; }
    void operator()(Params... params) const { run_(held_, params...); }

private:
    void (*run_)(const void *held, Params... params) = nullptr;
    alignas(void *) std::byte held_[3 * sizeof(void *)] = {};
};

/// Calls an event's handler, if it has one. The handler may end the form that holds it, so it is a copy that
/// runs, and the callers touch nothing of the form afterwards.
template <typename... Params>
void Fire(const Handler<Params...> &event, std::type_identity_t<Params>... args) {
    if (const auto handler = event)
        handler(args...);
}

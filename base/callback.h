// Two wrappers for lambdas. They allocate no memory and need no destructor. In std::function, the code that
// copies and destroys each lambda makes up most of the size.
#pragma once

#include <concepts>
#include <cstddef>
#include <new>
#include <type_traits>

template <typename Signature>
class Callback;

/// Holds a copy of a lambda whose captures take at most three pointers, usually the `this` of a form. A
/// default-constructed or null callback holds nothing and must not be called.
template <typename Result, typename... Params>
class Callback<Result(Params...)> {
public:
    Callback() = default;
    Callback(std::nullptr_t) {}
    template <typename Lambda>
    requires(!std::same_as<Lambda, Callback> && std::is_invocable_r_v<Result, const Lambda &, Params...>)
        Callback(const Lambda &lambda)
        : run_([](const void *held, Params... params) -> Result {
              return (*static_cast<const Lambda *>(held))(static_cast<Params>(params)...);
          }) {
        static_assert(std::is_trivially_copyable_v<Lambda> && sizeof(Lambda) <= sizeof held_,
                      "a callback holds at most three pointers or plain values");
        new (held_) Lambda(lambda);
    }

    explicit operator bool() const { return run_ != nullptr; }
    Result operator()(Params... params) const { return run_(held_, static_cast<Params>(params)...); }

private:
    Result (*run_)(const void *held, Params... params) = nullptr;
    alignas(void *) std::byte held_[3 * sizeof(void *)] = {};
};

template <typename Signature>
class Callback_Ref;

/// Refers to a lambda of any size. The caller keeps the lambda, so use this only for a parameter that the
/// function calls before it returns.
template <typename Result, typename... Params>
class Callback_Ref<Result(Params...)> {
public:
    template <typename Lambda>
    requires(!std::same_as<Lambda, Callback_Ref> && std::is_invocable_r_v<Result, const Lambda &, Params...>)
        Callback_Ref(const Lambda &lambda)
        : held_(&lambda), run_([](const void *held, Params... params) -> Result {
              return (*static_cast<const Lambda *>(held))(static_cast<Params>(params)...);
          }) {}

    Result operator()(Params... params) const { return run_(held_, static_cast<Params>(params)...); }

private:
    const void *held_;
    Result (*run_)(const void *held, Params... params);
};

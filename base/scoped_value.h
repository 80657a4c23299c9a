// A temporary value for a variable, limited to a scope.
#pragma once

#include <utility>

/// Sets `place` to `value` and restores the previous value at the end of the scope.
template <typename Value>
class Scoped_Value {
public:
    Scoped_Value(Value &place, Value value)
        : place_(place), before_(std::exchange(place, std::move(value))) {}
    ~Scoped_Value() { place_ = std::move(before_); }
    Scoped_Value(const Scoped_Value &) = delete;
    Scoped_Value &operator=(const Scoped_Value &) = delete;

private:
    Value &place_;
    Value before_;
};

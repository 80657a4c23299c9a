// The calling of event handlers.
#pragma once

#include <functional>
#include <utility>

/// Calls an event's handler, if it has one. The handler may end the form that holds it, so it is a copy that
/// runs, and the callers touch nothing of the form afterwards.
template <typename... Params, typename... Args>
void Fire(const std::function<void(Params...)> &event, Args &&...args) {
    if (const auto handler = event)
        handler(std::forward<Args>(args)...);
}

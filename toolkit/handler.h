// What runs when an event is raised, and the raising.
#pragma once

#include "base/callback.h"

#include <type_traits>

template <typename... Params>
using Handler = Callback<void(Params...)>;

/// Calls an event's handler, if it has one. The handler may end the form that holds it, so it is a copy that
/// runs, and the callers touch nothing of the form afterwards.
template <typename... Params>
void Fire(const Handler<Params...> &event, std::type_identity_t<Params>... args) {
    if (const auto handler = event)
        handler(args...);
}

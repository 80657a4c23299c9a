// Event handlers, and the call that raises an event.
#pragma once

#include "base/callback.h"

#include <type_traits>

template <typename... Params>
using Handler = Callback<void(Params...)>;

/// Calls a copy of the event's handler, if there is one, because the handler may destroy the form that holds
/// it. The caller must not touch the form afterwards.
template <typename... Params>
void Fire(const Handler<Params...> &event, std::type_identity_t<Params>... args) {
    if (const auto handler = event)
        handler(args...);
}

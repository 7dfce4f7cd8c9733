// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <wayland-client.h>

/// Owns an object of a connection. `destroy` is the call that ends it at both sides.
template <auto destroy>
struct WaylandDeleter {
    template <class T>
    void operator()(T* object) const {
        destroy(object);
    }
};

template <class T, auto destroy>
using Owned = std::unique_ptr<T, WaylandDeleter<destroy>>;

/// The current moment in milliseconds, as events have it.
std::uint32_t waylandTime();

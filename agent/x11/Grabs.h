// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"

#include <compare>
#include <cstdint>
#include <set>
#include <xcb/xinput.h>

/// A key with exactly these modifiers, or a button with any, that is taken from the programs below.
struct Grab {
    xcb_input_device_id_t device;
    bool isKey;
    std::uint32_t code; ///< key code, or a button's number as programs see it
    std::uint32_t modifiers;

    static constexpr std::uint32_t kAnyModifiers = XCB_INPUT_MODIFIER_MASK_ANY;

    auto operator<=>(const Grab&) const = default;
};

/// The passive grabs of physical devices. One of a key that is down goes on until it comes up,
/// whatever is wanted then.
class Grabs {
public:
    /// It must outlive this.
    explicit Grabs(XServer& server) : server_(server) {}

    /// Takes these and gives the others back. Those that couldn't be taken are tried again.
    void set(const std::set<Grab>& wanted);

    /// The device came or went, and its grabs with it.
    void forget(xcb_input_device_id_t device);

    /// Those that another program has.
    const std::set<Grab>& refused() const { return refused_; }

private:
    void take(const std::set<Grab>& missing);

    XServer& server_;
    std::set<Grab> taken_;
    std::set<Grab> refused_;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Typist.h"
#include "agent/wayland/VirtualHand.h"

/// With a keyboard of its own, it needs no key of the user's.
class WaylandTypist final : public Typist {
public:
    /// It must outlive it.
    explicit WaylandTypist(VirtualHand& hand) : Typist(hand), hand_(hand) {}

    /// Nobody tells what the user holds.
    bool modifierIsDown() const override { return false; }

private:
    std::vector<std::optional<std::uint8_t>>
    keysNamed(const std::vector<std::string>& symbols) override {
        std::vector<std::optional<std::uint8_t>> keys;
        for (const std::string& symbol : symbols)
            keys.push_back(hand_.keyFor(symbol));
        return keys;
    }

    VirtualHand& hand_;
};

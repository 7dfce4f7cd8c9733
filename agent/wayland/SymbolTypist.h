// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Typist.h"

/// Types with a hand that has a key for each symbol (its `keyFor`), whatever the user's layout is.
template <class SymbolHand>
class SymbolTypist final : public Typist {
public:
    /// It must outlive it.
    explicit SymbolTypist(SymbolHand& hand) : Typist(hand), hand_(hand) {}

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

    SymbolHand& hand_;
};

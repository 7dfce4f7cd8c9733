// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Hand.h"

#include <optional>
#include <string>
#include <vector>

/// Types keys by their symbols.
class Typist {
public:
    virtual ~Typist() = default;
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;

    /// Presses and releases, at once. `keys` are X's names of one symbol, after Control+, Shift+
    /// or Alt+, as in "Shift+Control+v". Why it can't, in words, or empty.
    std::string type(const std::string& keys);

    /// The key of a symbol with that name of X, for the hand. None when there is no key left for
    /// it.
    std::optional<std::uint8_t> keyNamed(const std::string& symbol);

    /// Whether a key of Shift, Control, Alt or Super is down, whosever. Sticky keys don't count.
    virtual bool modifierIsDown() const = 0;

protected:
    /// It must outlive it.
    explicit Typist(Hand& hand) : hand_(hand) {}

    virtual std::vector<std::optional<std::uint8_t>>
    keysNamed(const std::vector<std::string>& symbols) = 0;

private:
    Hand& hand_;
};

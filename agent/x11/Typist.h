// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/Hand.h"
#include "agent/x11/XServer.h"

#include <QTimer>

#include <optional>
#include <string>

class KeyLayout;

/// Types keys by their symbols, wherever the layout that is active has them.
class Typist {
public:
    /// Both must outlive it.
    Typist(XServer& server, Hand& hand);
    ~Typist();
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;

    /// Presses and releases, at once. `keys` are X's names of one symbol, after Control+, Shift+
    /// or Alt+, as in "Shift+Control+v". Why it can't, in words, or empty.
    std::string type(const std::string& keys);

    /// The key of a symbol with that name of X. None when the server has none left.
    std::optional<xcb_keycode_t> keyNamed(const std::string& symbol);

    /// Whether a key of Shift, Control, Alt or Super is down, whosever. Sticky keys don't count.
    bool modifierIsDown() const;

    /// A key that got a symbol for the moment loses it.
    void giveBack();

    /// Seconds that such a key keeps it: programs look the symbol up after the key has come.
    static constexpr double kLentFor = 1;

private:
    struct Lent {
        xcb_keycode_t code;
        std::uint32_t symbol;
    };

    std::optional<xcb_keycode_t> lend(const KeyLayout& layout, std::uint32_t symbol);
    std::optional<xcb_keycode_t> keyIn(const KeyLayout& layout, const std::string& name);
    void map(xcb_keycode_t code, std::uint32_t symbol);

    XServer& server_;
    Hand& hand_;
    std::optional<Lent> lent_;
    QTimer lentUntil_;
};

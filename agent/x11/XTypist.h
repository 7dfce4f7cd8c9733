// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Typist.h"
#include "agent/x11/XServer.h"

#include <QTimer>

class KeyLayout;

/// Wherever the layout that is active has the symbols. Key codes are the server's.
class XTypist final : public Typist {
public:
    /// Both must outlive it.
    XTypist(XServer& server, Hand& hand);
    ~XTypist() override;

    bool modifierIsDown() const override;

    /// A key that got a symbol for the moment loses it.
    void giveBack();

    /// Seconds that such a key keeps it: programs look the symbol up after the key has come.
    static constexpr double kLentFor = 1;

private:
    struct Lent {
        xcb_keycode_t code;
        std::uint32_t symbol;
    };

    std::vector<std::optional<std::uint8_t>>
    keysNamed(const std::vector<std::string>& symbols) override;
    std::optional<xcb_keycode_t> lend(const KeyLayout& layout, std::uint32_t symbol);
    std::optional<xcb_keycode_t> keyIn(const KeyLayout& layout, const std::string& name);
    void map(xcb_keycode_t code, std::uint32_t symbol);

    XServer& server_;
    std::optional<Lent> lent_;
    QTimer lentUntil_;
};

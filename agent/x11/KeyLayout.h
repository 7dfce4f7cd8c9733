// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <xcb/xcb.h>

struct xkb_keymap;
struct xkb_state;

/// The keys of the keyboard that programs see, and its layout that is active, as they were when
/// they were read.
class KeyLayout {
public:
    /// Asks the server of DISPLAY, over a connection of its own: one that knows XKB isn't told of
    /// other keys in the way that the agent listens to. None when the server doesn't answer.
    static std::optional<KeyLayout> read();

    /// The key with this symbol (X's number) when no modifier is held: in the layout that is
    /// active, else in another one, where programs look for their shortcuts when the active one has
    /// no Latin letters.
    std::optional<xcb_keycode_t> keyFor(std::uint32_t symbol) const;

    /// The highest key without a symbol. None if all have one.
    std::optional<xcb_keycode_t> unusedKey() const;

private:
    struct Free {
        void operator()(xkb_keymap* keymap) const;
    };

    std::optional<xcb_keycode_t> keyIn(std::uint32_t layout, std::uint32_t symbol) const;

    std::unique_ptr<xkb_keymap, Free> keymap_;
    std::uint32_t active_ = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"

#include <cstdint>
#include <optional>
#include <vector>

/// Where the server has the modifiers that hot keys name, and which keys nobody uses.
class KeyMap {
public:
    /// Reads it. Call it again when the server's keys change.
    void read(XServer& server);

    /// The server's modifier bits for Carbon's: command is Super; option is Alt or, secondly, Alt
    /// Gr.
    std::vector<std::uint32_t> modifiers(std::uint32_t carbon) const;

    /// The bits that hot keys can have. All others are locks.
    std::uint32_t allModifiers() const;

    /// Each combination of Caps Lock and Num Lock, none included.
    std::vector<std::uint32_t> locks() const;

    /// A key that has no symbol. None if all have one.
    std::optional<xcb_keycode_t> unusedKey() const { return unusedKey_; }

    bool operator==(const KeyMap&) const = default;

private:
    std::uint32_t super_ = XCB_MOD_MASK_4;
    std::uint32_t alt_ = XCB_MOD_MASK_1;
    std::uint32_t altGr_ = XCB_MOD_MASK_1; ///< as Alt where there is none
    std::uint32_t numLock_ = 0;
    std::optional<xcb_keycode_t> unusedKey_;
};
